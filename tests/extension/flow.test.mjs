import assert from 'node:assert/strict';
import { test } from 'node:test';
import { WINDOW, startBrowser } from './fake-browser.mjs';
import { idle } from './clock.mjs';

const LOGIN = '<title>Log in</title><form><input name=user><input name=pw type=password></form>';
const USER = '<form><input name=user></form>';
const PASSWORD = '<form><input name=pw type=password></form>';
const WEB = {
  'https://shop.example/': '<h1>Welcome</h1>',
  'https://shop.example/login': LOGIN,
  'https://shop.example/user': USER,
  'https://shop.example/password': PASSWORD,
  'https://other.example/': PASSWORD,
  'http://shop.example/login': LOGIN,
};
const SHOP = 'https://shop.example/login';

const request = (openmode, url = SHOP, more = {}) => ({ reason: 'login', itemid: 'i1', timestamp: '1700000000001', url, openmode, ...more });
const fieldsOf = ({ result: { docinfo } }) => [...docinfo.forms.flatMap(({ fields }) => fields), ...docinfo.elements];

function fillOf({ payload }, values, more) {
  const fields = fieldsOf(payload).filter(({ name }) => name in values);
  return {
    reason: 'login', formUid: payload.result.docinfo.forms[0]?.formUid ?? 'none', ...more,
    elements: fields.map(({ opid, gpmid, name }) => ({ opid, gpmid, value: values[name] })),
  };
}

async function browserAt(url, web = WEB, options = {}) {
  const browser = await startBrowser({ ...WEB, ...web }, options);
  const { id } = browser.addTab(url);
  if (options.manual) await browser.arrive(id);
  await idle();
  return { browser, id };
}

/** The page changes itself. */
async function draw(browser, tabId, html) {
  browser.documentOf(tabId).body.innerHTML = html;
  await idle();
  await browser.clock.advance(100);
  await idle();
}

async function reportOf(browser, payload) {
  await browser.command('getDocumentData', payload);
  const [report, ...more] = browser.received();
  assert.deepEqual(more, []);
  return report;
}

test('a report answers its request and describes the page', async () => {
  const { browser, id } = await browserAt(SHOP);
  const { action, payload } = await reportOf(browser, request('currentNoReload', SHOP, { request_id: 'r7' }));
  const { result, ...about } = payload;
  assert.equal(action, 'collectDocumentResults');
  assert.deepEqual(about, { reason: 'login', itemid: 'i1', timestamp: '1700000000001', request_id: 'r7', openmode: 'currentNoReload', tabUrl: SHOP });
  assert.deepEqual([result.docinfo.title, result.docinfo.url], ['Log in', SHOP]);
  assert.deepEqual(fieldsOf(payload).map(({ name }) => name), ['user', 'pw']);
  assert.ok(fieldsOf(payload)[0].opid.startsWith(`${id}:0:`));
});

const PLACES = [
  ['currentNoReload', SHOP, 1, 'https://shop.example/', 0],
  ['current', SHOP, 1, SHOP, 2],
  ['current', 'https://shop.example/#part', 1, 'https://shop.example/', 0],
  ['newtab', SHOP, 2, SHOP, 2],
  ['window', SHOP, 2, SHOP, 2],
];

test('each open mode reports the tab that it names', async () => {
  for (const [openmode, url, tabId, address, count] of PLACES) {
    const { browser } = await browserAt('https://shop.example/');
    const { payload } = await reportOf(browser, request(openmode, url));
    assert.deepEqual([payload.tabUrl, browser.address(tabId), fieldsOf(payload).length], [address, address, count], openmode);
  }
});

test('a page of another site, or without the encryption of the login\'s, shows the program no field', async () => {
  for (const address of ['https://other.example/', 'http://shop.example/login']) {
    const { browser } = await browserAt(address);
    const { payload } = await reportOf(browser, request('currentNoReload'));
    assert.deepEqual([payload.tabUrl, fieldsOf(payload)], [address, []]);
  }
});

test('no answer comes for a page that does not load, closes, or is no web page', async () => {
  for (const url of ['https://missing.example/', 'file:///etc/passwd', 'javascript:alert(1)', '']) {
    const { browser } = await browserAt('https://shop.example/');
    assert.equal(await reportOf(browser, request('current', url)), undefined, url);
  }
  const { browser, id } = await browserAt('https://shop.example/', {}, { manual: true });
  await browser.command('getDocumentData', request('current', SHOP));
  await browser.closeTab(id);
  await browser.clock.advance(60000);
  assert.deepEqual(browser.received(), []);
});

