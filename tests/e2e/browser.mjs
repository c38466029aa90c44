import { execFileSync } from 'node:child_process';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { setTimeout } from 'node:timers/promises';
import { fileURLToPath } from 'node:url';
import puppeteer from 'puppeteer-core';

const root = fileURLToPath(new URL('../..', import.meta.url));

const CHROMIUM = process.env.CHROMIUM ?? '/usr/bin/chromium';
const FLAGS = [
  '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync',
];

/** Builds the extension where it is out of date; returns the folder that Chromium loads. */
export function buildExtension() {
  execFileSync(join(root, 'scripts/build-extension'), { stdio: 'inherit' });
  return join(root, 'extension/dist/chromium');
}

/**
 * Starts Chromium with the extension. Without profileDir it gets a profile of its own, removed by close().
 * hosts: names that lead to this machine. Returns {browser, extensionId, connected, close}.
 */
export async function launchChromium({ profileDir, extensionDir, hosts = [], headless = true, args = [] }) {
  const userDataDir = profileDir ?? (await mkdtemp(join(tmpdir(), 'glaceron-chromium-')));
  const rules = hosts.map((host) => `MAP ${host} 127.0.0.1`).join(', ');
  // Over the pipe the background script keeps the life span that it has for a user.
  const browser = await puppeteer.launch({
    executablePath: CHROMIUM,
    pipe: true,
    enableExtensions: true,
    headless,
    userDataDir,
    args: [...FLAGS, ...(rules ? [`--host-resolver-rules=${rules}`] : []), ...args],
  });
  const extensionId = await browser.installExtension(extensionDir);

  /** Waits until the toolbar button shows that the program has answered. */
  async function connected() {
    const target = await browser.waitForTarget((each) => each.type() === 'service_worker' && each.url().includes(extensionId));
    const worker = await target.worker();
    // A worker that is just starting has no extension interfaces yet.
    const isConnected = () => worker.evaluate(async () => {
      const { action, i18n } = globalThis.chrome ?? {};
      return Boolean(action) && (await action.getTitle({})) === i18n.getMessage('stateConnected');
    });
    const end = Date.now() + 40000;
    while (!(await isConnected())) {
      if (Date.now() > end) throw new Error('The extension did not connect.');
      await setTimeout(50);
    }
  }

  async function close() {
    await browser.close();
    if (!profileDir) await rm(userDataDir, { recursive: true, force: true, maxRetries: 10, retryDelay: 200 });
  }

  return { browser, extensionId, connected, close };
}
