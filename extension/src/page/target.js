import { attr, hasAttr, rootOf } from './dom.js';
import { fieldType, fieldsUnder } from './fields.js';

function read(form, submitter, own, theirs) {
  return (submitter && hasAttr(submitter, theirs) ? attr(submitter, theirs) : attr(form, own)).trim();
}

/** The address that a form is sent to, by the given button if any; empty when it stays in its document. */
export function targetOf(form, submitter) {
  const action = read(form, submitter, 'action', 'formaction');
  const isDialog = read(form, submitter, 'method', 'formmethod').toLowerCase() === 'dialog';
  if (action === '' || isDialog || /^javascript:/i.test(action)) return '';
  try {
    return new URL(action, document.baseURI).href;
  } catch {
    return 'about:invalid';
  }
}

/** Whether sending the form without a script of the page's would put a password into the address. */
export function showsPassword(form, submitter) {
  if (['post', 'dialog'].includes(read(form, submitter, 'method', 'formmethod').toLowerCase())) return false;
  const isSent = (field) =>
    field.form === form && fieldType(field) === 'password' && !field.disabled && attr(field, 'name') !== '' && field.value !== '';
  return [...fieldsUnder(rootOf(form))].some(isSent);
}