test('a request is abandoned for a newer one of its item or its tab', async () => {
  for (const [openmode, newer] of [['newtab', { timestamp: '1700000000002' }], ['current', { itemid: 'i2' }]]) {
    const { browser, id } = await browserAt('https://shop.example/', {}, { manual: true });
    await browser.command('getDocumentData', request(openmode, SHOP));
    await browser.command('getDocumentData', request(openmode, 'https://shop.example/user', newer));
    for (const tab of openmode === 'newtab' ? [2, 3] : [id]) await browser.arrive(tab);
    const { itemid, timestamp, tabUrl } = { ...request(), ...newer, tabUrl: 'https://shop.example/user' };
    assert.deepEqual(browser.received().map(({ payload }) => [payload.itemid, payload.timestamp, payload.tabUrl]), [[itemid, timestamp, tabUrl]]);
  }
});

test('a page that draws its form late is reported when the form is there', async () => {
  const { browser, id } = await browserAt('https://other.example/');
  await browser.command('getDocumentData', request('current', 'https://shop.example/'));
  assert.deepEqual(browser.received(), []);
  await draw(browser, id, USER);
  assert.deepEqual(browser.received().map(({ payload }) => fieldsOf(payload).map(({ name }) => name)), [['user']]);
});

const FRAMED = 'https://shop.example/framed';
const FRAMES = {
  [FRAMED]: {
    html: LOGIN,
    frames: [
      ['https://id.shop.example/f', FRAMED],
      ['https://other.example/', FRAMED],
      ['http://shop.example/login', FRAMED],
      ['https://shop.example/user', 'https://other.example/', FRAMED],
    ],
  },
  // Called like what holds the browser's functions.
  'https://id.shop.example/f': '<input name=inner type=password id=browser>',
};

test('frames of another site or without encryption are neither reported nor filled', async () => {
  const { browser, id } = await browserAt(FRAMED, FRAMES);
  const report = await reportOf(browser, request('currentNoReload'));
  assert.deepEqual(fieldsOf(report.payload).map(({ name }) => name), ['user', 'pw', 'inner']);
  const fill = fillOf(report, { inner: 'secret' }, { formUid: 'none' });
  await browser.command('fillForm', fill);
  assert.equal(browser.documentOf(id, 1).querySelector('input').value, 'secret');
  const elements = fill.elements.map((element) => ({ ...element, opid: element.opid.replace(':1:', ':2:') }));
  await browser.command('fillForm', { ...fill, elements });
  assert.equal(browser.documentOf(id, 2).querySelector('input').value, '');
});

const HIDDEN = 'https://shop.example/hidden';
const PLACED = {
  [HIDDEN]: { html: '', frames: [['https://shop.example/password', HIDDEN]] },
  'https://other.example/framed': { html: '', frames: [['https://other.example/', 'https://other.example/framed']] },
};

test('values reach the reported document alone, and no later one in its place', async () => {
  for (const documentIds of [true, false]) {
    for (const [start, ...later] of [[SHOP, SHOP, 'https://other.example/'], [HIDDEN, HIDDEN, 'https://other.example/framed']]) {
      const { browser, id } = await browserAt(start, PLACED, { documentIds });
      const report = await reportOf(browser, request('currentNoReload'));
      const fill = fillOf(report, { user: 'ana', pw: 'secret' });
      const holders = () => new Set(browser.injections.splice(0).filter(({ args }) => /secret|ana/.test(JSON.stringify(args))).map(({ document }) => document));
      const reported = browser.documentOf(id, start === HIDDEN ? 1 : 0);
      await browser.command('fillForm', fill);
      assert.equal(reported.querySelector('[name=pw]').value, 'secret');
      assert.deepEqual(holders(), new Set([reported]));
      for (const next of later) {
        await browser.go(id, next);
        await browser.command('fillForm', fill);
        assert.equal(holders().size, 0, `${documentIds} ${next}`);
      }
    }
  }
});

