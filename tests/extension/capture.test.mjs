import assert from 'node:assert/strict';
import { test } from 'node:test';
import { runInNewContext } from 'node:vm';
import { createClock } from './clock.mjs';
import { bundle, callPage, openPage } from './page.mjs';

const script = bundle('capture.js', 'capture');

const LOGIN = '<form><input name=user value=ana><input name=pw type=password><button>Log in</button></form>';

/** A page in which logins are watched. */
function open(html, { title = 'Sign in - Shop', activation } = {}) {
  const clock = createClock();
  const window = openPage(`<title>${title}</title>${html}`, { clock });
  Object.defineProperty(window.performance, 'now', { value: clock.now });
  Object.defineProperty(window.navigator, 'userActivation', { value: activation });
  const said = [];
  const ports = [];
  window.connect = () => {
    const port = {
      postMessage(message) {
        if (port.isDead) throw new Error('Attempting to use a disconnected port object');
        said.push(JSON.parse(JSON.stringify(message)));
      },
      disconnect: () => said.push('away'),
      onDisconnect: { addListener: (listener) => { port.onEnd = listener; } },
    };
    ports.push(port);
    return port;
  };
  window.eval(`${script}; capture.watchLogins({ connect, isTrusted: (event) => !event.forged })`);
  const { document } = window;
  const find = (selector) => document.querySelector(selector);
  const fire = (element, type, { forged = false, ...more } = {}) => {
    const event = Object.assign(new window.Event(type, { bubbles: true, composed: true, cancelable: true }), { forged, ...more });
    element.dispatchEvent(event);
  };
  return {
    clock, window, document, find, fire,
    ports,
    /** What the background script was told since the last look. */
    said: () => said.splice(0).filter((message) => message !== 'away'),
    isAway: () => said.includes('away'),
    type(selector, text, options) {
      const field = typeof selector === 'string' ? find(selector) : selector;
      field.value = text;
      fire(field, 'input', options);
    },
    click: (selector, options) => fire(find(selector), 'click', { detail: 0, ...options }),
    submit: (selector = 'form', options) => fire(find(selector), 'submit', options),
    enter: (selector) => fire(find(selector), 'keydown', { key: 'Enter' }),
  };
}

/** What was submitted, field by field: "name=value". */
const values = ({ submitted }) => submitted.fields.filter(({ value }) => value !== undefined).map(({ name, value }) => `${name}=${value}`).join(' ');

const SENT = [
  ['a form that is sent', LOGIN, (page) => page.submit()],
  ['a button whose page sends by itself', LOGIN, (page) => page.click('button')],
  ['Enter', LOGIN, (page) => page.enter('[name=pw]')],
  ['inputs with the names of what a form can do', LOGIN.replace('</form>', `${['matches', 'tagName', 'getRootNode', 'checkVisibility', 'elements']
    .map((name) => `<input type=hidden name=${name}>`).join('')}</form>`).replace('<form>', '<img name=title><form class=error aria-busy=true>'), (page) => page.submit()],
  ['no form, a button', LOGIN.replaceAll('form', 'div'), (page) => page.click('button')],
  ['no form, a link', `${LOGIN.replaceAll('form', 'div')}`.replace(/button/g, 'a'), (page) => page.click('a')],
  ['no form, a button beside the password alone', '<div><input name=user value=ana><p><input name=pw type=password><button>Log in</button></p></div>', (page) => page.click('button')],
  ['no form, a picture in a button', LOGIN.replaceAll('form', 'div').replace('Log in', '<b>Log in</b>'), (page) => page.click('b')],
];
for (const [what, html, send] of SENT) {
  test(`a typed login is reported: ${what}`, () => {
    const page = open(html);
    page.type('[name=pw]', 'secret');
    send(page);
    const [message, ...more] = page.said();
    assert.deepEqual([values(message), message.submitted.siteName, more], ['user=ana pw=secret', 'Shop', []]);
    assert.deepEqual(message.shape, { passwords: 1, lines: 1, fresh: false });
    send(page); // the same once more
    assert.deepEqual(page.said(), []);
  });
}

