// From the first start to a filled login: the real program under a screen of its own, real key strokes, the real browser.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import WebSocket from 'ws';
import { reactPages } from './react.mjs';
import { makeStage } from './stage.mjs';

const PASSWORD = 'first Master 1!';
const SECRET = 's3cret-of-the-shop';
const LINK = 'ws://127.0.0.1:7899';

const FORM = `<form method=post action=/done><input name=user><input name=pw type=password><button>Log in</button></form>`;

let visitsOfAway = 0;
const PAGES = {
  '/plain': FORM,
  ...reactPages(),
  '/frame': '<iframe src=/plain></iframe>',
  '/steps': '<form method=post action=/second><input name=user type=email><button>Next</button></form>',
  '/second': '<form method=post action=/done><input name=pw type=password><button>Log in</button></form>',
  '/formless': `<input id=user><input id=pw type=password><button onclick="fetch('/done', { method: 'POST',
    body: new URLSearchParams({ user: user.value, pw: pw.value }) })">Log in</button>`,
  '/away': (port) => {
    visitsOfAway += 1;
    return `<script>location.replace('http://other.example:${port}/trap')</script>`;
  },
  '/trap': `${FORM}<script>document.oninput = ({ target }) => fetch('/leak', { method: 'POST', body: new URLSearchParams({ value: target.value }) })</script>`,
  '/done': 'done',
};

const limit = { timeout: 60000 };
const stage = makeStage({ pages: PAGES, hosts: ['shop.example', 'other.example'] });
const shop = (path) => stage.at(path);
const shot = (name) => process.env.PICTURES && stage.desktop.picture(`${process.env.PICTURES}/${name}.png`);

test('a new user creates a safe', limit, async () => {
  await shot('1-create');
  await stage.user.createSafe('Personal', PASSWORD, 'the first one');
  const [safe] = stage.program.safes();
  const description = JSON.parse(readFileSync(`${safe}/safe.meta`, 'utf8'));
  assert.deepEqual([description.name, description.hint], ['Personal', 'the first one']);
});

test('logins are added', limit, async () => {
  for (const path of ['plain', 'react', 'frame', 'steps', 'formless', 'away']) {
    await stage.user.addLogin({ title: path, userName: `ana-${path}@example.org`, password: SECRET, url: shop(`/${path}`) });
  }
  await shot('2-open');
});

test('a wrong password says so and loses nothing, the right one opens', limit, async () => {
  await stage.user.lock();
  const files = stage.program.items();
  await stage.user.enterPassword('first master 1!');
  await stage.program.until(() => stage.program.log().includes("Pass id doesn't match specified password"), 'the refusal in the log');
  await shot('3-wrong');
  assert.equal(await stage.desktop.isVisible('^Personal - '), false);
  await stage.user.unlock(PASSWORD);
  assert.deepEqual(stage.program.items(), files);
});

