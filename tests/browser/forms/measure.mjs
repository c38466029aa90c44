// Prints how the fields of the pages here are read. node tests/browser/forms/measure.mjs [dev|held|wild|fresh|unseen|later|last|fourth|a folder] [--list] [--chromium]
import { describe, describeInChromium, pagesOf } from './pages.mjs';
import { score, table } from './score.mjs';

const set = process.argv[2] ?? 'dev';
const pages = pagesOf(set);
const results = score(process.argv.includes('--chromium') ? await describeInChromium(pages) : pages.map(describe));
console.table(table(results));
const filled = results.filter(({ told }) => ['login', 'card', 'identity'].some((action) => told[action])).length;
const wrong = results.filter(({ outcome }) => outcome === 'wrong').length;
console.log(`${set}: ${results.length} fields, ${filled} filled, ${wrong} wrongly (${((100 * wrong) / filled).toFixed(1)} %)`);
if (process.argv.includes('--list')) {
  for (const { kind, outcome, page, field, told } of results) {
    if (outcome !== 'hit') console.log(`${outcome} ${kind || '-'} | ${page} | ${field} | ${JSON.stringify(told)}`);
  }
}
