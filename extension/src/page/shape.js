import { attr, findAll, matches, parentOf, rootOf } from './dom.js';
import { fieldType, fieldsUnder, isCode, purposeOf } from './fields.js';
import { labelText } from './surroundings.js';
import { clean, textOf } from './text.js';
import { isVisible } from './visible.js';

// How far around fields without a form others can belong to them.
const NEAR = 8;
const NAMES = new Set(['text', 'email', 'tel', 'number', '']);
const WRONG = '[aria-invalid=true], [role=alert], [class*=error i], [class*=invalid i], [class*=danger i]';

/** A code that is good once is no password, however it is typed. */
export const isPassword = (field) => fieldType(field) === 'password' && !isCode(field, labelText(field));
/** A line that can hold a user name. */
export const isName = (field) => fieldType(field) === 'text' && NAMES.has(attr(field, 'type').trim().toLowerCase());

const isLine = (field) => isPassword(field) || isName(field);

/** The fields that belong together around an element: those of its form, else those near it that have none. */
export function groupAround(element) {
  const form = matches(element, 'form') ? element : element.form;
  if (form) return [...fieldsUnder(rootOf(form))].filter((field) => field.form === form);
  let group = fieldType(element) ? [element] : [];
  for (let level = 0, block = parentOf(element); block && level < NEAR; level += 1, block = parentOf(block)) {
    group = [...fieldsUnder(block)].filter((field) => !field.form);
    const others = group.filter((field) => field !== element && isLine(field) && isVisible(field));
    if (others.length > 0 || block.tagName === 'BODY') break;
  }
  // A button may stand beside the password alone.
  const password = fieldType(element) || group.some(isName) ? undefined : group.find(isPassword);
  return password ? groupAround(password) : group;
}

/** What tells a form again after the page drew it anew: how many passwords and lines it shows, and whether new ones. */
export function shapeOf(group, isSecret = isPassword) {
  const visible = group.filter((field) => isVisible(field));
  const passwords = visible.filter(isSecret);
  return {
    passwords: passwords.length,
    lines: visible.filter((field) => isName(field) && !isSecret(field)).length,
    fresh: passwords.length > 1 || passwords.some((field) => purposeOf(field).includes('new-password')),
  };
}

// Said in the form, or about one of its fields.
function isRefused(group) {
  const [first] = group;
  const block = first.form ?? parentOf(parentOf(first) ?? first) ?? first;
  const marks = [...findAll(block, WRONG)];
  return marks.some((mark) => isVisible(mark) && (matches(mark, 'input') || clean(textOf(mark)) !== ''));
}

/** The forms of a document that show a password: their shapes, whether all passwords are empty, whether one is refused. */
export function passwordForms(doc, isSecret = isPassword) {
  const forms = [];
  const seen = new Set();
  for (const field of fieldsUnder(doc)) {
    if (!isSecret(field) || seen.has(field) || !isVisible(field)) continue;
    const group = groupAround(field);
    group.forEach((each) => seen.add(each));
    const passwords = group.filter(isSecret);
    const empty = passwords.every(({ value }) => value === '');
    forms.push({ ...shapeOf(group, isSecret), empty, wrong: isRefused(group) });
  }
  return forms;
}
