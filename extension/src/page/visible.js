import { boxOf, hasAttr, parentOf } from './dom.js';

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

// What lies left of or above the page can never be scrolled to; to the right and below, the page has its end.
function outsidePage(box, view) {
  const page = view.document.documentElement;
  const width = Math.max(page.scrollWidth, view.innerWidth);
  const height = Math.max(page.scrollHeight, view.innerHeight);
  const [x, y] = [view.scrollX, view.scrollY];
  return box.right + x <= 0 || box.bottom + y <= 0 || box.left + x >= width || box.top + y >= height;
}

function clippedAway(style) {
  if (EMPTY_SHAPES.some((shape) => shape.test(style.clipPath))) return true;
  const clip = /^rect\((.*)\)$/.exec(style.clip ?? '');
  if (!clip || !['absolute', 'fixed'].includes(style.position)) return false;
  const [top, right, bottom, left] = clip[1].split(/[\s,]+/).map(parseFloat);
  return right - left < SMALLEST || bottom - top < SMALLEST;
}

function inHiddenFrame(view) {
  try {
    const frame = view.frameElement;
    return frame !== null && !isVisible(frame, frame.ownerDocument.defaultView);
  } catch {
    return false; // the frame around is of another origin and cannot be asked
  }
}

/** Whether a person who scrolls through the page can see the element. */
export function isVisible(element, view = window) {
  let box = boxOf(element);
  if (tooSmall(box) || (element.checkVisibility && !element.checkVisibility())) return false;
  if (view.getComputedStyle(element).visibility !== 'visible') return false;

  let opacity = 1;
  let position; // of the box that the ancestors clip
  for (let node = element; node; node = parentOf(node)) {
    const style = view.getComputedStyle(node);
    if (style.display === 'none' || style.contentVisibility === 'hidden' || hasAttr(node, 'inert')) return false;
    if (style.opacity !== '') opacity *= Number(style.opacity);
    if (opacity < FAINTEST || clippedAway(style)) return false;

    const clips = position !== 'fixed' && (position !== 'absolute' || style.position !== 'static');
    const isInner = node !== element && node !== view.document.documentElement && node !== view.document.body;
    if (isInner && clips) {
      const overflow = `${style.overflow} ${style.overflowX} ${style.overflowY}`;
      if (/auto|scroll/.test(overflow)) box = boxOf(node);
      else if (/hidden|clip/.test(overflow)) box = overlap(box, boxOf(node));
    }
    if (tooSmall(box)) return false;
    if (clips) position = style.position;
  }
  return !outsidePage(box, view) && !inHiddenFrame(view);
}
