import { captionOf } from './buttons.js';
import { attr, elementsUnder, findAll, matches, titleOf } from './dom.js';
import { fieldType, pageType } from './fields.js';
import { hintsOf } from './hints.js';
import { labelText, textBefore } from './surroundings.js';
import { clean, textOf } from './text.js';
import { isVisible, readingOnce } from './visible.js';

const MOST_FIELDS = 1000;
const NO_FORM = 'none';
// A typed value is never reported, only what the page itself offers to choose from.
const WITH_VALUE = new Set(['select-one', 'select-multiple', 'radio']);
const HEADINGS = 'h1, h2, h3, h4, h5, h6, legend, [role=heading]';
const SENDING = 'button:not([type=button], [type=reset]), input[type=submit], input[type=image]';
const MOST_BUTTONS = 4;
const SMALLEST_ICON = 32;

// FNV-1a: short, stable, and the same for the same field after the page drew it again.
function hash(text) {
  let value = 0x811c9dc5;
  for (const unit of text) value = Math.imul(value ^ unit.codePointAt(0), 0x01000193);
  return (value >>> 0).toString(16).padStart(8, '0');
}

function contextText(field, before) {
  const near = [...['placeholder', 'aria-label', 'title'].map((name) => attr(field, name)), before];
  return clean(near.filter(Boolean).join(' '));
}

function describeField(field, opid, position, heading) {
  const [name, id, className] = ['name', 'id', 'class'].map((key) => clean(attr(field, key)));
  const type = fieldType(field);
  const inputtype = clean(pageType(field));
  const before = textBefore(field);
  const label = labelText(field);
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
    sourceLabelFor: label,
    sourceContext: contextText(field, before),
    ...hintsOf(field, { label, before, heading }),
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
  const buttons = findAll(form, SENDING);
  const captions = [...buttons].slice(0, MOST_BUTTONS).map(captionOf).filter(Boolean);
  return { formUid, title: formTitle(form), name, id, action, buttons: captions, fields: [] };
}

// A picture of the size that lists show, if the page has one.
function iconOf(doc) {
  const links = [...findAll(doc, 'link[rel~=icon], link[rel=apple-touch-icon]')];
  const pictures = links.filter(({ href, type }) => /^https?:/.test(href) && !/svg/i.test(`${type} ${href}`));
  const isLarge = (link) => !(parseInt(attr(link, 'sizes'), 10) < SMALLEST_ICON);
  return (pictures.find(isLarge) ?? pictures[0])?.href;
}

/**
 * The fields of one document: {report: {title, url, icon, forms, elements}, fields}, where fields maps the opid of
 * each reported field to {field, formUid, gpmid, visible}.
 * numberOf gives an element the same number for as long as it lives; token names the document.
 */
export const collect = (doc, token, numberOf) => readingOnce(() => describe(doc, token, numberOf));

function describe(doc, token, numberOf) {
  const forms = new Map();
  const loose = { formUid: NO_FORM, fields: [] };
  const fields = new Map();

  function groupOf(form) {
    if (!form) return loose;
    if (!forms.has(form)) forms.set(form, describeForm(form, token, forms.size));
    return forms.get(form);
  }

  let heading = '';
  for (const element of elementsUnder(doc)) {
    if (fields.size >= MOST_FIELDS) break;
    if (matches(element, HEADINGS)) heading = textOf(element);
    if (!fieldType(element)) continue;
    const group = groupOf(element.form);
    const entry = describeField(element, `${token}:${numberOf(element)}`, group.fields.length, heading);
    group.fields.push(entry);
    fields.set(entry.opid, { field: element, formUid: group.formUid, gpmid: entry.gpmid, visible: entry.visible });
  }
  const report = {
    title: clean(titleOf(doc)),
    url: location.href,
    language: clean(attr(doc.documentElement, 'lang')),
    icon: iconOf(doc),
    forms: [...forms.values()],
    elements: loose.fields,
  };
  return { report, fields };
}
