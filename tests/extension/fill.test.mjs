import assert from 'node:assert/strict';
import { test } from 'node:test';
import { buildSync } from 'esbuild';
import { createClock, flush } from './clock.mjs';
import { callPage, openPage } from './page.mjs';

/** Reports the page and fills its fields, in their order, with the values (null leaves a field out). */
async function fill(window, values, change = () => {}) {
  const report = await callPage(window, 'collect');
  const [group] = [...report.forms, { formUid: 'none', fields: report.elements }];
  const elements = group.fields.map(({ opid, gpmid }, index) => ({ opid, gpmid, value: values[index] ?? null }));
  change(window.document);
  const request = { formUid: group.formUid, elements: elements.filter(({ value }) => value !== null) };
  const done = await callPage(window, 'fill', request);
  async function submit() {
    const allowed = await callPage(window, 'targets', request);
    return callPage(window, 'submit', { ...request, element: request.elements.at(-1), allowed });
  }
  return { ...done, request, submit };
}

const options = (...list) => `<select><option value="">-</option>${list.map(([value, text]) => `<option value="${value}">${text}</option>`).join('')}</select>`;
const FIELDS = [
  ['<input>', 'ana', 'ana'],
  ['<input type=password>', ' p"ä ', ' p"ä '],
  ['<textarea></textarea>', 'a\nb', 'a\nb'],
  ['<input maxlength=4>', '12345', '1234'],
  ['<input type=number>', '4111 1111', '41111111'],
  ['<input type=date>', '1990-02-01', '1990-02-01'],
  ['<input type=date>', '1.2.1990', '', false],
  [options(['08', '08'], ['09', '09']), '09', '09'],
  [options(['8', '09 - September'], ['9', '10 - October']), '09', '8'],
  [options(['7', 'Aug'], ['8', 'Sep']), '09', '8'],
  [options(['0', 'August'], ['1', 'September']), '9', '1'],
  [options(['28', '28'], ['29', '29']), '2029', '29'],
  [options(['de', 'Deutschland'], ['nl', 'Niederlande']), 'Germany', 'de'],
  [`<html lang=es>${options(['1', 'Francia'], ['2', 'Alemania'])}`, 'Germany', '2'],
  [options(['x', 'Germany (East)'], ['y', ' germany ']), 'Germany', 'y'],
  [options(['f', 'Frau'], ['m', 'Herr']), 'male', 'm'],
  [options(['fr', 'France']), 'Atlantis', '', false],
  ['<select><option value="">-<option value=de disabled>Germany</select>', 'Germany', '', false],
  ['<input disabled value=old>', 'new', 'old', false],
  ['<input readonly value=old>', 'new', 'old', false],
  ['<fieldset disabled><input value=old></fieldset>', 'new', 'old', false],
  ['<input type=checkbox value=old>', 'new', 'old', false],
];

test('each kind of field takes its value, or is left alone', async () => {
  for (const [html, value, expected, taken = true] of FIELDS) {
    const window = openPage(html);
    const done = await fill(window, [value]);
    assert.equal(window.document.querySelector('input, select, textarea').value, expected, html);
    assert.equal(done.all, taken, html);
  }
});

test('a radio group is answered by value or by label', async () => {
  for (const wanted of ['female', 'Frau']) {
    const window = openPage('<input type=radio name=g value=male checked><label><input type=radio name=g value=female>Frau</label>');
    await fill(window, [wanted]);
    assert.equal(window.document.querySelector(':checked').value, 'female');
  }
});

test('the page sees what typing would have shown it', async () => {
  const window = openPage('<input>');
  const seen = [];
  for (const type of ['focus', 'keydown', 'input', 'keyup', 'change', 'blur', 'focusin', 'focusout']) {
    window.document.addEventListener(type, ({ target }) => seen.push(`${type} ${target.value}`), true);
  }
  await fill(window, ['ana']);
  assert.deepEqual(seen, ['focus ', 'focusin ', 'keydown ', 'input ana', 'keyup ana', 'change ana', 'blur ana', 'focusout ana']);
});

const APP = `
  import { createElement as h, useState } from 'react';
  import { flushSync } from 'react-dom';
  import { createRoot } from 'react-dom/client';
  function App() {
    const [state, setState] = useState({ user: '', note: '', country: 'fr' });
    window.state = state;
    const bind = (name) => ({ name, value: state[name], onChange: ({ target }) => setState((old) => ({ ...old, [name]: target.value })) });
    return h('form', null, h('input', bind('user')), h('textarea', bind('note')),
      h('select', bind('country'), h('option', { value: 'fr' }, 'France'), h('option', { value: 'de' }, 'Germany')));
  }
  flushSync(() => createRoot(document.getElementById('app')).render(h(App)));`;

test('controlled inputs take the value into their state', async () => {
  const { outputFiles } = buildSync({
    stdin: { contents: APP, resolveDir: new URL('.', import.meta.url).pathname },
    bundle: true, write: false, define: { 'process.env.NODE_ENV': '"production"' },
  });
  const window = openPage('<div id=app></div>');
  window.eval(outputFiles[0].text);
  const done = await fill(window, ['ana', 'hello', 'Germany']);
  await flush();
  assert.deepEqual({ ...window.state }, { user: 'ana', note: 'hello', country: 'de' });
  assert.deepEqual([done.all, done.password], [true, false]);
});

const FORM = '<form id=f><input name=u><input name=p type=password></form>';
const CHANGES = [
  ['the form was drawn again', (document) => { document.body.innerHTML = FORM; }, ['ana', 'pw']],
  ['another field took the place', (document) => { document.body.innerHTML = FORM.replace('name=p type=password', 'name=q'); }, ['ana', '']],
  ['a form was put before it', (document) => { document.body.innerHTML = `<form><input name=u></form>${FORM}`; }, ['', '', '']],
  ['a field was hidden', (document) => { document.querySelector('[name=p]').style.opacity = 0; }, ['ana', '']],
  ['the fields were moved', (document) => { document.body.append(document.querySelector('[name=p]')); }, ['ana', 'pw']],
];