test('a frame that answers nothing keeps no other from being reported and filled', async () => {
  const frames = [['https://ads.example/', FRAMED], ['https://shop.example/password', FRAMED], ['https://shop.example/stuck', FRAMED]];
  const busy = { html: PASSWORD, busy: true };
  const web = { 'https://ads.example/': busy, 'https://shop.example/stuck': busy };
  for (const at of [frames.slice(0, 2), frames.slice(1)]) {
    const { browser, id } = await browserAt(FRAMED, { ...web, [FRAMED]: { html: LOGIN, frames: at } });
    await browser.command('getDocumentData', request('currentNoReload'));
    await browser.clock.advance(1000);
    await idle();
    const [report] = browser.received();
    assert.deepEqual(fieldsOf(report.payload).map(({ name }) => name), ['user', 'pw', 'pw']);
    await browser.command('fillForm', fillOf(report, { user: 'ana', pw: 'secret' }));
    assert.deepEqual([0, at[1] === frames[1] ? 2 : 1].map((frame) => browser.documentOf(id, frame).querySelector('[name=pw]').value), ['secret', 'secret']);
  }
});

test('a submit goes out only when every field took its value', async () => {
  for (const [html, expected] of [[LOGIN, 1], [LOGIN.replace('name=pw', 'name=pw readonly'), 0]]) {
    const { browser, id } = await browserAt(SHOP, { [SHOP]: html.replace('</form>', '<button>Log in</button></form>') });
    let submits = 0;
    browser.documentOf(id).addEventListener('submit', (event) => { event.preventDefault(); submits += 1; });
    const report = await reportOf(browser, request('currentNoReload'));
    await browser.command('fillForm', fillOf(report, { user: 'ana', pw: 'secret' }, { submit: true }));
    assert.equal(submits, expected);
  }
});

const TARGETS = [
  ['', '', true],
  ['action="/in"', 'formaction="https://id.shop.example/in"', true],
  ['action="javascript:void(0)"', '', true],
  ['method=dialog action="https://other.example/"', '', true],
  ['action="https://other.example/in"', '', false],
  ['action="//other.example"', '', false],
  ['action="http://shop.example/in"', '', false],
  ['action="mailto:me@shop.example"', '', false],
  ['action="https://"', '', false],
  ['action="/in"', 'formaction="https://other.example/in"', false],
  ['action="/in"><input name=action', '', true],
  ['action="https://other.example/"><input name=action', '', false],
];

test('a form that goes to another site, or gives up encryption, gets no value', async () => {
  for (const [form, button, expected] of TARGETS) {
    const html = `<form ${form}><input name=pw type=password><button ${button}>Log in</button></form>`;
    const { browser, id } = await browserAt(SHOP, { [SHOP]: html });
    const report = await reportOf(browser, request('currentNoReload'));
    await browser.command('fillForm', fillOf(report, { pw: 'secret' }));
    assert.equal(browser.documentOf(id).querySelector('[name=pw]').value, expected ? 'secret' : '', html);
  }
});

const NEXT = 'https://shop.example/password';
const STEPS = [
  ['the next page', 1, ({ go }) => go(NEXT)],
  ['a page in between', 1, async ({ go }) => { await go('https://shop.example/'); await go(NEXT); }],
  ['another site in between', 1, async ({ go }) => { await go('https://other.example/'); await go(NEXT); }],
  ['a field in the same document', 1, ({ browser, id }) => draw(browser, id, PASSWORD)],
  ['a field that several wait for', 1, async ({ browser, id }) => { await browser.sameDocumentNavigation(id); await draw(browser, id, PASSWORD); }],
  ['another site', 0, ({ go }) => go('https://other.example/')],
  ['another tab', 0, async ({ browser }) => { browser.addTab(NEXT); await idle(); }],
  ['slowly', 1, async ({ browser, go }) => { await browser.clock.advance(179000); await go(NEXT); }],
  ['too late', 0, async ({ browser, go }) => { await browser.clock.advance(180001); await go(NEXT); }],
  ['after a newer request', 0, async ({ browser, go }) => { await reportOf(browser, request('currentNoReload', SHOP, { timestamp: '2' })); await go(NEXT); }],
  ['after another item took the tab', 0, async ({ browser }) => { await reportOf(browser, request('current', NEXT, { itemid: 'i2' })); }],
];

test('a password asked for later is reported once, as the answer to the same request', async () => {
  for (const [what, count, step] of STEPS) {
    const { browser, id } = await browserAt('https://shop.example/user');
    const first = await reportOf(browser, request('currentNoReload'));
    await browser.command('fillForm', fillOf(first, { user: 'ana' }));
    await step({ browser, id, go: (url) => browser.go(id, url) });
    if (count > 0) await browser.go(id, SHOP);
    const reports = browser.received();
    assert.equal(reports.length, count, what);
    for (const { action, payload } of reports) {
      assert.deepEqual([action, payload.itemid, payload.timestamp], ['collectDocumentResults', 'i1', '1700000000001']);
      assert.ok(fieldsOf(payload).some(({ name }) => name === 'pw'), what);
    }
  }
});

