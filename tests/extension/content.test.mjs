import assert from 'node:assert/strict';
import { test } from 'node:test';
import { injectIntoOpenPages } from '../../extension/src/injection.js';
import { flush, idle } from './clock.mjs';
import { bundle, openPage } from './page.mjs';

const content = bundle('content.js', 'content');
const STARTED = Symbol.for('glaceron.content');
const LOGIN = '<input name=user><input name=pw type=password>';

/**
 * A page with the script that runs in every page. placed(): on how many fields crystals were set since the last look;
 * add(): the page gets one more field; inject(): the extension is brought to the open pages, as a new version or again;
 * heard: the events in the page.
 */
async function open(html) {
  const window = openPage(html, { url: 'https://shop.example/' });
  const { document } = window;
  const heard = [];
  let count = 0;
  const dispatch = window.EventTarget.prototype.dispatchEvent;
  window.EventTarget.prototype.dispatchEvent = function (event) { heard.push(event.type); return dispatch.call(this, event); };
  const turn = (work) => setImmediate(() => work({ didTimeout: true, timeRemaining: () => 50 }));
  class Observer {
    known = new Set();
    observe(field) {
      if (!this.known.has(field)) count += 1;
      this.known.add(field);
    }
    unobserve() {}
    disconnect() {}
  }
  Object.assign(window, { requestIdleCallback: turn, requestAnimationFrame: turn, setTimeout: turn, ResizeObserver: class extends Observer { observe() {} }, IntersectionObserver: Observer });
  const renew = () => {
    window.chrome = { runtime: { id: 'own', getURL: () => 'chrome-extension://own/', sendMessage: async () => true, connect() {} }, i18n: { getMessage: (name) => name } };
    delete window[STARTED]; // each version has a world of its own
  };
  renew();
  window.eval(content);
  await idle();
  return {
    window, heard,
    placed: () => count - (count = 0),
    async add() {
      document.body.append(Object.assign(document.createElement('input'), { type: 'password' }));
      await idle();
    },
    async inject({ isNew }) {
      if (isNew) {
        delete window.chrome.runtime.id;
        renew();
      }
      let installed;
      const executeScript = async ({ func, files }) => (files ? window.eval(content) : window.eval(`(${func})()`));
      const api = { tabs: { query: async () => [{ id: 1 }] }, scripting: { executeScript }, runtime: { onInstalled: { addListener: (work) => { installed = work; } } }, permissions: { onAdded: { addListener() {} } } };
      injectIntoOpenPages({ api, timers: window });
      await installed();
      await flush();
      await idle();
    },
  };
}

test('a page is watched whatever it calls its elements and frames, and told nothing', async () => {
  for (const html of [LOGIN, `<form id=browser>${LOGIN}</form>`, `<iframe name=browser></iframe>${LOGIN}`]) {
    const page = await open(html);
    assert.equal(page.placed(), 2, html);
    assert.deepEqual(page.heard.filter((type) => type !== 'load'), [], html);
  }
});

test('of a renewed extension only the new script stays in the pages that were open', async () => {
  const page = await open(LOGIN);
  page.placed();
  for (const isNew of [false, true]) {
    await page.inject({ isNew });
    page.placed();
    await page.add();
    assert.equal(page.placed(), 1, isNew);
  }
});
