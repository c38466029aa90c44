import { isCovered } from './covered.js';
import { boxOf, flatParentOf, hasAttr } from './dom.js';
import { pageOf, pageReaches, scrollerReaches } from './reach.js';

const SMALLEST = 3;
const FAINTEST = 0.1;
const EMPTY_SHAPES = [
  /^inset\((?:[5-9]\d|\d{3,})(?:\.\d+)?%/,
  /^circle\(0/,
  /^polygon\(0(?:px|%)? 0(?:px|%)?(?:, 0(?:px|%)? 0(?:px|%)?)+\)$/,
];

const tooSmall = (box) => box.right - box.left < SMALLEST || box.bottom - box.top < SMALLEST;

function overlap(a, b) {
  return {
    left: Math.max(a.left, b.left),
    top: Math.max(a.top, b.top),
    right: Math.min(a.right, b.right),
    bottom: Math.min(a.bottom, b.bottom),
  };
}

function clippedAway(style) {
  if (EMPTY_SHAPES.some((shape) => shape.test(style.clipPath))) return true;
  const clip = /^rect\((.*)\)$/.exec(style.clip ?? '');
  if (!clip || !['absolute', 'fixed'].includes(style.position)) return false;
  const [top, right, bottom, left] = clip[1].split(/[\s,]+/).map(parseFloat);
  return right - left < SMALLEST || bottom - top < SMALLEST;
}

function opacityOf({ opacity, filter = '' }) {
  const filters = [...filter.matchAll(/opacity\(([\d.]+)(%?)\)/g)].map(([, value, percent]) => Number(value) / (percent ? 100 : 1));
  return filters.reduce((product, value) => product * value, opacity === '' ? 1 : Number(opacity));
}

function maskedAway(style) {
  const mask = style.maskImage || style.webkitMaskImage || '';
  const colors = mask.match(/rgba?\([^)]*\)|\btransparent\b/g) ?? [];
  return !mask.includes('url(') && colors.length > 0 && colors.every((color) => /^(transparent|rgba\(.*,\s*0\))$/.test(color));
}

// What is said of the body's scrolling goes for the window, unless the element around it says something.
function scrollsWithWindow(node, view) {
  const page = view.document.documentElement;
  if (node === page) return true;
  const { overflowX, overflowY } = view.getComputedStyle(page);
  return node === view.document.body && ![overflowX, overflowY].some((word) => /auto|scroll|hidden|clip/.test(word));
}

function inHiddenFrame(view) {
  try {
    const frame = view.frameElement;
    return frame !== null && !isVisible(frame, frame.ownerDocument.defaultView);
  } catch {
    return false; // the frame around is of another origin and cannot be asked
  }
}

// Not every browser tells.
const isUnseen = (element) => Element.prototype.checkVisibility?.call(element, { opacityProperty: true }) === false;

let known; // what was read of the page, while all of it is looked at

/** Runs work, which changes nothing on the page, and reads what it needs of every element and of the page once. */
export function readingOnce(work) {
  if (known) return work();
  known = new Map();
  try {
    return work();
  } finally {
    known = undefined;
  }
}

function remember(key, read) {
  if (!known) return read();
  if (!known.has(key)) known.set(key, read());
  return known.get(key);
}

function lookOf(node, view) {
  return remember(node, () => {
    const style = view.getComputedStyle(node);
    const isGone = style.display === 'none' || style.contentVisibility === 'hidden' || hasAttr(node, 'inert');
    return {
      isGone: isGone || clippedAway(style) || maskedAway(style),
      opacity: opacityOf(style),
      visibility: style.visibility,
      position: style.position,
      direction: style.direction,
      scrollsWithWindow: scrollsWithWindow(node, view),
      overflow: `${style.overflowX || style.overflow} ${style.overflowY}`,
    };
  });
}

/** Whether a person who scrolls through the page can see the element. */
export function isVisible(element, view = window) {
  let box = boxOf(element);
  if (tooSmall(box) || isUnseen(element)) return false;
  if (lookOf(element, view).visibility !== 'visible') return false;

  let opacity = 1;
  let position; // of the box that the ancestors clip
  for (let node = element; node; node = flatParentOf(node)) {
    const look = lookOf(node, view);
    opacity *= look.opacity;
    if (look.isGone || opacity < FAINTEST) return false;

    const clips = position !== 'fixed' && (position !== 'absolute' || look.position !== 'static');
    if (node !== element && clips && !look.scrollsWithWindow) {
      if (/auto|scroll/.test(look.overflow)) {
        if (!scrollerReaches(node, box, look)) return false;
        box = boxOf(node);
      } else if (/hidden|clip/.test(look.overflow)) box = overlap(box, boxOf(node));
    }
    if (tooSmall(box)) return false;
    if (clips) position = look.position;
  }
  return pageReaches(remember(view, () => pageOf(view)), box) && !isCovered(element, view) && !inHiddenFrame(view);
}