test('nothing is awaited once the password is filled', async () => {
  const { browser, id } = await browserAt(SHOP);
  const report = await reportOf(browser, request('currentNoReload'));
  await browser.command('fillForm', fillOf(report, { user: 'ana' }));
  await browser.command('fillForm', fillOf(report, { pw: 'secret' }));
  await browser.go(id, NEXT);
  assert.deepEqual(browser.received(), []);
});

const FRONT = 'https://shop.example/front';
const WAYS = [
  ['<a href="/logout">Sign out</a><a href="/join">Sign up</a><a href="/user">Log in</a>', 'https://shop.example/user', ['user']],
  ['<a href="/password">Sign in with Google</a><a href="https://shop.example/login">Mein Konto / Anmelden</a>', SHOP, ['user', 'pw']],
  ['<button onclick>Войти</button>', FRONT, ['user']],
  ['<a href="#in" onclick>Se connecter</a>', FRONT, ['user']],
  ['<a href="https://other.example/">Sign in</a>', FRONT, []],
  ['<a href="http://shop.example/login">Sign in</a>', FRONT, []],
  ['<a href="javascript:void(0)" onclick>Sign in</a>', FRONT, []],
  ['<a href="/login" style="display:none">Sign in</a>', FRONT, []],
  ['<button onclick>Sign up</button><a href="/login">Why we ask everybody to sign in before they can look at a price</a>', FRONT, []],
  ['<a href="/login">Sign in</a><input type=email>', FRONT, ['']],
  ['<a href="/login">Sign in</a><input name=comment>', SHOP, ['user', 'pw']],
];

