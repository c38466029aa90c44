import assert from 'node:assert/strict';
import { test } from 'node:test';
import { callPage, openPage } from './page.mjs';

const collect = (html) => callPage(openPage(html), 'collect');
const allFields = (report) => [...report.forms.flatMap((form) => form.fields), ...report.elements];

const TYPES = [
  ['<input>', 'text', 'text'],
  ...['email', 'tel', 'number', 'url', 'search', 'date', 'month', 'invented'].map((word) => [`<input type=${word}>`, 'text', word]),
  ['<input type=" PassWord ">', 'text', 'password'],
  ['<input type=PassWord>', 'password', 'password'],
  ['<input type=radio>', 'radio', 'radio'],
  ['<input type=checkbox>', 'checkbox', 'checkbox'],
  ['<select></select>', 'select-one', 'select-one'],
  ['<select multiple></select>', 'select-multiple', 'select-multiple'],
  ['<textarea></textarea>', 'textarea', 'textarea'],
];
const NOT_FIELDS = ['hidden', 'submit', 'button', 'image', 'reset', 'file', 'color', 'range'].map((word) => `<input type=${word}>`);

test('every fillable field is reported with its kind, buttons and hidden inputs are not', async () => {
  for (const [html, type, inputtype] of TYPES) {
    const [field] = (await collect(html)).elements;
    assert.deepEqual([field.type, field.inputtype], [type, inputtype], html);
  }
  assert.deepEqual((await collect(`${NOT_FIELDS.join('')}<button>b</button>`)).elements, []);
});

const INVISIBLE = [
  '<input style="display:none">',
  '<div style="display:none"><input></div>',
  '<div style="visibility:hidden"><b><input></b></div>',
  '<input style="opacity:0.01">',
  '<div style="opacity:.3"><div style="opacity:.3"><input></div></div>',
  '<input data-box="10,10,1,1">',
  '<input data-box="-9999,10,100,20">',
  '<input data-box="10,-500,100,20">',
  '<input data-box="9999,10,100,20">',
  '<div inert><input></div>',
  '<div style="overflow:hidden" data-box="0,0,0,0"><input></div>',
  '<div style="overflow:hidden" data-box="0,0,300,300"><input data-box="300,0,100,20"></div>',
  '<div style="position:absolute;clip:rect(0px, 0px, 0px, 0px)"><input></div>',
  '<input style="clip-path:inset(50%)">',
  '<div data-shadow="<input>" style="display:none"></div>',
  '<div style="filter:blur(1px) opacity(0)"><input></div>',
  '<div style="filter:opacity(50%)"><input style="filter:opacity(.1)"></div>',
  '<div style="mask-image:linear-gradient(rgba(0, 0, 0, 0), rgba(0, 0, 0, 0))"><input></div>',
  '<div data-shadow="<p style=\'opacity:0\'><slot></slot></p>"><input></div>',
  '<input data-box="10,10,100,20"><div data-box="0,0,300,300" style="background-color:rgb(255, 255, 255)"></div>',
  '<input data-box="10,10,100,20"><img data-box="0,0,300,300">',
  '<div data-box="0,0,300,300" style="overflow:auto" data-scroll="0,0,600,300"><input data-box="-120,0,100,20"></div>',
  '<div data-box="0,0,300,300" style="overflow:auto" data-scroll="0,0,600,300"><input data-box="600,0,100,20"></div>',
  '<html data-scroll="0,500,1024,2000"><body><input data-box="10,-600,100,20">',
  '<html data-scroll="-50,0,2000,768"><body style="direction:rtl"><input data-box="1100,10,100,20">',
  '<html style="overflow-y:hidden"><body style="overflow-y:auto" data-box="0,0,1024,768" data-scroll="0,0,1024,2000"><input data-box="10,2000,100,20">',
];
const VISIBLE = [
  '<input>',
  '<div style="visibility:hidden"><input style="visibility:visible"></div>',
  '<div style="overflow:auto" data-box="0,0,300,300" data-scroll="0,0,600,300"><input data-box="300,0,100,20"></div>',
  '<div style="overflow:auto;direction:rtl" data-box="0,0,300,300" data-scroll="0,0,600,300"><input data-box="-200,0,100,20"></div>',
  '<html data-scroll="0,500,1024,2000"><body><input data-box="10,-400,100,20">',
  '<html data-scroll="0,0,2000,768"><body style="direction:rtl"><input data-box="-500,10,100,20">',
  '<html style="overflow-y:hidden"><body style="overflow-y:auto" data-box="0,0,1024,768" data-scroll="0,0,1024,2000"><input data-box="10,1500,100,20">',
  '<html style="overflow-y:hidden"><body style="overflow-y:auto" data-box="0,0,1024,768" data-scroll="0,1000,1024,2000"><input data-box="10,-500,100,20">',
  '<div style="filter:opacity(1) blur(1px)"><input></div>',
  '<div style="mask-image:linear-gradient(rgb(0, 0, 0), rgba(0, 0, 0, 0))"><input></div>',
  '<div data-shadow="<p><slot></slot></p>"><input></div>',
  '<input data-box="10,10,100,20"><div data-box="0,0,300,300" style="background-color:rgba(0, 0, 0, 0.5)"></div>',
  '<input data-box="10,10,100,20"><div data-box="0,0,60,300" style="background-color:rgb(255, 255, 255)"></div>',
  '<input data-box="10,10,100,20"><div style="position:fixed"><div data-box="0,0,300,300" style="background-color:rgb(255, 255, 255)"></div></div>',
  '<input id=i data-box="10,10,100,20"><label for=i data-box="0,0,300,300" style="background-color:rgb(255, 255, 255)"></label>',
  '<div data-box="0,0,300,300" style="background-color:rgb(255, 255, 255)"><input data-box="10,10,100,20"></div>',
  '<div style="overflow:hidden" data-box="0,0,0,0"><input style="position:fixed"></div>',
  '<div style="overflow:hidden;position:static" data-box="0,0,0,0"><input style="position:absolute"></div>',
  '<div style="clip:rect(0px, 0px, 0px, 0px)"><input></div>',
  '<form><input name="parentNode"><input name="getAttribute"><input name="style"></form>',
];

