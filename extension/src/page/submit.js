import { buttonsUnder, captionOf, isSubmitButton } from './buttons.js';
import { attr, findAll, hasAttr, matches, parentOf } from './dom.js';
import { showsPassword, targetOf } from './target.js';
import { waitUntil } from './wait.js';
import { GO_ON, SIGN_IN, findPhrase, leadsElsewhere } from './words.js';

// Pages enable their button only after they noticed the filled fields.
const BUTTON_WAIT = 1000;

const SIGNS_IN = 3;
// How far around a field without a form a button that only says "OK" or "Next" can be meant for it.
const NEAR = 5;
const PARTS_OF_PAGE = 'main, nav, [role=main], [role=navigation], [role=banner], [role=contentinfo]';
const NOTICE = /cookie|consent|gdpr|privacy|banner/i;

function rank(button) {
  const caption = captionOf(button);
  if (leadsElsewhere(caption)) return 0;
  if (findPhrase(caption, SIGN_IN) >= 0) return SIGNS_IN;
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

const isPage = (block) => ['BODY', 'HTML'].includes(block.tagName) || findAll(block, PARTS_OF_PAGE).length > 0;

// A notice or dialog of its own, such as the one that asks about cookies.
function isNotice(element) {
  const named = ['id', 'class', 'aria-label'].some((name) => NOTICE.test(attr(element, name)));
  const floats = ['fixed', 'sticky'].includes(getComputedStyle(element).position);
  return named || floats || matches(element, 'dialog, [role=dialog], [role=alertdialog]');
}

function inNotice(button, block) {
  for (let node = button; node && node !== block; node = parentOf(node)) {
    if (isNotice(node)) return true;
  }
  return false;
}

// Without a form: the closest block around the field that holds a fitting button. Farther away, and in the page as a
// whole, only one that says that it signs in.
function nearButton(field) {
  for (let level = 0, block = parentOf(field); block; level += 1, block = parentOf(block)) {
    const isNear = level < NEAR && !isPage(block);
    const isMeant = (button) => rank(button) === SIGNS_IN || (isNear && !inNotice(button, block));
    const button = best(buttonsUnder(block).filter(isMeant));
    if (button) return button;
  }
  return undefined;
}

const buttonFor = (field) => (field.form ? formButton(field.form, field.getRootNode()) : nearButton(field));

/** The addresses that the field's form could be sent to: its own and that of the button that would be clicked. */
export function targetsOf(field) {
  const { form } = field;
  if (!form) return [];
  const button = formButton(form, field.getRootNode());
  const ways = [undefined, ...(button && isSubmitButton(button) ? [button] : [])];
  return ways.map((submitter) => targetOf(form, submitter)).filter((address) => address !== '');
}

// The page's scripts may do what they like. What the browser itself then would send goes only where it was allowed to,
// and no password into an address. Listens last, when it is known whether a script took it.
function guarded(root, allowed, send) {
  const stage = root === document ? window : root;
  function check(event) {
    if (event.defaultPrevented) return;
    const address = targetOf(event.target, event.submitter);
    const isAllowed = address === '' || allowed.includes(address);
    if (!isAllowed || showsPassword(event.target, event.submitter)) event.preventDefault();
  }
  stage.addEventListener('submit', check);
  send();
  stage.removeEventListener('submit', check);
}

/** Whether the page left the Enter key to the browser. */
function pressEnter(field) {
  field.focus({ preventScroll: true });
  const key = { key: 'Enter', code: 'Enter', keyCode: 13, which: 13, bubbles: true, composed: true, cancelable: true };
  const ignored = ['keydown', 'keypress', 'keyup'].map((type) => field.dispatchEvent(new KeyboardEvent(type, key)));
  return ignored.every(Boolean);
}

/**
 * Sends what was filled, starting from the given field, to no other address than the allowed ones. Resolves with true
 * when nothing on the page took it and a real press of the Enter key is the only way left.
 */
export async function submitFrom(field, allowed) {
  await waitUntil(document, () => buttonFor(field) !== undefined, BUTTON_WAIT);
  const root = field.getRootNode();
  // A click, not requestSubmit: pages that send by script often listen to their button alone.
  const button = buttonFor(field);
  if (button) {
    guarded(root, allowed, () => button.click());
    return false;
  }
  if (!pressEnter(field)) return false;
  const { form } = field;
  if (!form) return document.hasFocus();
  const valid = hasAttr(form, 'novalidate') || HTMLFormElement.prototype.checkValidity.call(form);
  if (valid) guarded(root, allowed, () => HTMLFormElement.prototype.requestSubmit.call(form));
  return false;
}
