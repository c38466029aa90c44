import { attr, elementsUnder } from './dom.js';
import { chooseIndex } from './choice.js';
import { fieldType } from './fields.js';
import { clean, textOf } from './text.js';

const GLOW_MS = 1000;
const GLOW = [{ boxShadow: '0 0 0 3px rgba(8, 116, 144, 0.6)' }, { boxShadow: '0 0 0 3px rgba(8, 116, 144, 0)' }];

// Frameworks watch their fields through a property on the element itself; only the browser's own setter
// leaves them a difference to notice.
function setNatively(prototype, property, field, value) {
  Object.getOwnPropertyDescriptor(prototype, property).set.call(field, value);
}

function announce(field, type, EventKind = Event, options = {}) {
  field.dispatchEvent(new EventKind(type, { bubbles: true, composed: true, ...options }));
}

// A window in the background gives its fields no focus events, and while the program is used it is in the
// background. The second event of each pair is the one that bubbles.
function moveFocus(field, act, silent, bubbling) {
  const missing = new Set([silent, bubbling]);
  const listen = (event) => missing.delete(event.type);
  field.addEventListener(silent, listen);
  field.addEventListener(bubbling, listen);
  act();
  field.removeEventListener(silent, listen);
  field.removeEventListener(bubbling, listen);
  for (const type of missing) announce(field, type, FocusEvent, { bubbles: type === bubbling });
}

const enter = (field) => moveFocus(field, () => field.focus({ preventScroll: true }), 'focus', 'focusin');
const leave = (field) => moveFocus(field, () => field.blur(), 'blur', 'focusout');

function fillText(field, value) {
  const prototype = field.tagName === 'TEXTAREA' ? HTMLTextAreaElement.prototype : HTMLInputElement.prototype;
  const plain = field.type === 'number' ? value.replace(/[\s-]/g, '') : value;
  const typed = field.maxLength >= 0 ? plain.slice(0, field.maxLength) : plain;
  enter(field);
  announce(field, 'keydown', KeyboardEvent);
  setNatively(prototype, 'value', field, typed);
  announce(field, 'input', InputEvent, { inputType: 'insertReplacementText' });
  announce(field, 'keyup', KeyboardEvent);
  announce(field, 'change');
  leave(field);
  return field.value !== '' || typed === '';
}

function fillSelect(field, value) {
  const choices = [...field.options].map(({ disabled, text, value: own }) =>
    disabled ? { text: '', value: '' } : { text: clean(text), value: own },
  );
  const index = chooseIndex(choices, value, document.documentElement.lang);
  if (index < 0) return false;
  enter(field);
  setNatively(HTMLSelectElement.prototype, 'selectedIndex', field, index);
  announce(field, 'input');
  announce(field, 'change');
  leave(field);
  return true;
}

// The group is answered through any of its buttons.
function fillRadio(field, value) {
  const together = (other) =>
    fieldType(other) === 'radio' && other.form === field.form && field.name !== '' && other.name === field.name;
  const group = [...elementsUnder(field.getRootNode())].filter((other) => other === field || together(other));
  const choices = group.map((radio) => ({
    text: clean([...radio.labels].map((label) => textOf(label)).join(' ') || attr(radio, 'aria-label')),
    value: radio.value,
  }));
  const radio = group[chooseIndex(choices, value, document.documentElement.lang)];
  if (!radio || radio.disabled) return false;
  if (!radio.checked) radio.click();
  return true;
}

const FILLERS = {
  'text': fillText,
  'password': fillText,
  'textarea': fillText,
  'select-one': fillSelect,
  'select-multiple': fillSelect,
  'radio': fillRadio,
};

function glow(field) {
  if (globalThis.matchMedia?.('(prefers-reduced-motion: reduce)').matches) return;
  field.animate?.(GLOW, { duration: GLOW_MS, easing: 'ease-out' });
}

/** Puts the value into the field as a person would; false when the field does not take it. */
export function fillField(field, value) {
  const filler = FILLERS[fieldType(field)];
  if (!filler || !field.isConnected || field.disabled || field.readOnly || field.matches(':disabled')) return false;
  if (!filler(field, value)) return false;
  glow(field);
  return true;
}
