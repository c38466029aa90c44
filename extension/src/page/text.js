import { isElement, matches } from './dom.js';

const LONGEST = 200;
const NOT_READ = 'script, style, noscript, template, select, textarea, [contenteditable]';

/** One line of text: white space and control characters folded, at most 200 characters. */
export function clean(text) {
  const line = String(text ?? '').replace(/[\p{Cc}\p{Cs}\s]+/gu, ' ').trim();
  return line.slice(0, LONGEST).replace(/\p{Cs}$/u, '').trim();
}

/** The text a person reads in a node, without what was typed or chosen there and without the parts named in except. */
export function textOf(node, except) {
  const skip = except ? `${NOT_READ}, ${except}` : NOT_READ;
  if (node.nodeType === Node.TEXT_NODE) return clean(node.data);
  if (!isElement(node) || matches(node, skip)) return '';
  const walker = document.createTreeWalker(node, NodeFilter.SHOW_TEXT | NodeFilter.SHOW_ELEMENT, (inner) => {
    if (!isElement(inner)) return NodeFilter.FILTER_ACCEPT;
    return matches(inner, skip) ? NodeFilter.FILTER_REJECT : NodeFilter.FILTER_SKIP;
  });
  let text = '';
  while (text.length < LONGEST * 4 && walker.nextNode()) text += ` ${walker.currentNode.data}`;
  return clean(text);
}
