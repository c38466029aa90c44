import { execFileSync } from 'node:child_process';

const reader = new URL('../../../build/dev/tests/browser/formreader', import.meta.url).pathname;

const LOGIN = ['username', 'password'];
const isCard = (kind) => kind.startsWith('cc-');

/** The action that fills a field of the kind; none fills what is not to be filled. */
function actionOf(kind) {
  if (['never', 'new-password', ''].includes(kind)) return undefined;
  if (LOGIN.includes(kind)) return 'login';
  return isCard(kind) ? 'card' : 'identity';
}

/** A user name that is being chosen with a password is nobody's login yet. */
function leaveChosenNames(fields, truth) {
  const kinds = fields.map(({ opid }) => truth[opid]);
  if (!kinds.includes('new-password') || kinds.includes('password')) return;
  for (const { opid } of fields) if (truth[opid] === 'username') truth[opid] = '';
}

/**
 * What became of each field of the described pages: {kind, outcome: 'hit', 'miss' or 'wrong', page, opid, told}.
 * A field may be several things ("username email"); it is hit when each action that fills it fills it with one of them,
 * and wrong when any action puts something else there.
 */
export function score(pages) {
  const input = pages.map(({ page }) => JSON.stringify(page)).join('\n');
  const answers = execFileSync(reader, { input, maxBuffer: 1 << 28 }).toString().trim().split('\n').map((line) => JSON.parse(line));
  return pages.flatMap(({ name, page, truth: marked }, at) => {
    const groups = [...page.forms.map((form) => form.fields), page.elements];
    const fields = groups.flat();
    const truth = { ...marked };
    for (const group of groups) leaveChosenNames(group, truth);
    return fields.filter(({ opid }) => opid in truth).flatMap(({ opid, name: field, id, isFixed, isFilled }) => {
      const kinds = truth[opid].split(' ');
      const told = answers[at][opid];
      const values = Object.entries(told).filter(([action]) => !['read', 'place'].includes(action));
      const wrong = values.some(([, value]) => !kinds.includes(value));
      const hit = !wrong && kinds.some((kind) => told[actionOf(kind)] === kind);
      const placed = kinds[0] === 'new-password' ? Boolean(told.place) : !told.place || kinds[0] === 'password';
      const none = kinds.every((kind) => !actionOf(kind));
      let outcome = 'miss';
      if (wrong || !placed) outcome = 'wrong';
      else if (hit || none) outcome = 'hit';
      // What the page or the user filled already is left as it is.
      if (outcome === 'miss' && (isFixed || isFilled)) return [];
      return { kind: kinds[0], outcome, page: name, field: field || id || opid, told };
    });
  });
}

/** Rows {kind, fields, hit, miss, wrong}, and the same over all. */
export function table(results) {
  const rows = new Map();
  for (const { kind, outcome } of results) {
    const row = rows.get(kind) ?? { kind: kind || '(nothing)', fields: 0, hit: 0, miss: 0, wrong: 0 };
    row.fields += 1;
    row[outcome] += 1;
    rows.set(kind, row);
  }
  return [...rows.values()].sort((a, b) => b.fields - a.fields);
}
