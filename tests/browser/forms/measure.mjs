// Prints how the fields of the pages here are read. node tests/browser/forms/measure.mjs [dev|held|wild] [--list]
import { describe, pagesOf } from './pages.mjs';
import { score, table } from './score.mjs';

const set = process.argv[2] ?? 'dev';
const results = score(pagesOf(set).map(describe));
console.table(table(results));
const filled = results.filter(({ told }) => ['login', 'card', 'identity'].some((action) => told[action])).length;
const wrong = results.filter(({ outcome }) => outcome === 'wrong').length;
console.log(`${set}: ${results.length} fields, ${filled} filled, ${wrong} wrongly (${((100 * wrong) / filled).toFixed(1)} %)`);
if (process.argv.includes('--list')) {
  for (const { kind, outcome, page, field, told } of results) {
    if (outcome !== 'hit') console.log(`${outcome} ${kind || '-'} | ${page} | ${field} | ${JSON.stringify(told)}`);
  }
}
