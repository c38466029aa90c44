import { boxOf, elementsUnder, flatParentOf, matches, rootOf } from './dom.js';
import { isOwnHost } from './icon.js';

const OPAQUE = 0.9;
const FAINTEST = 0.1;
const PICTURES = new Set(['IMG', 'VIDEO', 'CANVAS', 'IFRAME', 'OBJECT', 'EMBED']);
const PLACES = [[0.5, 0.5], [0.25, 0.25], [0.75, 0.25], [0.25, 0.75], [0.75, 0.75]];

function alphaOf(color) {
  const [, alpha] = /^rgba\(.*,\s*([\d.]+)\)$/.exec(color) ?? /\/\s*([\d.]+)\)$/.exec(color) ?? [];
  if (alpha !== undefined) return Number(alpha);
  return ['', 'transparent'].includes(color) ? 0 : 1;
}

function paintsOver({ tagName }, style) {
  return PICTURES.has(tagName) || style.backgroundImage.includes('(') || alphaOf(style.backgroundColor) >= OPAQUE;
}

function surrounds(outer, element) {
  for (let node = element; node; node = flatParentOf(node)) {
    if (node === outer) return true;
  }
  return false;
}

// What floats above the page, such as a dialog or the question about cookies, is closed by the user or goes by itself;
// what lies behind it is no less there. A field's own label often lies over it as long as it is empty.
function hides(above, element, view) {
  if (surrounds(element, above) || [...(element.labels ?? [])].some((label) => surrounds(label, above))) return false;
  if (!paintsOver(above, view.getComputedStyle(above))) return false;
  let opacity = 1;
  for (let node = above; node && !surrounds(node, element); node = flatParentOf(node)) {
    const style = view.getComputedStyle(node);
    if (style.position === 'fixed' || matches(node, 'dialog, [popover]')) return false;
    if (style.opacity !== '') opacity *= Number(style.opacity);
  }
  return opacity >= OPAQUE;
}

/** Whether other parts of the page are painted over the element everywhere, as far as it is on the screen. */
export function isCovered(element, view) {
  const root = rootOf(element);
  const box = boxOf(element);
  return PLACES.every(([x, y]) => {
    const stack = root.elementsFromPoint?.(box.left + (box.right - box.left) * x, box.top + (box.bottom - box.top) * y) ?? [];
    return stack.slice(0, Math.max(stack.indexOf(element), 0)).some((above) => hides(above, element, view));
  });
}

function opacityUpTo(element, view) {
  let opacity = 1;
  for (let node = element; node; node = flatParentOf(node)) opacity *= Number(view.getComputedStyle(node).opacity || 1);
  return opacity;
}

/**
 * Whether something that lets clicks through is painted over the field at the place: it would show the user something
 * else than what he clicks on. Looks at the whole page, so only for a click.
 */
export function ghostOver(field, x, y) {
  const view = field.ownerDocument.defaultView;
  for (const element of elementsUnder(field.ownerDocument)) {
    const { left, top, right, bottom } = boxOf(element);
    if (x < left || x > right || y < top || y > bottom || isOwnHost(element) || surrounds(element, field)) continue;
    const style = view.getComputedStyle(element);
    if (style.pointerEvents !== 'none' || style.visibility !== 'visible' || style.position === 'static') continue;
    if (paintsOver(element, style) && opacityUpTo(element, view) >= FAINTEST) return true;
  }
  return false;
}
