// What a user types into pages ends in the safe: the real program, real browsers, real key strokes in both.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { test } from 'node:test';
import { BROWSERS } from './browser.mjs';
import { makeStage } from './stage.mjs';

const OFFER = '^Save login$';
const SECRETS = ['the-first-1', 'the-second-2', 'of-two-steps-3', 'of-one-page-4', 'never-mind-5', 'in-the-dark-6', 'locked-7', 'framed-8'];

// Whatever begins with "wrong" leads back to the page that asked.
const go = (page) => `onsubmit="this.action = /^wrong/.test(this.pw.value) ? '${page}' : '/home'"`;
const PASSWORD = '<input id=pw name=pw type=password>';
const LOGIN = `<title>Sign in | Every Shop</title><form method=post ${go('/login')}><label>User <input id=user name=user></label>
  ${PASSWORD}<button>Log in</button></form>`;
const ONE_PAGE = `<title>App</title><div id=app><input id=user placeholder="E-mail">${PASSWORD}<button id=send>Log in</button></div>
  <script>app.onclick = async ({ target }) => {
    if (target.id !== 'send') return;
    const { value } = pw;
    await fetch('/api', { method: 'POST' });
    app.innerHTML = /^wrong/.test(value) ? app.innerHTML : '<h1>Hello</h1>';
  }</script>`;
// Written anew once it is there: its window forgets who listened.
const REWRITTEN = `<script>onload = () => setTimeout(() => {
  document.open();
  document.write(${JSON.stringify(ONE_PAGE).replaceAll('</', '<\\/')});
  document.close();
})</script>`;
const DARK = `<title>Dark</title><div id=host></div><script>
  const root = host.attachShadow({ mode: 'closed' });
  root.innerHTML = '<form><input name=user value=dora><input name=pw type=password><button>Log in</button></form>';
  root.querySelector('form').onsubmit = (event) => { event.preventDefault(); host.remove(); };
</script>`;
// The page's own script types and sends, with events that the browser calls trusted.
const FORGED = `<form method=post action=/home><input name=user value=mallory><input id=pw name=pw type=password></form><script>
  onload = () => setTimeout(() => {
    pw.focus();
    document.execCommand('insertText', false, 'forged');
    document.forms[0].requestSubmit();
  });
</script>`;
const FRAMED = '<form method=post action=/home target=_top><input id=user name=user><input id=pw name=pw type=password><button>Log in</button></form>';
const PAGES = {
  '/framed': FRAMED,
  '/around': (port) => `<title>Around</title><script>document.write('<iframe src="' + location.hash.slice(1).replace('PORT', ${port}) + '"></iframe>')</script>`,
  '/login': LOGIN,
  '/forged': FORGED,
  '/change': `<title>Change</title><form method=post action=/home><input id=old name=old type=password placeholder="Current password">
    <input id=new name=new type=password placeholder="New password" autocomplete=new-password>
    <input id=again name=again type=password placeholder="Repeat it" autocomplete=new-password><button>Save</button></form>`,
  '/steps': '<form method=post action=/second><input id=user name=email type=email><button>Next</button></form>',
  '/second': `<form method=post action=/code>${PASSWORD}<button>Log in</button></form>`,
  '/code': '<form><input name=otp type=password><button>Go on</button></form>',
  '/app': REWRITTEN,
  '/dark': DARK,
  '/home': '<h1>Hello</h1>',
  '/api': '{}',
};

const limit = { timeout: 120000 };
const shops = BROWSERS.flatMap((kind) => [`shop-of-${kind}.example`, `id.shop-of-${kind}.example`, `not-of-${kind}.example`,
  ...[1, 2, 3, 4, 5, 6, 7, 8, 9].map((turn) => `last${turn}-of-${kind}.example`)]);
const stage = makeStage({ pages: PAGES, hosts: shops });

const isOffered = () => stage.desktop.isVisible(OFFER);

/** Waits for the window with the offer and presses keys in it; then there is none, and none behind it. */
async function answer(...keys) {
  await stage.desktop.activate(OFFER);
  await stage.desktop.press(...keys);
  await stage.program.until(async () => !(await isOffered()), 'the end of the offer');
}

test('a safe', limit, () => stage.user.createSafe('Personal', 'first Master 1!', 'the first'));

