import assert from 'node:assert/strict';
import { test } from 'node:test';
import { WINDOW, startBrowser } from './fake-browser.mjs';

const LOGIN = '<form><input name=user><input name=pw type=password></form>';
const CHANGE = '<form><input name=old type=password><input name=new type=password></form>';
const WEB = {
  'https://shop.example/login': LOGIN,
  'https://shop.example/again': `<p>Wrong</p>${LOGIN}`,
  'https://shop.example/in': '<p>Welcome</p>',
  'https://shop.example/change': CHANGE,
  'https://my.shop.example/in': { html: '<p>Welcome</p>', frames: [['https://my.shop.example/frame', 'https://my.shop.example/']] },
  'https://my.shop.example/frame': LOGIN,
  'https://bank.example/login': LOGIN,
  'https://shop.example/endless': { html: '<p>Welcome</p>', endless: true },
  'https://shop.example/endless-again': { html: LOGIN, endless: true },
  'https://shop.example/hanging': { html: '<p>Welcome</p>', busy: true },
  'https://shop.example/advertised': { html: '<p>Welcome</p>', frames: [['https://shop.example/hanging', 'https://shop.example/']] },
};
const SHAPE = { passwords: 1, lines: 1, fresh: false };
const submitted = (more) => ({ submitted: { title: 'Shop', fields: [], ...more }, shape: SHAPE, around: [] });

async function sent(browser, tabId = 1, more = {}) {
  const port = browser.openLoginPort(tabId);
  await port.say({ ...submitted(), ...more });
  const { payload } = browser.received().find(({ action }) => action === 'loginSubmitted');
  return { port, id: payload.captureId, login: payload.login };
}

async function opened(url = 'https://shop.example/login', options = {}) {
  const browser = await startBrowser(WEB, options);
  browser.addTab(url);
  await browser.clock.advance(0);
  return browser;
}

const told = (browser) => browser.received().map(({ action, payload }) => [action, payload.login?.captureId ?? payload.captureId]);

// Where the tab goes after a login was sent from the login page, and what the program is told then.
const OUTCOMES = [
  ['https://shop.example/in', 'saveLogin'],
  ['https://shop.example/again', 'loginDropped'],
  ['https://shop.example/change', 'saveLogin'],
  ['https://my.shop.example/in', 'loginDropped'], // asked for again in a frame
  ['https://bank.example/login', 'saveLogin'], // another site's form
  ['https://nowhere.example/', 'loginDropped'],
  ['https://shop.example/advertised', 'saveLogin'], // a frame hangs
];
for (const [url, action] of OUTCOMES) {
  test(`the page after a login: ${url}`, async () => {
    const browser = await opened();
    const { port, id, login } = await sent(browser);
    assert.deepEqual([login.url, login.domain, login.faviconUrl], ['https://shop.example/login', 'shop.example', 'https://shop.example/i.png']);
    await browser.go(1, url);
    await port.end();
    await browser.clock.advance(30000);
    const { left: posx, top: posy, width, height } = WINDOW;
    const payload = action === 'saveLogin' ? { login: { captureId: id, posx, posy, width, height } } : { captureId: id };
    assert.deepEqual(browser.received().map((frame) => [frame.action, frame.payload]), [[action, payload]]);
    await browser.clock.advance(60000);
    assert.deepEqual(told(browser), []);
  });
}

// Of pages that never finish loading one look at last tells.
const ENDLESS = [['endless', 'saveLogin'], ['endless-again', 'loginDropped'], ['hanging', 'loginDropped']];
for (const [page, action] of ENDLESS) {
  test(`the page after a login never ends: ${page}`, async () => {
    const browser = await opened();
    const { port, id } = await sent(browser);
    await browser.go(1, `https://shop.example/${page}`);
    await port.end();
    await browser.clock.advance(page === 'hanging' ? 5000 : 39000);
    assert.deepEqual(told(browser), []);
    await browser.clock.advance(40000);
    assert.deepEqual(told(browser), [[action, id]]);
  });
}

const CLOSED = [['popup', 2900, 'saveLogin'], ['popup', 3100, 'loginDropped'], ['normal', 0, 'loginDropped']];
for (const [type, wait, action] of CLOSED) {
  test(`a window (${type}) that closes ${wait} ms after a login was sent from it`, async () => {
    const browser = await opened('https://shop.example/login', { windowType: type });
    const { port, id } = await sent(browser);
    await browser.clock.advance(wait);
    await port.end();
    await browser.closeTab(1);
    assert.deepEqual(told(browser), [[action, id]]);
  });
}

test('what the page itself says of its login', async () => {
  const browser = await opened();
  for (const [word, action] of [['accepted', 'saveLogin'], ['dropped', 'loginDropped']]) {
    const { port, id } = await sent(browser);
    await port.say({ [word]: true });
    await port.end();
    assert.deepEqual(told(browser), [[action, id]]);
  }
  const first = await sent(browser);
  await browser.openLoginPort(1).say(submitted()); // sent once more
  assert.deepEqual(told(browser).map(([action, id]) => [action, id === first.id]), [['loginDropped', true], ['loginSubmitted', false]]);
  await first.port.say({ accepted: true });
  assert.deepEqual(told(browser), []);
  await browser.closeTab(1);
  assert.deepEqual(told(browser).map(([action]) => action), ['loginDropped']);
});

test('a login in a frame is called as its page is', async () => {
  const browser = await opened();
  await browser.openLoginPort(1, 'https://shop.example', 3).say(submitted({ siteName: 'Inner' }));
  assert.equal(browser.received()[0].payload.login.siteName, 'The shop');
});

test('frames of another site report nothing', async () => {
  const browser = await opened();
  await browser.openLoginPort(1, 'https://bank.example').say(submitted());
  await browser.openLoginPort(1, 'http://shop.example').say(submitted());
  await browser.openLoginPort(1).say({ ...submitted(), around: ['https://shop.example', 'https://bank.example'] });
  assert.deepEqual(told(browser), []);
});

test('the user name of a page before goes with the password, for its own site and for a while', async () => {
  const browser = await opened();
  await browser.openLoginPort(1).say({ name: 'ana' });
  assert.equal((await sent(browser)).login.login, 'ana');
  assert.equal((await sent(browser, 1, submitted({ login: 'bob' }))).login.login, 'bob');
  await browser.go(1, 'https://bank.example/login');
  assert.equal((await sent(browser)).login.login, undefined);
});
