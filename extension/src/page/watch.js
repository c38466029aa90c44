import { findAll, isElement, matches, shadowRootOf } from './dom.js';
import { isOwnHost } from './icon.js';

// A page may change hundreds of times a second; what it added is looked at this often, and only while nothing else waits.
const PAUSE = 250;
const LEAST_TIME = 3;
// On a page that is never idle too it takes no more of a turn.
const MOST_TIME = 8;
const STEP = 200;
const TELLING = ['class', 'style', 'hidden', 'open', 'inert', 'disabled', 'readonly', 'type'];
// What decides whether an input is one to fill.
const DECIDING = new Set(['disabled', 'readonly', 'type']);

/**
 * Watches a document and its shadow trees: onField gets every input once, and again
 * when it may have become one to fill; onChange is told after changes that may have
 * moved, hidden or covered fields.
 */
export function watch(doc, { onField, onChange }) {
  const seen = new WeakSet();
  const observer = new MutationObserver(note);
  let added = [];
  let work; // an unfinished look: a generator
  let planned = false;

  function* look(root) {
    for (const field of isElement(root) && matches(root, 'input') ? [root] : findAll(root, 'input')) {
      if (!seen.has(field)) {
        seen.add(field);
        onField(field);
        yield;
      }
    }
    // Whatever may be a host of a shadow tree.
    const hosts = isElement(root) ? [root, ...findAll(root, '*')] : findAll(root, '*');
    for (let index = 0; index < hosts.length; index += 1) {
      const inner = isOwnHost(hosts[index]) ? null : shadowRootOf(hosts[index]);
      if (inner && !seen.has(inner)) {
        seen.add(inner);
        observe(inner);
        yield* look(inner);
      }
      if (index % STEP === STEP - 1) yield;
    }
  }

  function* lookAll() {
    const roots = added;
    added = [];
    for (const root of roots) if (root.isConnected) yield* look(root);
  }

  function run(deadline) {
    work ??= lookAll();
    const end = performance.now() + MOST_TIME;
    while (performance.now() < end && (deadline.didTimeout || deadline.timeRemaining() > LEAST_TIME)) {
      if (!work.next().done) continue;
      work = undefined;
      planned = false;
      onChange();
      if (added.length > 0) plan();
      return;
    }
    runSoon();
  }

  const runSoon = () => requestIdleCallback(run, { timeout: 1000 });

  function plan() {
    if (planned) return;
    planned = true;
    setTimeout(runSoon, PAUSE);
  }

  function note(records) {
    for (const { addedNodes, attributeName, target } of records) {
      for (const node of addedNodes) if (isElement(node)) added.push(node);
      if (!DECIDING.has(attributeName) || !matches(target, 'input') || !seen.delete(target)) continue;
      added.push(target);
    }
    plan();
  }

  function observe(root) {
    observer.observe(root, { childList: true, subtree: true, attributes: true, attributeFilter: TELLING });
  }

  function start(root) {
    observe(root);
    added.push(root);
    // Who opens a page shall not wait for its crystals.
    planned = true;
    runSoon();
  }

  start(doc);
  return { stop: () => observer.disconnect() };
}
