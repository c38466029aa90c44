import assert from 'node:assert/strict';
import { test } from 'node:test';
import { createClock, flush } from './clock.mjs';
import { bundle, openPage } from './page.mjs';

const watching = bundle('watch.js', 'watching');
const icons = bundle('icons.js', 'icons');

/** A page that is watched; idle: gives it a turn in which a look at the clock takes a millisecond. */
async function watch(html, deadline = { didTimeout: true, timeRemaining: () => 0 }) {
  const clock = createClock();
  const window = openPage(html, { clock });
  const turns = [];
  const fields = [];
  let now = 0;
  Object.defineProperty(window.performance, 'now', { value: () => (now += 1) });
  Object.assign(window, { requestIdleCallback: (work) => turns.push(work), onField: ({ name }) => fields.push(name) });
  window.eval(`${watching}; watching.watch(document, { onField, onChange() {} })`);
  const idle = async () => {
    await clock.advance(250);
    await flush();
    turns.shift()?.(deadline);
  };
  await idle();
  return { document: window.document, idle, fields: () => fields.splice(0) };
}

test('a field is told of once, and again when it may have become one to fill', async () => {
  const page = await watch('<input name=a readonly><input name=b disabled><input name=c type=hidden><input name=d>');
  assert.deepEqual(page.fields(), ['a', 'b', 'c', 'd']);
  const [a, b, c, d] = page.document.querySelectorAll('input');
  a.readOnly = false;
  b.disabled = false;
  c.type = 'text';
  d.className = 'new';
  await flush();
  await page.idle();
  assert.deepEqual(page.fields(), ['a', 'b', 'c']);
});

test('a turn is short, and the look goes on in the next, even where the page is never idle', async () => {
  for (const deadline of [{ didTimeout: true, timeRemaining: () => 0 }, { didTimeout: false, timeRemaining: () => 50 }]) {
    const page = await watch('<input>'.repeat(20), deadline);
    const first = page.fields().length;
    assert.ok(first > 0 && first < 10, String(first));
    for (let turn = 0; turn < 3; turn += 1) await page.idle();
    assert.equal(first + page.fields().length, 20);
  }
});

test('nothing is kept for dialogs that are gone', () => {
  const window = openPage('<dialog open><input></dialog>');
  const { document } = window;
  const observers = [];
  class Observer {
    constructor(tell) { observers.push(tell); }
    observe() {}
    unobserve() {}
    disconnect() {}
  }
  Object.assign(window, { IntersectionObserver: Observer, ResizeObserver: Observer });
  window.eval(`${icons}; globalThis.all = icons.createIcons({ title: '', open() {} })`);
  const dialog = document.querySelector('dialog');
  const field = document.querySelector('input');
  document.elementsFromPoint = () => [field];
  window.all.add(field, 'login');
  observers[0]([{ target: field, isIntersecting: true, boundingClientRect: field.getBoundingClientRect() }]);
  assert.equal(dialog.children.length, 2); // the field, and what its icon lies in
  dialog.remove();
  window.all.refresh();
  assert.equal(dialog.children.length, 1);
});
