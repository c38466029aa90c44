import { collect } from './collect.js';
import { fillField } from './fill.js';
import { shows } from './presence.js';
import { passwordForms } from './shape.js';
import { waysToSignIn } from './signin.js';
import { submitFrom, targetsOf } from './submit.js';
import { isVisible } from './visible.js';
import { waitUntil } from './wait.js';

function createPage(doc) {
  const token = [...crypto.getRandomValues(new Uint8Array(16))].map((byte) => byte.toString(16).padStart(2, '0')).join('');
  const numbers = new WeakMap();
  let lastNumber = 0;
  let reported = new Map();
  let ways = [];

  function numberOf(element) {
    if (!numbers.has(element)) numbers.set(element, (lastNumber += 1));
    return numbers.get(element);
  }

  function look() {
    const { report, fields } = collect(doc, token, numberOf);
    reported = fields;
    return report;
  }

  // A page that drew its form again since it was reported has new elements in the old places.
  function findField({ opid, gpmid }, formUid) {
    const known = reported.get(opid);
    if (!known || known.field.isConnected) return known?.field;
    const redrawn = [...collect(doc, token, numberOf).fields.values()];
    return redrawn.find((entry) => entry.gpmid === gpmid && entry.formUid === known.formUid && formUid === known.formUid)?.field;
  }

  return {
    token: () => token,
    collect: () => ({ ...look(), origin: self.origin, token }),
    shows: ({ kind }) => shows(doc, kind),
    waitFor: ({ kind, milliseconds }) => waitUntil(doc, () => shows(doc, kind), milliseconds),

    /** Where the forms of the fields would be sent to. */
    targets({ formUid, elements }) {
      const fields = elements.map((element) => findField(element, formUid)).filter(Boolean);
      return [...new Set(fields.flatMap(targetsOf))];
    },

    /** What was filled: {all: every field took its value, some, password: a password field is among them}. */
    fill({ formUid, elements, isNew }) {
      const filled = elements.map((element) => {
        const field = findField(element, formUid);
        const isStillThere = field && (!reported.get(element.opid).visible || isVisible(field));
        return isStillThere && fillField(field, element.value) ? field : undefined;
      });
      const fields = filled.filter(Boolean);
      fields.forEach((field) => globalThis[Symbol.for('glaceron.typed')]?.filled(field, isNew));
      return {
        all: fields.length === elements.length,
        some: fields.length > 0,
        password: fields.some((field) => field.type === 'password'),
      };
    },

    /** Sends the form of the given field; true when only a real press of the Enter key can do it. */
    async submit({ formUid, element, allowed }) {
      const field = findField(element, formUid);
      return field ? submitFrom(field, allowed) : false;
    },

    /** The forms that show a password, and what the site's server said of the page. */
    passwordForms: () => ({
      forms: passwordForms(doc),
      status: performance.getEntriesByType?.('navigation')[0]?.responseStatus ?? 0,
    }),

    waysToSignIn() {
      ways = waysToSignIn(doc);
      return ways.map(({ address }) => address);
    },

    click({ way }) {
      ways[way]?.element.click();
    },
  };
}

// A symbol, since an element's id could stand for a global of that name. The script is run again for every
// request, and fields already reported must keep their names.
globalThis[Symbol.for('glaceron')] ??= createPage(document);
