import { attr, elementsUnder } from './dom.js';

// Input types that are no fields to fill; every other word, known or not, is a line of text.
const NOT_FIELDS = new Set(['hidden', 'submit', 'button', 'image', 'reset', 'file', 'color', 'range']);
const OWN_TYPES = new Set(['password', 'radio', 'checkbox']);

function inputType(input) {
  if (NOT_FIELDS.has(input.type)) return undefined;
  return OWN_TYPES.has(input.type) ? input.type : 'text';
}

const TYPES = {
  INPUT: inputType,
  SELECT: (select) => select.type,
  TEXTAREA: () => 'textarea',
};

/** The kind of a field ("text", "password", "select-one", ...), undefined for what is not a field. */
export function fieldType(element) {
  return Object.hasOwn(TYPES, element.tagName) ? TYPES[element.tagName](element) : undefined;
}

/** The words of the field's autocomplete, in lower case: the page may say where it belongs before what it is. */
export const purposeOf = (field) => attr(field, 'autocomplete').toLowerCase().split(/\s+/).filter(Boolean);

const CODE = /(?<!\p{L})(one time|otp|totp|2 ?fa|mfa|two factor|sms|einmal\p{L}*|[ms] ?tan)(?!\p{L})/u;
// On a short field alone: what is verified may be a password, too.
const SHORT_CODE = /(?<!\p{L})(verif|vérif|auth code|security code|bestätigungs|подтвержд)/u;
const LONGEST_CODE = 8;
const NAMING = ['name', 'id', 'placeholder', 'aria-label', 'title'];

/** Whether a field takes a code that is good once, however it is typed. label: what stands beside it. */
export function isCode(field, label) {
  if (purposeOf(field).includes('one-time-code')) return true;
  const text = [...NAMING.map((name) => attr(field, name)), label].join(' ');
  const words = text.replaceAll(/([a-zà-ž])([A-Z])/g, '$1 $2').toLowerCase().replaceAll(/[^\p{L}\p{N}]+/gu, ' ');
  return CODE.test(words) || (field.maxLength > 0 && field.maxLength <= LONGEST_CODE && SHORT_CODE.test(words));
}

/** The type word that the page itself uses. */
export function pageType(field) {
  return field.tagName === 'INPUT' ? attr(field, 'type').trim().toLowerCase() || 'text' : field.type;
}

export function* fieldsUnder(root) {
  for (const element of elementsUnder(root)) {
    if (fieldType(element)) yield element;
  }
}