test('a title of much white space does not hold up the browser', () => {
  const title = `Shop${'\u00a0'.repeat(200000)}Log in`;
  const words = bundle('words.js', 'words');
  assert.equal(runInNewContext(`${words}; words.siteNameIn(title)`, { title }, { timeout: 10000 }), title);
});

test('what a site is called', () => {
  for (const [title, expected] of [
    ['Sign in to Shop · Shop', 'Shop'], ['Create your account - Shop', 'Shop'], ['Shop: account', 'Shop: account'], ['Change password', ''], ['Router login', 'Router login'],
    ['Save the Sea | Log in', 'Save the Sea'], ['', ''],
  ]) {
    const page = open(LOGIN, { title });
    page.type('[name=pw]', 'secret');
    page.submit();
    assert.equal(page.said()[0].submitted.siteName, expected, title);
  }
});

test('a button that changes a password is none that logs in', () => {
  const fields = '<input name=old type=password><input name=new type=password>';
  for (const [html, expected] of [[fields, 1], [fields.replace('<input name=new', '<input hidden name=new'), 0]]) {
    const page = open(`<div>${html}<button type=button>Reset password</button></div>`);
    page.type('[name=old]', 'secret');
    page.click('button');
    assert.equal(page.said().length, expected, html);
  }
});

const NOT_SENT = [
  ['what nobody typed', (page) => { page.find('[name=pw]').value = 'filled'; page.submit(); }],
  ['what a script typed', (page) => { page.type('[name=pw]', 'x', { forged: true }); page.submit(); }],
  ['what a script sent', (page) => { page.type('[name=pw]', 'x'); page.submit('form', { forged: true }); }],
  ['what nobody acted for', (page) => { page.type('[name=pw]', 'x'); page.submit(); }, { hasBeenActive: false, isActive: false }],
  ['what was sent long after', (page) => { page.type('[name=pw]', 'x'); page.submit(); }, { hasBeenActive: true, isActive: false }],
  ['what was typed before', (page) => {
    page.type('[name=pw]', 'x');
    Object.assign(page.window.navigator.userActivation, { hasBeenActive: true, isActive: true });
    page.submit();
  }, { hasBeenActive: false, isActive: false }],
  ['a look under the dots', (page) => { page.type('[name=pw]', 'x'); page.click('#eye'); }],
  ['a forgotten password', (page) => { page.type('[name=pw]', 'x'); page.click('#forgot'); }],
  ['a code that is good once', (page) => { page.find('[name=pw]').autocomplete = 'section-a One-Time-Code'; page.type('[name=pw]', '123456'); page.submit(); }],
  ['what no password is as long as', (page) => { page.type('[name=pw]', 'x'.repeat(1025)); page.submit(); }],
];
for (const [what, act, activation] of NOT_SENT) {
  test(`not reported: ${what}`, () => {
    const html = LOGIN.replace('<button>', '<button type=button id=eye>Show</button><a id=forgot>Forgot password?</a><button>');
    const page = open(html, { activation });
    act(page);
    assert.equal(page.said().filter(({ submitted }) => submitted).length, 0);
  });
}

test('what the program filled is reported once it was changed, what it made up at once', async () => {
  const page = open(LOGIN);
  const fill = async (isNew) => {
    const { forms } = await callPage(page.window, 'collect');
    const { opid, gpmid } = forms[0].fields[1];
    await callPage(page.window, 'fill', { formUid: forms[0].formUid, elements: [{ opid, gpmid, value: 'filled' }], isNew });
  };
  page.type('[name=pw]', 'typed');
  await fill(false);
  page.submit();
  assert.deepEqual(page.said(), []);
  page.type('[name=pw]', 'filled and changed');
  page.submit();
  assert.equal(values(page.said()[0]), 'user=ana pw=filled and changed');
  await fill(true);
  page.submit();
  assert.equal(values(page.said().at(-1)), 'user=ana pw=filled');
});

