import { buttonsUnder, captionOf, isSubmitButton } from './buttons.js';
import { hasAttr, parentOf } from './dom.js';
import { waitUntil } from './wait.js';
import { GO_ON, SIGN_IN, findPhrase, leadsElsewhere } from './words.js';

// Pages enable their button only after they noticed the filled fields.
const BUTTON_WAIT = 1000;

function rank(button) {
  const caption = captionOf(button);
  if (leadsElsewhere(caption)) return 0;
  if (findPhrase(caption, SIGN_IN) >= 0) return 3;
  if (findPhrase(caption, GO_ON) >= 0) return 2;
  return isSubmitButton(button) ? 1 : 0;
}

function best(buttons) {
  const ranked = buttons.map((button) => ({ button, score: rank(button) })).filter(({ score }) => score > 0);
  return ranked.sort((a, b) => b.score - a.score)[0]?.button;
}

function formButton(form, root) {
  const inForm = (button) => button.form === form || Node.prototype.contains.call(form, button);
  return best(buttonsUnder(root).filter(inForm));
}

// Without a form: the closest block around the field that holds a fitting button.
function nearButton(field) {
  for (let block = parentOf(field); block; block = parentOf(block)) {
    const button = best(buttonsUnder(block));
    if (button) return button;
  }
  return undefined;
}

const buttonFor = (field) => (field.form ? formButton(field.form, field.getRootNode()) : nearButton(field));

/** Whether the page left the Enter key to the browser. */
function pressEnter(field) {
  field.focus({ preventScroll: true });
  const key = { key: 'Enter', code: 'Enter', keyCode: 13, which: 13, bubbles: true, composed: true, cancelable: true };
  const ignored = ['keydown', 'keypress', 'keyup'].map((type) => field.dispatchEvent(new KeyboardEvent(type, key)));
  return ignored.every(Boolean);
}

/**
 * Sends what was filled, starting from the given field. Resolves with true when nothing on the page took it
 * and a real press of the Enter key is the only way left.
 */
export async function submitFrom(field) {
  await waitUntil(document, () => buttonFor(field) !== undefined, BUTTON_WAIT);
  // A click, not requestSubmit: pages that send by script often listen to their button alone, and sending
  // such a form natively could put the password into the address.
  const button = buttonFor(field);
  if (button) {
    button.click();
    return false;
  }
  if (!pressEnter(field)) return false;
  const { form } = field;
  if (!form) return document.hasFocus();
  const valid = hasAttr(form, 'novalidate') || HTMLFormElement.prototype.checkValidity.call(form);
  if (valid) HTMLFormElement.prototype.requestSubmit.call(form);
  return false;
}