test('a field is visible exactly when a person can see it', async () => {
  for (const [list, visible] of [[INVISIBLE, false], [VISIBLE, true]]) {
    for (const html of list) assert.equal(allFields(await collect(html))[0].visible, visible, html);
  }
});

const TEXTS = [
  ['<label for=a>  User\n name </label><input id=a>', { sourceLabelFor: 'User name', sourceContext: 'User name' }],
  ['<label>Land <select><option>Malta</select></label>', { sourceLabelFor: 'Land', sourceContext: 'Land' }],
  ['<b id=l1>Card</b> <input aria-labelledby="l1 l2 none"> <i id=l2>number</i>', { sourceLabelFor: 'Card number', sourceContext: 'Card' }],
  ['<input placeholder=P aria-label=A title=T autocomplete=username>', { sourceLabelFor: '', sourceContext: 'P A T', autocomplete: 'username', placeholder: 'P', ariaLabel: 'A', title: 'T' }],
  ['<table><tr><td>City<td><span><input></span></table>', { sourceContext: 'City' }],
  ['<p>Name</p><div><input name=first><input></div>', { sourceContext: 'Name' }],
  ['<a>Forgot password?</a><button>Show password</button><input>', { sourceContext: '' }],
  ['<textarea hidden>typed</textarea><p contenteditable>typed</p><div><input></div>', { sourceContext: '' }, 1],
  [`<p>${'x'.repeat(300)}</p><input name="${'n'.repeat(300)}">`, { sourceContext: 'x'.repeat(200), name: 'n'.repeat(200) }],
  ['<input id=i name=n class="c  d">', { id: 'i', sourceId: 'i', name: 'n', sourceName: 'n', class: 'c d', sourceClass: 'c d' }],
  ['<input id=a><label for=a>City</label><input>', { textBefore: '', sourceContext: '' }, 1],
  ['<table><tr><td>Phone<td>(<input>) <input></table>', { textBefore: 'Phone' }],
  ['<table><tr><td>Phone<td>(<input>) <input></table>', { textBefore: ')' }, 1],
  ['<div><input><mat-label>City</mat-label></div><input>', { textBefore: '', textAfter: 'City' }],
  ['<input><br>City<input>', { textAfter: '' }],
  ['<b>Password</b> (6 to 30 letters)<br><input>', { textBefore: 'Password' }],
  ['<table><tr><th>City<th>Zip</tr><tr><td><input><td><input></table>', { tableHead: 'Zip', textBefore: '' }, 1],
  ['<h2>Card</h2><form><input></form>', { heading: 'Card' }],
  ['<input maxlength=4 pattern="[0-9]+" inputmode=NUMERIC>', { maxlength: 4, pattern: '[0-9]+', inputmode: 'numeric' }],
  ['<select><option value=de>Germany</select>', { options: [{ text: 'Germany', value: 'de' }] }],
];