stage.inEachBrowser((kind) => {
  const [shop, other] = [`shop-of-${kind}.example`, `not-of-${kind}.example`];
  const pages = new Map();
  let page;
  let turn = 0;

  async function open(path, host = shop) {
    const tab = host.startsWith('last') ? 'last' : shop;
    if (!pages.has(tab)) pages.set(tab, await stage.browser.browser.newPage());
    page = pages.get(tab);
    await page.bringToFront();
    await page.goto(stage.at(path, host));
  }

  async function type(texts, end = () => page.keyboard.press('Enter')) {
    for (const [selector, text] of Object.entries(texts)) {
      await page.waitForSelector(selector);
      await page.evaluate((name) => document.querySelector(name).select(), selector);
      await page.keyboard.type(text);
    }
    await end();
  }

  const logIn = (user, password) => type({ '#user': user, '#pw': password });
  // Not asked inside of the page, which may be leaving just then.
  const arrived = (path) => stage.program.until(() => new URL(page.url()).pathname === path, path);
  const count = () => stage.program.items().length;

  // What was not offered before a login that was sent after it is never offered. Another site each
  // time: one that is declined often is not offered any more.
  async function nothingIsOffered() {
    await open('/login', `last${(turn += 1)}-of-${kind}.example`);
    await logIn('last', SECRETS[4]);
    await answer('Escape');
  }

  test('a login is added once its page has accepted it, and is known then', limit, async () => {
    await open('/login');
    await logIn('ana', 'wrong');
    await arrived('/login');
    await nothingIsOffered();
    const before = count();
    await open('/login');
    await stage.user.openWindow();
    await logIn('ana', SECRETS[0]);
    await stage.program.until(isOffered, 'the offer');
    assert.equal(await stage.desktop.activeTitle(), 'Personal - Glaceron Password Manager');
    if (process.env.PICTURES) await stage.desktop.picture(`${process.env.PICTURES}/save-${kind}.png`);
    await answer('Return');
    await stage.program.until(() => count() === before + 1, 'the login on the disk');
    await open('/login');
    await logIn('ANA', SECRETS[0]);
    await arrived('/home');
    await nothingIsOffered();
  });

  test('a changed password updates it', limit, async () => {
    const before = count();
    await open('/change');
    await type({ '#old': SECRETS[0], '#new': SECRETS[1], '#again': SECRETS[1] });
    await answer('Return');
    assert.equal(count(), before + 1, 'the former one lies in the trash');
    await open('/login');
    await logIn('ana', SECRETS[1]);
    await arrived('/home');
    await nothingIsOffered();
  });

  test('what a page types and sends by itself is not offered', limit, async () => {
    await open('/forged');
    await arrived('/home');
    await nothingIsOffered();
  });

  test('user name and password of two pages, and of one that is never left', limit, async () => {
    for (const expected of [() => answer('Return'), nothingIsOffered]) {
      await open('/steps');
      await type({ '#user': 'bob@mail.example' });
      await page.waitForSelector('#pw');
      await type({ '#pw': SECRETS[2] });
      await arrived('/code');
      await expected();
    }
    const send = async () => { await page.focus('#send'); await page.keyboard.press('Enter'); };
    await open('/app');
    await page.waitForSelector('html > div'); // the crystals
    await type({ '#user': 'carl@mail.example', '#pw': 'wrong' }, send);
    await page.waitForFunction(() => document.querySelector('#pw').value === '');
    await type({ '#user': 'carl@mail.example', '#pw': SECRETS[3] }, send);
    await answer('Escape');
  });

  test('a login in a closed shadow tree', limit, async () => {
    await open('/dark');
    await page.evaluate(() => root.querySelector('[name=pw]').focus());
    await page.keyboard.type(SECRETS[5]);
    await page.keyboard.press('Enter');
    await answer('Escape');
  });

  test('a login in a frame of the page\'s site is offered, in one of another site it is not', limit, async () => {
    for (const [host, end] of [[other, nothingIsOffered], [`id.${shop}`, () => answer('Escape')]]) {
      await open(`/around#http://${host}:PORT/framed`);
      const frame = await (await page.waitForSelector('iframe')).contentFrame();
      await frame.waitForSelector('#pw');
      await frame.type('#user', 'gina');
      await frame.type('#pw', SECRETS[7]);
      await page.keyboard.press('Enter');
      await arrived('/home');
      await end();
    }
  });

  test('never for a site', limit, async () => {
    await open('/login', other);
    await logIn('eve', SECRETS[4]);
    await answer('shift+Tab', 'shift+Tab', 'space');
    await open('/login', other);
    await logIn('eve', 'another');
    await arrived('/home');
    await nothingIsOffered();
  });

  test('on a locked safe the master password is asked for in place', limit, async () => {
    await stage.user.lock();
    await open('/login');
    await logIn('fred', SECRETS[6]);
    await stage.desktop.activate(OFFER);
    const before = count();
    await stage.desktop.type('first Master 1!');
    await stage.desktop.press('Return');
    await stage.user.openWindow();
    await answer('Return');
    assert.equal(count(), before + 1);
  });
});

test('nothing that was typed lies about in the user\'s home', limit, () => {
  execFileSync('grep', ['-rqF', 'the first', stage.program.home]); // what is no secret is found
  for (const text of [...SECRETS, 'bob@mail.example']) {
    assert.throws(() => execFileSync('grep', ['-rqF', text, stage.program.home]), ({ status }) => status === 1, text);
  }
});
