import { attr, findAll, parentOf } from './dom.js';
import { fieldType, fieldsUnder, pageType } from './fields.js';
import { clean, textOf } from './text.js';
import { isVisible } from './visible.js';

const MOST_FIELDS = 500;
const NO_FORM = 'none';
// A typed value is never reported, only what the page itself offers to choose from.
const WITH_VALUE = new Set(['select-one', 'select-multiple', 'radio']);
const NEAR = 4;

// FNV-1a: short, stable, and the same for the same field after the page drew it again.
function hash(text) {
  let value = 0x811c9dc5;
  for (const unit of text) value = Math.imul(value ^ unit.codePointAt(0), 0x01000193);
  return (value >>> 0).toString(16).padStart(8, '0');
}

function labelText(field) {
  const root = field.getRootNode();
  const named = attr(field, 'aria-labelledby').split(/\s+/).filter(Boolean).map((id) => root.getElementById(id));
  const labels = [...(field.labels ?? []), ...named].filter(Boolean);
  return clean(labels.map((label) => textOf(label)).join(' '));
}

// The text before the field, up to the next field: in the same line, the cell before, the block above.
// Links and buttons are left out, "Forgot password?" says nothing about the field after it.
function textBefore(field) {
  let node = field;
  for (let level = 0; node && level < NEAR; level += 1, node = parentOf(node)) {
    if (node.tagName === 'FORM' || node.tagName === 'BODY') return '';
    for (let before = node.previousSibling; before; before = before.previousSibling) {
      if (before.nodeType === Node.ELEMENT_NODE && (fieldType(before) || !fieldsUnder(before).next().done)) return '';
      const text = textOf(before, 'a, button, [role=button]');
      if (text) return text;
    }
  }
  return '';
}

function contextText(field) {
  const near = [...['placeholder', 'aria-label', 'title', 'autocomplete'].map((name) => attr(field, name)), textBefore(field)];
  return clean(near.filter(Boolean).join(' '));
}

function describeField(field, opid, position) {
  const [name, id, className] = ['name', 'id', 'class'].map((key) => clean(attr(field, key)));
  const type = fieldType(field);
  const inputtype = clean(pageType(field));
  return {
    opid,
    gpmid: hash([name, id, inputtype, position].join('|')),
    type,
    inputtype,
    visible: isVisible(field),
    name,
    id,
    class: className,
    sourceName: name,
    sourceId: id,
    sourceClass: className,
    sourceLabelFor: labelText(field),
    sourceContext: contextText(field),
    ...(WITH_VALUE.has(type) && { value: clean(field.value) }),
  };
}

function formTitle(form) {
  const [heading] = findAll(form, 'legend, h1, h2, h3, h4');
  return clean(attr(form, 'aria-label') || attr(form, 'title') || (heading ? textOf(heading) : ''));
}

function formAction(form) {
  try {
    return clean(new URL(attr(form, 'action'), document.baseURI).href);
  } catch {
    return '';
  }
}

// The uid, like a gpmid, finds the form again after the page drew it anew.
function describeForm(form, token, place) {
  const [name, id, action] = [clean(attr(form, 'name')), clean(attr(form, 'id')), formAction(form)];
  const formUid = `${token}:${hash([name, id, action, place].join('|'))}`;
  return { formUid, title: formTitle(form), name, id, action, fields: [] };
}

/**
 * The fields of one document: {report: {title, url, icon, forms, elements}, fields}, where fields maps the opid of
 * each reported field to {field, formUid, gpmid, visible}.
 * numberOf gives an element the same number for as long as it lives; token names the document.
 */
export function collect(doc, token, numberOf) {
  const forms = new Map();
  const loose = { formUid: NO_FORM, fields: [] };
  const fields = new Map();

  function groupOf(form) {
    if (!form) return loose;
    if (!forms.has(form)) forms.set(form, describeForm(form, token, forms.size));
    return forms.get(form);
  }

  for (const field of fieldsUnder(doc)) {
    if (fields.size >= MOST_FIELDS) break;
    const group = groupOf(field.form);
    const entry = describeField(field, `${token}:${numberOf(field)}`, group.fields.length);
    group.fields.push(entry);
    fields.set(entry.opid, { field, formUid: group.formUid, gpmid: entry.gpmid, visible: entry.visible });
  }
  const report = {
    title: clean(doc.title),
    url: location.href,
    icon: findAll(doc, 'link[rel~=icon]')[0]?.href,
    forms: [...forms.values()],
    elements: loose.fields,
  };
  return { report, fields };
}