test('a password that is shown as text, and one in a shadow tree whose name stands in another', () => {
  const shown = open(LOGIN);
  shown.type('[name=pw]', 'secret');
  shown.find('[name=pw]').type = 'text';
  shown.submit();
  assert.equal(shown.said()[0].submitted.fields[1].type, 'password');

  const page = open(`<div><span data-shadow="<input name=user value=ana>"></span><span data-shadow="<input name=pw type=password>"></span><button>Log in</button></div>`);
  page.type(page.document.querySelectorAll('span')[1].shadowRoot.firstChild, 'secret');
  page.click('button');
  assert.equal(values(page.said()[0]), 'user=ana pw=secret');
});

test('the user name of a page before, and the one that a page keeps hidden', () => {
  const first = open('<form><input name=email value=ana@b.c><button>Next</button></form><form id=search><input name=q value=shoes></form>');
  first.submit('#search');
  assert.deepEqual(first.said(), []);
  first.submit();
  assert.equal(first.said()[0].name, 'ana@b.c');
  const noNames = ['user[reset_password_token]', 'login_challenge', 'user_agent', 'account_type', 'user_id', 'user[id]', 'csrf_login'];
  for (const [kept, expected] of [
    [noNames.map((name) => `<input type=hidden name=${name} value=x>`).join('') + '<input type=hidden name=username value=ana>', 'ana'],
    ['<input type=hidden name=user value=number><input hidden id=u autocomplete="section-a Username" value=ana>', 'ana'],
    [`<input type=hidden name=username value=${'x'.repeat(101)}>`, undefined],
  ]) {
    const second = open(`<form>${kept}<input name=pw type=password></form>`);
    second.type('[name=pw]', 'secret');
    second.submit();
    assert.equal(second.said()[0].submitted.login, expected, kept);
  }
});

test('the icon that the page names is told', () => {
  const [small, any, large] = ['sizes=16x16 href=/16.png', 'href=/i.png', 'sizes=64x64 href=/64.png'];
  for (const [links, expected] of [
    [['href=/i.svg', 'type=image/svg+xml href=/i', 'href="data:image/png,x"', small, large], '/64.png'], [[small], '/16.png'], [[any, large], '/i.png'], [[], undefined],
  ]) {
    const page = open(`${links.map((link) => `<link rel="shortcut icon" ${link}>`).join('')}${LOGIN}`);
    page.type('[name=pw]', 'secret');
    page.submit();
    const { icon } = page.said()[0].submitted;
    assert.equal(icon && new URL(icon).pathname, expected);
  }
});

test('of what a form asks beside the login little is told', () => {
  const choices = '<select name=land><option>Malta</select>';
  const page = open(LOGIN.replace('<button>', `<input name=number autocomplete="billing cc-number" value=4111111111111111>${choices}<button>`));
  page.type('[name=pw]', 'secret');
  page.submit();
  const [message] = page.said();
  assert.equal(values(message), 'user=ana pw=secret land=Malta');
  assert.ok(!JSON.stringify(message).includes('options'));
});

const words = (page) => page.said().flatMap((message) => Object.keys(message)[0]);

test('a login that is sent again is a new one after a while, and none waits longer for it', async () => {
  const page = open(LOGIN);
  page.type('[name=pw]', 'secret');
  for (const [pause, expected] of [[0, ['submitted']], [9000, []], [2000, ['dropped', 'submitted']], [9000, []], [21500, ['dropped']]]) {
    await page.clock.advance(pause);
    if (pause < 20000) page.submit();
    assert.deepEqual(words(page), expected, String(pause));
  }
});

