// The main job without a person: create a safe, add a login, lock, unlock, fill and submit it in a page of Chromium.
// Works on a profile that it throws away, and leaves pictures.

import { mkdtemp } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { setTimeout } from 'node:timers/promises';
import { launchBrowser } from './browser.mjs';
import { startDesktop, startDesktopProgram } from './desktop.mjs';
import { startSite } from './site.mjs';
import { makeUser } from './user.mjs';

const PASSWORD = 'a Demo password 1!';
const LOGIN = { title: 'Cloudmail', userName: 'ana.martin', password: 'q7V<m2X,8Rz!Kd' };
const PAGE = `<!doctype html><title>Sign in</title>
  <style>
    body { font: 15px sans-serif; background: #c9d5dd; display: grid; place-items: center; height: 95vh; }
    form { background: #fff; border-radius: 12px; padding: 32px; width: 340px; display: grid; gap: 12px; }
    h1 { font-size: 22px; margin: 0; } input, button { font: inherit; padding: 10px; border-radius: 6px; border: 1px solid #b8c4cc; }
    button { background: #333; color: #fff; } output { color: #0c7a58; min-height: 1.2em; }
  </style>
  <form><h1>Sign in</h1><label for=email>User name</label><input id=email name=username autocomplete=username>
  <label for=password>Password</label><input id=password name=password type=password>
  <button>Sign in</button><output></output></form>
  <script>
    document.querySelector('form').onsubmit = async (event) => {
      event.preventDefault();
      await fetch('/session', { method: 'POST', body: new URLSearchParams(new FormData(event.target)) });
      document.querySelector('output').textContent = 'Signed in as ' + event.target.username.value;
    };
  </script>`;

/** Fails after half a minute. */
async function overdue() {
  await setTimeout(30000, undefined, { ref: false });
  throw new Error('The page received nothing within half a minute.');
}

const say = (text) => console.log(text);
const pictures = await mkdtemp(join(tmpdir(), 'glaceron-demo-'));
const picture = (name) => join(pictures, `${name}.png`);

const site = await startSite({ '/': PAGE, '/session': 'ok' });
const desktop = await startDesktop();
const program = await startDesktopProgram(desktop, { binary: 'build/release/src/glaceron' });
const user = makeUser(desktop, program);
let chromium;
try {
  program.start();
  await user.createSafe('Personal', PASSWORD, 'the usual, with the year');
  say('Created the safe "Personal".');
  await user.addLogin({ ...LOGIN, url: `http://mail.cloudmail.example:${site.port}/` });
  say(`Added the login "${LOGIN.title}".`);
  await desktop.picture(picture('open-safe'), await user.openWindow());
  await user.lock();
  await desktop.picture(picture('lock-page'), await user.lockedWindow());
  await user.unlock(PASSWORD);
  say('Locked it and unlocked it again.');

  chromium = await launchBrowser('chromium', { hosts: ['mail.cloudmail.example'] });
  await chromium.connected();
  await user.logIn(LOGIN.title);
  const { fields } = await Promise.race([site.nextPost(), overdue()]);
  if (fields.username !== LOGIN.userName || fields.password !== LOGIN.password) throw new Error('The page received other values.');
  const page = (await chromium.browser.pages()).find((each) => each.url().includes('cloudmail'));
  await page.waitForFunction(() => document.querySelector('output').textContent !== '');
  await page.screenshot({ path: picture('filled-page') });
  say('Filled the login into a page of Chromium and submitted it; the page received both values.');
  for (const name of ['lock-page', 'open-safe', 'filled-page']) say(picture(name));
} finally {
  await chromium?.close();
  await program.stop('SIGKILL');
  await program.remove();
  desktop.stop();
  site.close();
}
