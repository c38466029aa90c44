// From Enter in quick access to the value in the page, in both browsers: `node bench/fill.mjs`, with the program closed;
// PROGRAM names another than that of the build for development. The real program and browser on a screen of
// their own, real key strokes.

import { spawn } from 'node:child_process';
import { performance } from 'node:perf_hooks';
import { setTimeout } from 'node:timers/promises';
import { BROWSERS, FIREFOX_ORIGIN, buildExtension, launchBrowser } from '../tests/e2e/browser.mjs';
import { startDesktop, startDesktopProgram } from '../tests/e2e/desktop.mjs';
import { startSite } from '../tests/e2e/site.mjs';
import { makeUser } from '../tests/e2e/user.mjs';

const ROUNDS = Number(process.env.ROUNDS ?? 120);
const PASSWORD = 'first Master 1!';
const SECRET = 's3cret-of-the-shop';
const HOST = 'shop.example';
const FORM = `<title>Shop</title><form method=post action=/done><input name=user><input name=pw type=password><button>Log in</button></form>
  <script>
    document.querySelector('[name=pw]').addEventListener('input', ({ target }) => {
      if (target.value) window.filledAt = performance.timeOrigin + performance.now();
    });
  </script>`;

const now = () => performance.timeOrigin + performance.now();
const site = await startSite({ '/': FORM, '/done': 'done' });
const desktop = await startDesktop();
const program = await startDesktopProgram(desktop, { binary: process.env.PROGRAM ?? 'build/dev/src/glaceron' });
const user = makeUser(desktop, program);
const url = `http://${HOST}:${site.port}/`;

// One that runs all the time: to start it takes longer than what is measured.
const keys = spawn('xdotool', ['-'], { env: desktop.env, stdio: ['pipe', 'ignore', 'inherit'] });

/** Opens quick access from the page and gives the milliseconds from Enter to the filled password. */
async function round(page) {
  await page.evaluate(() => {
    window.filledAt = 0;
    for (const input of document.querySelectorAll('input')) input.value = '';
  });
  await desktop.press('alt+shift+y');
  const window = await desktop.activate('^Quick access$');
  await setTimeout(150);
  const start = now();
  keys.stdin.write('key Return\n');
  await page.waitForFunction('window.filledAt > 0', { polling: 10, timeout: 10000 });
  const end = await page.evaluate('window.filledAt');
  if (await desktop.isVisible('^Quick access$')) throw new Error(`Quick access stays: ${window}`);
  const value = await page.$eval('[name=pw]', (input) => input.value);
  if (value !== SECRET) throw new Error(`Filled: ${value}`);
  return end - start;
}

function print(kind, times) {
  const sorted = [...times].sort((a, b) => a - b);
  const at = (share) => sorted[Math.min(sorted.length - 1, Math.floor(sorted.length * share))].toFixed(1);
  console.log(`${kind}: Enter to the filled page, ${times.length} times: median ${at(0.5)} ms, 90 % ${at(0.9)} ms, 99 % ${at(0.99)} ms, longest ${at(1)} ms`);
}

let browser;
try {
  buildExtension();
  await program.approve([FIREFOX_ORIGIN]);
  program.start();
  await user.lockedWindow();
  await user.createSafe('Personal', PASSWORD, 'the first one');
  await user.addLogin({ title: 'Shop', userName: 'ana@example.org', password: SECRET, url });
  for (const kind of BROWSERS) {
    browser = await launchBrowser(kind, { hosts: [HOST], headless: false, env: desktop.env });
    await browser.connected();
    const page = await browser.browser.newPage();
    await page.goto(url);
    await page.bringToFront();
    await desktop.activate('^Shop');
    const times = [];
    for (let i = 0; i < ROUNDS; i += 1) times.push(await round(page));
    print(kind, times);
    await browser.close();
    browser = undefined;
  }
} finally {
  keys.stdin.end();
  await browser?.close();
  await program.stop('SIGKILL');
  await program.remove();
  desktop.stop();
  site.close();
}
