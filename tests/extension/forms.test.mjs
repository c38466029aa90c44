// The whole way from a page's HTML to what the program would fill, over the pages in tests/browser/forms/.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { describe, pagesOf } from '../browser/forms/pages.mjs';
import { score, table } from '../browser/forms/score.mjs';

const FLOORS = { username: 0.97, password: 0.97 };
// One miss is allowed where there are few fields of a kind.
const FLOOR = 0.9;
const MOST_WRONG = 0.01;

for (const set of ['dev', 'held', 'wild', 'fresh', 'unseen', 'later', 'last', 'fourth']) {
  test(`the fields of the ${set} pages are read as people read them`, () => {
    const results = score(pagesOf(set).map(describe));
    for (const { kind, fields, hit } of table(results)) {
      assert.ok(hit + 1 >= fields || hit / fields >= (FLOORS[kind] ?? FLOOR), `${kind}: ${hit} of ${fields}`);
    }
    const filled = results.filter(({ told }) => ['login', 'card', 'identity'].some((action) => told[action]));
    const wrong = results.filter(({ outcome }) => outcome === 'wrong');
    const list = wrong.map(({ page, field, told }) => `${page} ${field} ${JSON.stringify(told)}`).join('\n');
    assert.ok(wrong.length <= MOST_WRONG * filled.length, list);
  });
}
