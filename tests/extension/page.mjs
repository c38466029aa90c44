import { buildSync } from 'esbuild';
import { JSDOM } from 'jsdom';

const source = new URL('../../extension/src/page/page.js', import.meta.url).pathname;
export const pageScript = buildSync({ entryPoints: [source], bundle: true, write: false }).outputFiles[0].text;

/**
 * A document in a window of its own. Since nothing is laid out here, every element is a 100 x 20 box at the top
 * left, or what its data-box="left,top,width,height" says.
 */
export function openPage(html, { url = 'https://shop.example/', clock, ancestors = [] } = {}) {
  const { window } = new JSDOM(html, { url, runScripts: 'outside-only' });
  window.Element.prototype.getBoundingClientRect = function () {
    const [left, top, width, height] = (this.getAttribute('data-box') ?? '0,0,100,20').split(',').map(Number);
    return { left, top, right: left + width, bottom: top + height, width, height };
  };
  Object.defineProperty(window.location, 'ancestorOrigins', { value: ancestors });
  if (clock) Object.assign(window, clock.timers);
  for (const host of window.document.querySelectorAll('[data-shadow]')) {
    host.attachShadow({ mode: 'open' }).innerHTML = host.dataset.shadow;
  }
  return window;
}

/** Calls the page script as the browser would: plain data in, plain data out. */
export async function callPage(window, name, argument) {
  window.eval(pageScript);
  const answer = await window[Symbol.for('glaceron')][name](structuredClone(argument));
  return answer === undefined ? undefined : JSON.parse(JSON.stringify(answer));
}
