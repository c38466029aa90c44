import { attr } from './dom.js';
import { fieldType, fieldsUnder } from './fields.js';
import { isVisible } from './visible.js';
import { USER_NAME } from './words.js';

const TELLING = ['name', 'id', 'class', 'autocomplete', 'placeholder', 'aria-label', 'type'];

const isPassword = (field) => fieldType(field) === 'password';
const isSearch = (field) => field.type === 'search' || field.closest('[role=search], search') !== null;
const isText = (field) => fieldType(field) === 'text' && !isSearch(field);

function isUserName(field) {
  if (!isText(field)) return false;
  const labels = [...(field.labels ?? [])].map((label) => label.textContent);
  const text = [...TELLING.map((name) => attr(field, name)), ...labels].join(' ').toLowerCase();
  return USER_NAME.some((word) => text.includes(word));
}

const KINDS = {
  any: (field) => isPassword(field) || isText(field),
  login: (field) => isPassword(field) || isUserName(field),
  password: isPassword,
};

/** Whether a visible field of the kind ("any", "login", "password") is there. */
export function shows(doc, kind) {
  for (const field of fieldsUnder(doc)) {
    if (KINDS[kind](field) && isVisible(field)) return true;
  }
  return false;
}