stage.inEachBrowser(() => {
  for (const path of ['plain', 'react', 'frame', 'formless']) {
    test(`a login is filled and sent: ${path}`, limit, async () => {
      await stage.user.logIn(path);
      assert.deepEqual(await stage.site.nextPost(), { path: '/done', fields: { user: `ana-${path}@example.org`, pw: SECRET } });
    });
  }

  test('a login whose password is asked for on a second page', limit, async () => {
    await stage.user.logIn('steps');
    assert.deepEqual(await stage.site.nextPost(), { path: '/second', fields: { user: 'ana-steps@example.org' } });
    assert.deepEqual(await stage.site.nextPost(), { path: '/done', fields: { pw: SECRET } });
  });

  test('a page of another site gets nothing', limit, async () => {
    visitsOfAway = 0;
    await stage.user.logIn('away');
    // The login page is looked for once more, and leads to the other site again.
    await stage.program.until(() => visitsOfAway >= 2, 'the second look at the page');
    await stage.user.logIn('plain');
    assert.deepEqual(await stage.site.nextPost(), { path: '/done', fields: { user: 'ana-plain@example.org', pw: SECRET } });
  });

  test('quick access opens at a field, unlocks in place and fills', limit, async () => {
    const page = await stage.browser.browser.newPage();
    await page.goto(shop('/plain'));
    await stage.user.lock();
    const field = await page.$('[name=pw]');
    // The crystal comes a moment after the page.
    await stage.program.until(async () => {
      const { x, y, width, height } = await field.boundingBox();
      await page.mouse.click(x + width - 14, y + height / 2);
      return stage.desktop.isVisible('^Quick access$');
    }, 'quick access');
    await stage.user.quickAccess();
    await shot('4-quick-locked');
    await stage.desktop.type(PASSWORD);
    await stage.desktop.press('Return');
    await stage.program.until(() => stage.desktop.isVisible('^Personal - '), 'the open safe');
    await stage.user.quickAccess();
    await stage.desktop.type('plain');
    await shot('5-quick');
    await stage.desktop.press('Return');
    await page.waitForFunction((value) => document.querySelector('[name=pw]').value === value, {}, SECRET);
    assert.equal(await page.$eval('[name=user]', ({ value }) => value), 'ana-plain@example.org');
    assert.equal(await stage.desktop.isVisible('^Quick access$'), false);
    await page.close();
  });

  test('after a kill and a restart the extension finds the program again', limit, async () => {
    await stage.program.stop('SIGKILL');
    stage.program.start();
    await stage.user.unlock(PASSWORD);
    await stage.browser.connected();
    await stage.user.logIn('plain');
    assert.deepEqual(await stage.site.nextPost(), { path: '/done', fields: { user: 'ana-plain@example.org', pw: SECRET } });
  });

  test('a page cannot pose as the extension', limit, async () => {
    const page = await stage.browser.browser.newPage();
    await page.goto(shop('/done'));
    const outcome = await page.evaluate((link) => new Promise((resolve) => {
      const socket = new WebSocket(link);
      socket.onopen = () => resolve('open');
      socket.onerror = () => resolve('refused');
    }), LINK);
    assert.equal(outcome, 'refused');
    await page.close();
    // The browser may have kept the page from trying: the same request, made by hand.
    const socket = new WebSocket(LINK, { origin: shop('').slice(0, -1) });
    const error = await new Promise((resolve) => socket.on('error', resolve).on('open', () => resolve(null)));
    assert.match(String(error), /403/);
  });
});

test('an answer to an older request is not used', limit, async () => {
  const socket = new WebSocket(LINK);
  const frames = [];
  socket.on('message', (data) => frames.push(JSON.parse(data)));
  const arrived = (count) => stage.program.until(() => frames.length >= count, `${count} frames`);
  const send = (action, payload) => socket.send(JSON.stringify({ action, payload, version: '1.1.32', bundleId: 'glaceron.chrome' }));
  const answer = ({ reason, itemid, timestamp }, opid) => send('collectDocumentResults', {
    reason, itemid, timestamp, tabUrl: shop('/plain'),
    result: { docinfo: { forms: [{ formUid: 'form', fields: [{ opid, gpmid: opid, type: 'password', visible: true }] }] } },
  });
  await new Promise((resolve) => socket.on('open', resolve));
  send('hello');
  await arrived(1);
  await stage.user.logIn('plain');
  await arrived(2);
  await stage.user.logIn('plain');
  await arrived(3);
  const [, first, second] = frames.map(({ payload }) => payload);
  assert.equal(first.itemid, second.itemid);
  answer(first, 'stale');
  answer(second, 'fresh');
  await arrived(4);
  assert.deepEqual(frames[3].payload.elements, [{ opid: 'fresh', gpmid: 'fresh', value: SECRET }]);
  socket.close();
});

test('closing the window leaves the program in the tray, a second start brings it back', limit, async () => {
  const window = await stage.user.openWindow();
  await stage.desktop.press('alt+F4');
  await stage.program.until(async () => !(await stage.desktop.isVisible('Glaceron Password Manager$')), 'the window to go');
  assert.equal(await stage.program.startAgain(), 0);
  assert.equal(await stage.user.openWindow(), window);
});

test('no secret lies about in the user\'s home', limit, () => {
  execFileSync('grep', ['-rqF', 'the first one', stage.program.home]); // what is no secret is found
  for (const text of [SECRET, PASSWORD, 'ana-plain']) {
    assert.throws(() => execFileSync('grep', ['-rqF', text, stage.program.home]), ({ status }) => status === 1);
  }
});

test('Exit in the tray ends the program', limit, async () => {
  const ended = stage.program.ended();
  await stage.desktop.click(14, 14, 3);
  await stage.desktop.press('Up', 'Return');
  assert.deepEqual(await ended, [0, null]);
});