test('the login page is looked for behind the page\'s own links and buttons, and answered once', async () => {
  for (const [html, address, names] of WAYS) {
    const { browser, id } = await browserAt(FRONT, { [FRONT]: html });
    const button = browser.documentOf(id).querySelector('[onclick]');
    button?.addEventListener('click', () => { browser.documentOf(id).body.innerHTML = USER; });
    await reportOf(browser, request('currentNoReload'));
    await browser.command('findLoginPage', request('getLoginPageData', 'https://shop.example/'));
    for (let second = 0; second < 7; second += 1) {
      await browser.clock.advance(1000);
      await idle();
    }
    const [{ action, payload }, ...more] = browser.received();
    assert.deepEqual([action, payload.tabUrl.replace(/#.*/, ''), payload.itemid, more.length], ['loginPageLoaded', address, 'i1', 0], html);
    assert.deepEqual(fieldsOf(payload).map(({ name }) => name), names, html);
  }
});

test('the login page is opened in the tab that answered the request, unless that is there already', async () => {
  for (const [start, expected] of [['https://other.example/', SHOP], ['https://shop.example/user', 'https://shop.example/user'], ['http://shop.example/login', SHOP]]) {
    const { browser, id } = await browserAt(start);
    await reportOf(browser, request('currentNoReload'));
    const { id: active } = browser.addTab('https://other.example/');
    await idle();
    await browser.command('findLoginPage', request('getLoginPageData', SHOP));
    assert.deepEqual(browser.received().map(({ payload }) => payload.tabUrl), [expected]);
    assert.deepEqual([browser.address(id), browser.address(active)], [expected, 'https://other.example/']);
  }
});

test('no other tab is taken when the one that answered was closed', async () => {
  const { browser, id } = await browserAt('https://shop.example/');
  await reportOf(browser, request('currentNoReload'));
  const { id: active } = browser.addTab('https://other.example/');
  await idle();
  await browser.closeTab(id);
  await browser.command('findLoginPage', request('getLoginPageData', SHOP));
  assert.deepEqual([browser.address(active), browser.received()], ['https://other.example/', []]);
});

test('a wish before the program listens is told it when it does, unless that took long', async () => {
  for (const [wait, expected] of [[4000, [SHOP]], [6000, []]]) {
    const { browser } = await browserAt(SHOP);
    browser.hangUp();
    await browser.press('quick-access', { url: 'https://shop.example/', windowId: 1 });
    await browser.press('quick-access', { url: SHOP, windowId: 1 });
    await browser.clock.advance(wait);
    await browser.greet();
    assert.deepEqual(browser.received().map(({ payload }) => payload.url), expected);
  }
});

const WISHES = [['quick-access', {}], ['fill', { kind: 'login', fill: true }], ['generate', { kind: 'generate' }]];

test('each command tells the program its wish, the page and where the window is', async () => {
  const { browser } = await browserAt(SHOP);
  for (const [command, wish] of WISHES) {
    await browser.press(command, { url: SHOP, windowId: 1 });
    await browser.press(command, { windowId: 7 });
    assert.deepEqual(browser.received().map(({ action, payload }) => [action, payload]), [
      ['showWindow', { url: SHOP, ...wish, window: WINDOW }], ['showWindow', { url: '', ...wish }],
    ]);
  }
});

test('the pop-up shows what the program says of its page, and follows it', async () => {
  const { browser } = await browserAt(SHOP);
  const popup = await browser.openPopup();
  await popup.say({ url: SHOP });
  const [{ action, payload }] = browser.received();
  assert.deepEqual([action, payload.url, popup.shown], ['getState', SHOP, []]);
  const open = { locked: false, safe: 'Personal', url: SHOP, logins: 2 };
  await browser.command('state', { ...open, request_id: payload.request_id });
  await browser.command('state', { ...open, url: 'https://other.example/', logins: 7 });
  assert.deepEqual(browser.received().map((frame) => [frame.action, frame.payload.url]), [['getState', SHOP]]);
  await browser.command('state', { locked: true, safe: 'Personal', url: '', logins: 0 });
  await browser.command('state', { refused: 'version' });
  await browser.command('state', { ...open, locked: true });
  assert.match(browser.looks.title, /versionTitle/);
  browser.hangUp();
  const shown = (link, more) => ({ link, ...more });
  assert.deepEqual(popup.shown.map((state) => JSON.parse(JSON.stringify(state))), [
    shown('connected', { safe: 'Personal', locked: false, logins: 2 }), shown('connected', { safe: 'Personal', locked: true }),
    shown('version'), shown('offline'),
  ]);
  popup.close();
  await browser.clock.advance(500);
  await browser.greet();
  assert.deepEqual([popup.shown.length, browser.received()], [4, []]);
});

test('a page that calls itself the pop-up is told nothing', async () => {
  const { browser } = await browserAt(SHOP);
  for (const url of [SHOP, 'https://other.example/chrome-extension://id/', null]) {
    const page = await browser.openPopup(url);
    await page.say({ url: SHOP });
    await page.say({ open: true });
    assert.deepEqual([browser.received(), page.shown], [[], []], url);
  }
});

test('an icon opens quick access for its field, in frames of the page\'s site alone', async () => {
  const { browser } = await browserAt(SHOP);
  const tab = { id: 1, windowId: 1, url: SHOP };
  const field = { left: 1, top: 2, width: 3, height: 4 };
  const click = { left: 100, top: 200 };
  const wish = { kind: 'creditcard', field: { ...field, more: 5 }, click: { ...click, width: 9 }, fill: true, around: [] };
  const from = { tab, url: SHOP };
  await browser.hear({ open: wish }, from);
  for (const wrong of [{ kind: 'other' }, { field: undefined }, { field: { ...field, top: '2' } }, { click: undefined }, { around: undefined }, { around: ['https://other.example'] }]) {
    await browser.hear({ open: { ...wish, ...wrong } }, from);
  }
  for (const other of [{ id: 'another' }, { origin: 'https://other.example' }]) await browser.hear({ open: wish }, { ...from, ...other });
  assert.deepEqual(browser.received().map(({ payload }) => payload), [{ url: SHOP, kind: 'creditcard', field: { left: 102, top: 204, width: 6, height: 8 }, window: WINDOW }]);
  for (const [origin, around, expected] of [
    ['https://id.shop.example', [SHOP], true], ['https://other.example', [SHOP], false], ['http://shop.example', [SHOP], false],
    ['https://shop.example', ['https://other.example', SHOP], false], ['null', [SHOP], false],
  ]) assert.equal(await browser.hear({ belongs: around }, { tab, origin }), expected, origin);
  for (const mark of ['g0123456789abcdef', 'g0123456789abcde*', '', undefined]) await browser.hear({ show: mark }, { tab, frameId: 3 });
  assert.deepEqual(browser.styles.map(({ target, css }) => [target.frameIds, css.slice(0, 19)]), [[[3], '[g0123456789abcdef]']]);
});
