import { findAll, shadowRootOf } from './dom.js';

const SVG = 'http://www.w3.org/2000/svg';
const SHAPES = [
  ['#4aa6c3', 'M128 6 234 66V190L128 250 22 190V66Z'],
  ['#8fd3e5', 'M128 6 234 66 128 126 22 66Z'],
  ['#55afcb', 'M22 66 128 126V250L22 190Z'],
  ['#2690b2', 'M234 66 128 126V250L234 190Z'],
  ['#fff', 'M128 82a29 29 0 0 0-16 53.2l-8 42.8h48l-8-42.8A29 29 0 0 0 128 82Z'],
];
// Inline and important: a page's rules for everything do not reach it.
const HOST = { all: 'initial', position: 'absolute', top: '0', left: '0', width: '0', height: '0', 'z-index': '2147483647' };
const BUTTON = { all: 'initial', position: 'absolute', display: 'none', cursor: 'pointer' };

export const SIZE = 20;

const own = new WeakSet();
/** Whether the element is a host of icons. */
export const isOwnHost = (element) => own.has(element);

function dress(element, style) {
  for (const [name, value] of Object.entries(style)) element.style.setProperty(name, value, 'important');
}

/**
 * An empty element with a closed shadow tree: {host, root}. mark: an attribute that a style shows it by, as long as there is
 * one; without it the element shows by itself.
 */
export function createHost(mark) {
  const host = document.createElement('div');
  own.add(host);
  dress(host, HOST);
  if (mark) {
    host.setAttribute(mark, '');
    dress(host, { 'content-visibility': 'hidden' });
  }
  host.setAttribute('aria-hidden', 'true');
  return { host, root: host.attachShadow({ mode: 'closed' }) };
}

const isOrphan = (host) => !own.has(host) && shadowRootOf(host)?.querySelector(`[d="${SHAPES[0][1]}"]`);

/** Takes away the icons of a former version of this script, which nobody answers any more. */
export function removeOrphans(doc) {
  for (const host of findAll(doc, 'html > div[aria-hidden], dialog > div[aria-hidden], [popover] > div[aria-hidden]')) {
    if (isOrphan(host)) host.remove();
  }
}

/** The host as it was made, whatever the page did to it since. */
export function isUntouched(host) {
  const { opacity, visibility, filter, clipPath, transform, maskImage } = getComputedStyle(host);
  const none = (value) => ['none', '', undefined].includes(value);
  return opacity === '1' && visibility === 'visible' && [filter, clipPath, transform, maskImage].every(none);
}

/** The crystal. It has no place yet. */
export function createIcon(title) {
  const icon = document.createElement('div');
  dress(icon, BUTTON);
  icon.title = title;
  const svg = document.createElementNS(SVG, 'svg');
  svg.setAttribute('viewBox', '0 0 256 256');
  dress(svg, { display: 'block', width: `${SIZE}px`, height: `${SIZE}px` });
  for (const [fill, d] of SHAPES) {
    const path = document.createElementNS(SVG, 'path');
    path.setAttribute('fill', fill);
    path.setAttribute('d', d);
    svg.append(path);
  }
  icon.append(svg);
  return {
    element: icon,
    show(left, top) {
      dress(icon, { display: 'block', left: `${left}px`, top: `${top}px` });
    },
    hide: () => dress(icon, { display: 'none' }),
  };
}