test('what was typed is told of without its text, masks and defaults are not taken for it', async () => {
  const typed = [['ana', true], ['4', true], ['', false], ['+49', false], ['__/__', false], ['DD.MM.YYYY', false], ['https://', false], ['jj/mm/aaaa', false], ['gg/mm/aaaa', false], ['pp.kk.vvvv', false], ['00/00/0000', false], ['Amy Day', true], ['Matt May', true]];
  for (const [value, filled] of typed) {
    const [field] = (await collect(`<input value="${value}">`)).elements;
    assert.equal(field.isFilled, filled, value);
  }
  const fixed = (await collect('<input readonly><fieldset disabled><input></fieldset><input>')).elements;
  assert.deepEqual(fixed.map(({ isFixed }) => isFixed), [true, true, false]);
});

test('the texts around a field are read as a person reads them', async () => {
  for (const [html, expected, index = 0] of TEXTS) {
    const field = allFields(await collect(html))[index];
    for (const [key, text] of Object.entries(expected)) assert.deepEqual(field[key], text, `${key} of ${html}`);
  }
});

test('what was typed never leaves the page, what the page offers does', async () => {
  const window = openPage(`<input id=t><input type=password id=p value=preset><textarea id=a></textarea>
    <input type=checkbox value=c><input type=radio value=female><select><option value=de selected>Germany</select>`);
  for (const id of ['t', 'p', 'a']) window.document.getElementById(id).value = 'typed secret';
  const report = await callPage(window, 'collect');
  assert.deepEqual(report.elements.filter((field) => 'value' in field).map(({ value }) => value), ['female', 'de']);
  assert.doesNotMatch(JSON.stringify(report), /secret|preset/);
});

test('fields come under their form, in the order of the page, shadow trees included', async () => {
  const report = await collect(`<title> A  page </title><img name=title><input name=loose>
    <form id=f name=login action="/go?x=1"><h2>Sign in</h2><input name=action><input name=id type=password><button>Go on</button><button type=button>?</button></form>
    <form><input type=hidden></form>
    <x-a data-shadow="<form><input name=inner></form><x-b></x-b>"></x-a><input form=f name=apart>`);
  assert.deepEqual([report.title, report.url], ['A page', 'https://shop.example/']);
  const [form, inner] = report.forms;
  const { formUid, fields, ...about } = form;
  assert.deepEqual(about, { title: 'Sign in', name: 'login', id: 'f', action: 'https://shop.example/go?x=1', buttons: ['Go on'] });
  assert.deepEqual(fields.map(({ name }) => name), ['action', 'id', 'apart']);
  assert.deepEqual([report.forms.length, inner.fields[0].name, report.elements.map(({ name }) => name)], [2, 'inner', ['loose']]);
  assert.equal(new Set([formUid, inner.formUid, 'none']).size, 3);
});

test('a field keeps its ids from one report to the next, documents never share them', async () => {
  const html = '<form><input name=a><input name=a></form>';
  const window = openPage(html);
  const [before, after, other] = [await callPage(window, 'collect'), await callPage(window, 'collect'), await collect(html)];
  assert.deepEqual(after, before);
  const ids = [...allFields(before), ...allFields(other)];
  assert.equal(new Set(ids.map(({ opid }) => opid)).size, 4);
  assert.equal(new Set(ids.map(({ gpmid }) => gpmid)).size, 2);
});

test('an enormous page gives a report of bounded size', async () => {
  const long = '&quot;'.repeat(400);
  const field = `<label>${long}<input data-box="0,0,0,0" name="${long}" id="${long}" class="${long}" title="${long}"></label>`;
  const report = await collect(`<form>${field.repeat(1200)}</form>`);
  assert.equal(allFields(report).length, 1000);
  assert.ok(JSON.stringify(report).length < 6 * 1024 * 1024);
});
