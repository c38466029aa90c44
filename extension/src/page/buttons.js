import { attr, elementsUnder, matches } from './dom.js';
import { clean, textOf } from './text.js';
import { isVisible } from './visible.js';

const BUTTONS = 'button, input[type=submit], input[type=button], input[type=image], [role=button]';

/** The words on a button or link. */
export function captionOf(element) {
  return clean(
    attr(element, 'aria-label') || textOf(element) || attr(element, 'value') || attr(element, 'alt') || attr(element, 'title'),
  );
}

export const isButton = (element) => matches(element, BUTTONS);

const usable = (element) => !element.disabled && attr(element, 'aria-disabled') !== 'true' && isVisible(element);

/** The visible elements under root that match and can be clicked. */
export function clickable(root, selector) {
  return [...elementsUnder(root)].filter((element) => matches(element, selector) && usable(element));
}

export function buttonsUnder(root) {
  return clickable(root, BUTTONS);
}

/** A button that sends its form. */
export function isSubmitButton(element) {
  const words = { BUTTON: ['submit'], INPUT: ['submit', 'image'] }[element.tagName] ?? [];
  return Boolean(element.form) && words.includes(element.type);
}