const ENDS = [
  ['its port ends', (page) => { page.ports[0].isDead = true; page.ports[0].onEnd(); }],
  ['its port ended unnoticed', (page) => { page.ports[0].isDead = true; page.click('a'); }],
  ['its document is put aside', (page) => {
    page.fire(page.window, 'pagehide');
    assert.ok(page.isAway(), 'the port is kept');
  }],
];
for (const [what, act] of ENDS) {
  test(`a login is forgotten, and the next one told: ${what}`, async () => {
    const page = open(`${LOGIN}<a>Forgot password?</a>`);
    page.type('[name=pw]', 'secret');
    page.submit();
    page.said();
    await act(page);
    page.submit();
    assert.deepEqual(words(page), ['submitted']);
    page.find('form').remove();
    await page.clock.advance(2500);
    assert.deepEqual(words(page), ['accepted']);
  });
}

const CHANGE = '<form><input name=old type=password><input name=new type=password><input name=again type=password><p class=error></p><button>Save</button></form>';
const WAYS_OUT = `${LOGIN}<p id=note><a>Forgot <b>password?</b></a><button aria-label=Close>x</button><i>Welcome</i></p>`;
const leave = (selector) => (page) => { page.click(selector); page.find('form').remove(); };
// What the page does after the form was sent, and what is said of it within the time.
const OUTCOMES = [
  ['the form stays', LOGIN, () => {}, 40000, 'dropped'],
  ['the form goes', LOGIN, (page) => page.find('form').remove(), 2500, 'accepted'],
  ['the user forgot the password', WAYS_OUT, leave('#note b'), 2500, 'dropped'],
  ['the user closes the form', WAYS_OUT, leave('[aria-label]'), 2500, 'dropped'],
  ['the user clicks on anything else', WAYS_OUT, leave('i'), 2500, 'accepted'],
  ['the form goes, and the user asks for help', WAYS_OUT, (page) => { page.find('form').remove(); page.click('#note b'); }, 2500, 'accepted'],
  ['the user presses Escape', LOGIN, (page) => { page.fire(page.document.body, 'keydown', { key: 'Escape' }); page.find('form').remove(); }, 2500, 'dropped'],
  ['the form goes, one with an input of a telling name stays', `${LOGIN}<form><input name=matches></form>`, (page) => page.find('form').remove(), 2500, 'accepted'],
  ['the form is away for a moment', LOGIN, async (page) => {
    const form = page.find('form');
    form.style.display = 'none';
    await page.clock.advance(1000);
    form.style.display = '';
  }, 40000, 'dropped'],
  ['the form is drawn anew', LOGIN, (page) => { page.document.body.innerHTML = `<p role=alert>Wrong</p>${LOGIN}`; }, 40000, 'dropped'],
  ['the form goes, and something turns', LOGIN, (page) => { page.document.body.innerHTML = '<progress></progress>'; }, 2500, undefined],
  ['a code is asked for', LOGIN, (page) => { page.document.body.innerHTML = '<input name=code>'; }, 2500, 'accepted'],
  ['a hidden code is asked for', LOGIN, (page) => { page.document.body.innerHTML = '<form><input name=otpCode type=password></form>'; }, 2500, 'accepted'],
  ['another form with a password comes', LOGIN, (page) => { page.document.body.innerHTML = CHANGE; }, 2500, 'accepted'],
  ['a password is changed, and its form emptied', CHANGE, (page) => page.find('form').reset(), 2500, 'accepted'],
  ['a password is not changed', CHANGE, (page) => { page.find('form').reset(); page.find('p').textContent = 'Too short'; }, 40000, 'dropped'],
];
for (const [what, html, act, time, expected] of OUTCOMES) {
  test(`after a login was sent: ${what}`, async () => {
    const page = open(html);
    for (const field of page.document.querySelectorAll('[type=password]')) page.type(field, 'secret');
    page.submit();
    assert.ok(page.said()[0].submitted);
    await act(page);
    await page.clock.advance(time);
    assert.deepEqual(page.said().flatMap(Object.keys), expected ? [expected] : []);
  });
}
