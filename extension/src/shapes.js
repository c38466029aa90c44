// What page/shape.js says of the forms with passwords that a page shows, compared with the one that was sent.

/** Whether it is the same form, drawn anew; one that asks for one password more or less is another. */
function isAlike(one, other) {
  if (one.passwords !== other.passwords || one.fresh !== other.fresh) return false;
  return one.passwords > 1 || Math.abs(one.lines - other.lines) <= 1;
}

/**
 * Whether a form that was sent is still there, so that the page did not accept it. Pages on which a password is changed
 * keep their form, emptied.
 */
export function isStillAsked(shape, forms) {
  const same = forms.filter((form) => isAlike(shape, form));
  if (shape.passwords < 2) return same.length > 0;
  return same.some(({ empty, wrong }) => !empty || wrong);
}
