import { buildSync } from 'esbuild';
import { JSDOM } from 'jsdom';

const source = new URL('../../extension/src/page/page.js', import.meta.url).pathname;
export const pageScript = buildSync({ entryPoints: [source], bundle: true, write: false }).outputFiles[0].text;

/** A script of extension/src/page that leaves what it exports in a global. */
export function bundle(file, globalName) {
  const entry = new URL(`../../extension/src/page/${file}`, import.meta.url).pathname;
  return buildSync({ entryPoints: [entry], bundle: true, write: false, format: 'iife', globalName }).outputFiles[0].text;
}

/**
 * A document in a window of its own. Since nothing is laid out here, every element is a 100 x 20 box at the top
 * left, or what its data-box="left,top,width,height" says; its data-scroll="x,y,width,height" says how far its content
 * is scrolled and how large that is. Boxes that are told lie over each other in the order of the document.
 */
export function openPage(html, { url = 'https://shop.example/', clock, ancestors = [] } = {}) {
  const { window } = new JSDOM(html, { url, runScripts: 'outside-only' });
  const numbers = (element, name, usual) => (element.getAttribute(name) ?? usual).split(',').map(Number);
  window.Element.prototype.getBoundingClientRect = function () {
    const [left, top, width, height] = numbers(this, 'data-box', '0,0,100,20');
    return { left, top, right: left + width, bottom: top + height, width, height };
  };
  const define = (name, get) => Object.defineProperty(window.Element.prototype, name, { get, configurable: true });
  ['scrollLeft', 'scrollTop', 'scrollWidth', 'scrollHeight'].forEach((name, index) => {
    define(name, function () { return numbers(this, 'data-scroll', '0,0,0,0')[index]; });
  });
  define('clientWidth', function () { return this === window.document.documentElement ? window.innerWidth : this.getBoundingClientRect().width; });
  [window.scrollX, window.scrollY] = numbers(window.document.documentElement, 'data-scroll', '0,0,0,0');
  window.Document.prototype.elementsFromPoint = function (x, y) {
    const isAt = ({ left, right, top, bottom }) => left <= x && x < right && top <= y && y < bottom;
    return [...this.querySelectorAll('[data-box]')].filter((element) => isAt(element.getBoundingClientRect())).reverse();
  };
  Object.defineProperty(window.location, 'ancestorOrigins', { value: ancestors });
  if (clock) Object.assign(window, clock.timers);
  // As in browsers, inputs shadow what their form can do, and pictures what the document can; jsdom itself needs one thing.
  const shadow = (owner, element) => {
    const name = element.getAttribute('name');
    if (/\D/.test(name)) Object.defineProperty(owner, name, { value: element, configurable: true });
  };
  for (const input of window.document.querySelectorAll('input[name]:not([name=getAttribute])')) if (input.form) shadow(input.form, input);
  for (const image of window.document.querySelectorAll('img[name]')) shadow(window.document, image);
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
