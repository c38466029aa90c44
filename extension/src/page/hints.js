import { attr } from './dom.js';
import { clean } from './text.js';
import { tableHead, textAfter } from './surroundings.js';

const MOST_OPTIONS = 300;
const LONGEST_OPTION = 60;
// What a mask or a form shows in a field before anything is typed.
// The letters are those of day, month and year in the languages of Europe: gg/mm/aaaa, pp.kk.vvvv.
const NOTHING_TYPED = /^(?:[^\p{L}\p{N}]*|\+\d{1,3}|https?:\/\/|([dmyjatgrpkvåéhnдмгрηεμх0x#])\1{1,3}(?:[ ./-]+([dmyjatgrpkvåéhnдмгрηεμх0x#])\2{1,3})+\.?)$/iu;
const CHOSEN = new Set(['radio', 'checkbox']);

function optionsOf(select) {
  const text = (value) => clean(value).slice(0, LONGEST_OPTION);
  return [...select.options].slice(0, MOST_OPTIONS).map((option) => ({ text: text(option.text), value: text(option.value) }));
}

// Whether something stands in a line of text; never what.
function isFilled(field) {
  if (field.tagName === 'SELECT' || CHOSEN.has(field.type)) return false;
  return !NOTHING_TYPED.test(field.value) && field.value !== attr(field, 'placeholder');
}

/** What a field says of itself beyond name, id, class and the text near it. Never what was typed into it. */
export function hintsOf(field, { label, before, heading }) {
  const hints = {
    autocomplete: clean(attr(field, 'autocomplete')),
    label,
    placeholder: clean(attr(field, 'placeholder')),
    ariaLabel: clean(attr(field, 'aria-label')),
    title: clean(attr(field, 'title')),
    textBefore: before,
    textAfter: textAfter(field),
    tableHead: tableHead(field),
    heading,
    pattern: clean(attr(field, 'pattern')),
    inputmode: clean(attr(field, 'inputmode')).toLowerCase(),
    isSearch: field.closest('search, [role=search]') !== null,
    isFixed: Boolean(field.readOnly) || field.matches(':disabled'),
    isFilled: isFilled(field),
  };
  if (field.maxLength > 0) hints.maxlength = field.maxLength;
  if (field.tagName === 'SELECT') hints.options = optionsOf(field);
  return hints;
}
