import { boxOf } from './dom.js';

// Scrolling reaches from where the content begins to its end: to the left where it is written from right to left.
function reaches({ box, x, y, width, scrollWidth, scrollHeight, direction }, inner) {
  const [left, top] = [inner.left - box.left + x, inner.top - box.top + y];
  const start = direction === 'rtl' ? width - scrollWidth : 0;
  return (
    left + inner.right - inner.left > start && left < start + scrollWidth &&
    top + inner.bottom - inner.top > 0 && top < scrollHeight
  );
}

/** Whether scrolling the element can bring the box, in window coordinates, into its view. */
export function scrollerReaches(scroller, inner, style) {
  const { left, top } = boxOf(scroller);
  return reaches({
    box: { left: left + scroller.clientLeft, top: top + scroller.clientTop },
    x: scroller.scrollLeft,
    y: scroller.scrollTop,
    width: scroller.clientWidth,
    scrollWidth: scroller.scrollWidth,
    scrollHeight: scroller.scrollHeight,
    direction: style.direction,
  }, inner);
}

/** How far the page in the window can be scrolled, for pageReaches. */
export function pageOf(view) {
  const { documentElement: page, body } = view.document;
  return {
    box: { left: 0, top: 0 },
    x: view.scrollX,
    y: view.scrollY,
    width: page.clientWidth || view.innerWidth,
    scrollWidth: Math.max(page.scrollWidth, view.innerWidth),
    scrollHeight: Math.max(page.scrollHeight, view.innerHeight),
    direction: view.getComputedStyle(body ?? page).direction,
  };
}

/** Whether scrolling the page can bring the box into the window. */
export const pageReaches = reaches;
