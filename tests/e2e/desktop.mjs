import { execFile, spawn } from 'node:child_process';
import { once } from 'node:events';
import { existsSync, readdirSync, readFileSync } from 'node:fs';
import { mkdir, mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { setTimeout } from 'node:timers/promises';
import { fileURLToPath } from 'node:url';
import { promisify } from 'node:util';

const run = promisify(execFile);
const root = fileURLToPath(new URL('../..', import.meta.url));
const TRAY_SIZE = ['--widthtype', 'pixel', '--width', '120', '--heighttype', 'pixel', '--height', '28'];
const NAME = 'Glaceron Password Manager';

/** A screen of its own with a window manager and a tray, for a program and a browser. */
export async function startDesktop() {
  const xvfb = spawn('Xvfb', ['-displayfd', '3', '-screen', '0', '1366x900x24', '-nolisten', 'tcp'], {
    stdio: ['ignore', 'ignore', 'ignore', 'pipe'],
  });
  const [number] = await once(xvfb.stdio[3], 'data');
  const env = { ...process.env, DISPLAY: `:${String(number).trim()}` };
  delete env.WAYLAND_DISPLAY;
  const start = (command, ...args) => spawn(command, args, { env, stdio: 'ignore' });
  const helpers = [start('openbox'), start('trayer', '--edge', 'top', '--align', 'left', ...TRAY_SIZE)];

  return {
    env,
    /** Presses keys, one combination after the other, in the window that has the keyboard. */
    press: (...keys) => run('xdotool', ['key', '--clearmodifiers', '--delay', '30', ...keys], { env }),
    type: (text) => run('xdotool', ['type', '--clearmodifiers', '--delay', '15', '--', text], { env }),
    // Not --sync: where the pointer stands there already, that waits for it to move.
    click: (x, y, button = 1) => run('xdotool', ['mousemove', x, y, 'click', button], { env }),
    /** Waits for a visible window with the title and gives it the keyboard. */
    async activate(title) {
      // It fails when a window goes while it walks over them, as the splash does.
      const look = () => run('xdotool', ['search', '--sync', '--onlyvisible', '--name', title], { env });
      const again = (error) => (/BadWindow/.test(error.stderr) ? look().catch(again) : Promise.reject(error));
      const { stdout } = await look().catch(again);
      const id = stdout.trim().split('\n').pop();
      await run('xdotool', ['windowactivate', '--sync', id], { env });
      return id;
    },
    /** The title of the window that has the keyboard. */
    activeTitle: async () => (await run('xdotool', ['getactivewindow', 'getwindowname'], { env })).stdout.trim(),
    /** Where a window is on the screen, without its frame: {left, top, width, height}. */
    async placeOf(id) {
      const { stdout } = await run('xdotool', ['getwindowgeometry', '--shell', id], { env });
      const [left, top, width, height] = ['X', 'Y', 'WIDTH', 'HEIGHT'].map((name) => Number(new RegExp(`^${name}=(.*)$`, 'm').exec(stdout)[1]));
      return { left, top, width, height };
    },
    async isVisible(title) {
      const found = run('xdotool', ['search', '--onlyvisible', '--name', title], { env });
      return found.then(() => true, () => false);
    },
    /** Whether a visible window with the title comes within a second. */
    async comes(title) {
      for (const end = Date.now() + 1000; Date.now() < end; await setTimeout(50)) {
        if (await this.isVisible(title)) return true;
      }
      return false;
    },
    /** A picture of a window, or of the whole screen, once nothing moves in it. */
    async picture(path, window) {
      const take = async () => {
        await run('maim', [...(window ? ['-i', window] : []), path], { env });
        return readFileSync(path);
      };
      for (let before = await take(), tries = 0; tries < 30; tries += 1) {
        const now = await take();
        if (now.equals(before)) return;
        before = now;
      }
    },
    /** What has exactly the colour [red, green, blue] on the screen: {left, top, right, bottom}. */
    async find([red, green, blue]) {
      const { stdout } = await run('maim', ['-f', 'bmp'], { env, encoding: 'buffer', maxBuffer: 2 ** 24 });
      const [start, width, height, depth] = [stdout.readUInt32LE(10), stdout.readInt32LE(18), stdout.readInt32LE(22), stdout.readUInt16LE(28) / 8];
      const line = Math.ceil((width * depth) / 4) * 4;
      const [xs, ys] = [[], []];
      for (let y = 0; y < Math.abs(height); y += 1) {
        for (let x = 0; x < width; x += 1) {
          const at = start + y * line + x * depth;
          if (stdout[at] !== blue || stdout[at + 1] !== green || stdout[at + 2] !== red) continue;
          xs.push(x);
          ys.push(height > 0 ? height - 1 - y : y);
        }
      }
      const [left, right] = xs.reduce(([least, most], x) => [Math.min(least, x), Math.max(most, x)], [Infinity, -Infinity]);
      const [top, bottom] = ys.reduce(([least, most], y) => [Math.min(least, y), Math.max(most, y)], [Infinity, -Infinity]);
      return { left, top, right, bottom };
    },
    stop() {
      for (const helper of [...helpers, xvfb]) helper.kill();
    },
  };
}

/** The program on a desktop, with a home of its own. */
export async function startDesktopProgram(desktop, { home, binary = 'build/dev/src/glaceron' } = {}) {
  const ownHome = home ?? (await mkdtemp(join(tmpdir(), 'glaceron-home-')));
  const data = join(ownHome, '.local/share/Glaceron', NAME);
  const config = join(ownHome, '.config/Glaceron', NAME);
  const env = { ...desktop.env, HOME: ownHome, LC_ALL: 'C.UTF-8' };
  for (const key of ['XDG_CONFIG_HOME', 'XDG_DATA_HOME', 'DBUS_SESSION_BUS_ADDRESS']) delete env[key];
  env.XDG_RUNTIME_DIR = join(ownHome, '.run');
  await mkdir(env.XDG_RUNTIME_DIR, { recursive: true, mode: 0o700 });
  let child;

  function start(...args) {
    child = spawn(join(root, binary), args, { env, stdio: ['ignore', 'inherit', 'inherit'] });
    return child;
  }

  /** Ends the running program by the signal, if it has not ended by itself. */
  async function stop(signal = 'SIGTERM') {
    if (child.exitCode !== null || child.signalCode !== null) return;
    child.kill(signal);
    await once(child, 'exit');
  }

  /** Another start of the program beside the running one: its exit code. */
  async function startAgain() {
    const second = spawn(join(root, binary), [], { env, stdio: 'inherit' });
    const [code] = await once(second, 'exit');
    return code;
  }

  return {
    home: ownHome,
    start,
    /** As if the user had once said yes to the extensions with the origins; before the start. */
    async approve(origins) {
      await mkdir(config, { recursive: true });
      await writeFile(join(config, 'browser.json'), JSON.stringify({ approved_origins: origins }));
    },
    stop,
    startAgain,
    ended: () => once(child, 'exit'),
    /** The folders of the safes. */
    safes: () => (existsSync(join(data, 'safes')) ? readdirSync(join(data, 'safes')).map((id) => join(data, 'safes', id)) : []),
    /** The files of the items of all safes. */
    items() {
      return this.safes().flatMap((safe) => readdirSync(join(safe, 'content')).map((id) => join(safe, 'content', id)));
    },
    /** What the program has written to its log. */
    log() {
      const folder = join(ownHome, `.${NAME}`, 'log');
      if (!existsSync(folder)) return '';
      return readdirSync(folder).map((file) => readFileSync(join(folder, file), 'utf8')).join('');
    },
    /** Waits until the condition holds; looks again twenty times a second, for twenty seconds. */
    async until(condition, what = condition) {
      const end = Date.now() + 20000;
      while (!(await condition())) {
        if (Date.now() > end) throw new Error(`Waited in vain: ${what}`);
        await setTimeout(50);
      }
    },
    async remove() {
      if (!home) await rm(ownHome, { recursive: true, force: true, maxRetries: 10, retryDelay: 200 });
    },
  };
}
