import { elementsUnder, shadowRootOf } from './dom.js';

const CALM = 50;
// Finds what no event announces: a shadow tree attached later, a style rule that arrives.
const LOOK_AGAIN = 500;

function* rootsOf(doc) {
  yield doc;
  for (const element of elementsUnder(doc)) {
    const inner = shadowRootOf(element);
    if (inner) yield inner;
  }
}

/** Resolves with true as soon as the condition holds, with false when it does not within the milliseconds. */
export function waitUntil(doc, condition, milliseconds) {
  if (condition()) return Promise.resolve(true);
  return new Promise((resolve) => {
    let planned;
    const observer = new MutationObserver(plan);
    const interval = setInterval(check, LOOK_AGAIN);
    const limit = setTimeout(() => finish(condition()), milliseconds);

    function finish(result) {
      observer.disconnect();
      doc.removeEventListener('transitionend', plan, true);
      doc.removeEventListener('animationend', plan, true);
      clearInterval(interval);
      clearTimeout(planned);
      clearTimeout(limit);
      resolve(result);
    }

    function check() {
      planned = undefined;
      if (condition()) finish(true);
    }

    // A busy page changes hundreds of times a second; one look after the changes is enough.
    function plan() {
      planned ??= setTimeout(check, CALM);
    }

    for (const root of rootsOf(doc)) observer.observe(root, { childList: true, subtree: true, attributes: true });
    doc.addEventListener('transitionend', plan, true);
    doc.addEventListener('animationend', plan, true);
  });
}
