import { attr, matches, parentOf } from './dom.js';
import { fieldType, fieldsUnder } from './fields.js';
import { clean, textOf } from './text.js';

const NEAR = 4;
const AFTER_NEAR = 1;
// "Forgot password?" says nothing about the field after it.
const NO_CAPTION = 'a, button, [role=button]';
const NEXT = { before: 'previousSibling', after: 'nextSibling' };

// Where another field, or what is written for one, begins, the text is no longer this field's.
function isOthers(node, field) {
  if (node.nodeType !== Node.ELEMENT_NODE) return false;
  if (node.tagName === 'LABEL' && node.control && node.control !== field) return true;
  return Boolean(fieldType(node)) || !fieldsUnder(node).next().done;
}

// In the row above only the cell of the same column speaks of the field.
function sameColumn(row, field) {
  const column = row.tagName === 'TR' ? field.closest('td, th')?.cellIndex : undefined;
  return row.cells?.length > 1 && column !== undefined ? (row.cells[column] ?? row) : row;
}

const WORD = /[\p{L}\p{N}]/u;
const ASIDE = /^\([^()]*\)[.:*]?$/;

// A bracket or a stroke before a part of a number is no caption, nor is "(6 to 30 characters)", but better than what
// belongs to the next field.
function textBeside(field, side, levels) {
  let node = field;
  let sign = '';
  for (let level = 0; node && level < levels; level += 1, node = parentOf(node)) {
    if (node.tagName === 'FORM' || node.tagName === 'BODY') return sign;
    for (let beside = node[NEXT[side]]; beside; beside = beside[NEXT[side]]) {
      if (isOthers(beside, field) || (side === 'after' && beside.nodeName === 'BR')) return sign;
      const text = textOf(sameColumn(beside, field), NO_CAPTION);
      if (WORD.test(text) && !ASIDE.test(text)) return text;
      sign ||= text;
    }
  }
  return sign;
}

/** The text before the field, up to the next field: in the same line, the cell before, the block above. */
export const textBefore = (field) => textBeside(field, 'before', NEAR);

/** The text behind the field in its line, where some pages have their labels. */
export const textAfter = (field) => textBeside(field, 'after', AFTER_NEAR);

const isHead = (cell) => matches(cell, 'th, thead td');

/** The head of the column that the field stands in. */
export function tableHead(field) {
  const cell = field.closest('td');
  const table = cell?.closest('table');
  if (!table) return '';
  const heads = [...(table.rows[0]?.cells ?? [])];
  const head = heads.length > 1 && heads.every(isHead) ? heads[cell.cellIndex] : undefined;
  return head ? textOf(head) : '';
}

/** The text of the labels and of the elements that are named as labels. */
export function labelText(field) {
  const root = field.getRootNode();
  const named = attr(field, 'aria-labelledby').split(/\s+/).filter(Boolean).map((id) => root.getElementById(id));
  const labels = [...(field.labels ?? []), ...named].filter(Boolean);
  return clean(labels.map((label) => textOf(label)).join(' '));
}