test('values follow their field, and only it, through changes of the page', async () => {
  for (const [what, change, expected] of CHANGES) {
    const window = openPage(FORM);
    await fill(window, ['ana', 'pw'], change);
    assert.deepEqual([...window.document.querySelectorAll('input')].map(({ value }) => value), expected, what);
  }
});

test('ids of another document fill nothing', async () => {
  const { request } = await fill(openPage(FORM), ['ana', 'pw']);
  const window = openPage(FORM);
  await callPage(window, 'collect');
  assert.deepEqual(await callPage(window, 'fill', request), { all: false, some: false, password: false });
  assert.equal(window.document.querySelector('[name=p]').value, '');
});

const SUBMITS = [
  ['<form><input required><button name=b>Go</button></form>', ['click b', 'submit b']],
  ['<form><input><button type=button name=eye>Show password</button><button name=b></button></form>', ['click b', 'submit b']],
  ['<form><input><button name=g>Sign in with Google</button><button type=button name=b>Log in</button></form>', ['click b']],
  ['<form id=f><input></form><button form=f name=b>OK</button>', ['click b', 'submit b']],
  ['<form><input required pattern=x><button name=b>Go</button></form>', ['click b']],
  ['<form><input></form>', ['keydown', 'submit']],
  ['<form><input pattern=x></form>', ['keydown']],
  ['<button name=far>Login</button><div><input><button name=eye></button><div role=button>Weiter</div></div>', ['click Weiter']],
  ['<main><input></main><div><button name=b>OK</button></div>', ['keydown']],
  ['<div><p><input></p><div class=cookie-bar><button name=b>OK</button></div></div>', ['keydown']],
  ['<div><p><input></p><div style="position:fixed"><button name=b>Continue</button></div></div>', ['keydown']],
  ['<div><nav></nav><p><input></p><button name=b>Go</button></div>', ['keydown']],
  ['<div><nav></nav><p><input></p><button name=b>Go</button><button name=s>Sign in</button></div>', ['click s']],
  ['<div><b><b><b><b><input></b></b></b></b><button name=b>OK</button></div>', ['click b']],
  ['<div><b><b><b><b><b><input></b></b></b></b></b><button name=b>OK</button></div>', ['keydown']],
  ['<div><input><button name=b>Create account</button></div>', ['keydown']],
  ['<div><input><button name=b disabled>Sign in</button></div>', ['click b'], (document) => { document.querySelector('button').disabled = false; }],
];

test('sending uses the way that the page offers', async () => {
  for (const [html, expected, later] of SUBMITS) {
    const clock = createClock();
    const window = openPage(html, { clock });
    window.document.hasFocus = () => false;
    const seen = [];
    const note = (text) => seen.push(text);
    window.document.addEventListener('click', ({ target }) => note(`click ${target.name || target.textContent}`));
    window.document.addEventListener('keydown', ({ key }) => key === 'Enter' && note('keydown'));
    window.document.addEventListener('submit', (event) => {
      event.preventDefault();
      note(`submit ${event.submitter?.name ?? ''}`.trim());
    });
    const { submit } = await fill(window, ['ana']);
    const sent = submit();
    if (later) later(window.document);
    await flush();
    await clock.advance(1000);
    assert.equal(await sent, false);
    assert.deepEqual(seen, expected, html);
  }
});

const PW = '<input name=p type=password>';
const SENT = [
  [`<form method=post>${PW}<button>Log in</button></form>`, true],
  [`<form method=post action="/in">${PW}</form>`, true],
  [`<form method=post action="/in">${PW}<button type=button onclick>Log in</button></form>`, true, (form) => form.requestSubmit()],
  [`<form>${PW}<button>Log in</button></form>`, false],
  [`<form>${PW}</form>`, false],
  [`<form><input name=u><button>Next</button></form>`, true],
  [`<form method=post>${PW}<button formmethod=get>Log in</button></form>`, false],
  [`<form>${PW.replace('name=p', '')}<button>Log in</button></form>`, true],
  [`<form method=post action="/in">${PW}<button type=button onclick>Log in</button></form>`, false, (form) => {
    form.action = 'https://other.example/';
    form.requestSubmit();
  }],
];

test('a page that leaves the sending to the browser sends no password in an address, nor elsewhere than was allowed', async () => {
  for (const [html, expected, onClick] of SENT) {
    const clock = createClock();
    const window = openPage(html, { clock });
    window.document.querySelector('[onclick]')?.addEventListener('click', ({ target }) => onClick(target.form));
    let sent;
    const look = () => window.addEventListener('submit', (event) => {
      sent = !event.defaultPrevented;
      event.preventDefault();
    }, { once: true });
    const { submit } = await fill(window, ['secret']);
    window.document.addEventListener('submit', look); // runs when the extension listens already
    const done = submit();
    await flush();
    await clock.advance(1000);
    await done;
    assert.equal(sent, expected, html);
  }
});

test('a real Enter is asked for only when the page has the focus and nothing else took it', async () => {
  for (const [focused, handled, expected] of [[true, false, true], [false, false, false], [true, true, false]]) {
    const clock = createClock();
    const window = openPage('<input>', { clock });
    window.document.hasFocus = () => focused;
    if (handled) window.document.addEventListener('keydown', (event) => event.preventDefault());
    const { submit } = await fill(window, ['ana']);
    const sent = submit();
    await flush();
    await clock.advance(1000);
    assert.equal(await sent, expected);
  }
});
