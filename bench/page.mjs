// What the extension costs a page, in the browsers themselves. node bench/page.mjs [chromium|firefox ...]
// 1. A page of 10,000 nodes that changes 100 times a second: how much more of each second the browser's processes work
//    with the extension than without. Processor time, so that whatever else the machine does counts little.
// 2. Describing a page of 1,000 fields, by the script that does it in the page.

import { readFileSync, readdirSync } from 'node:fs';
import { loadavg } from 'node:os';
import { setTimeout } from 'node:timers/promises';
import { BROWSERS, launchBrowser } from '../tests/e2e/browser.mjs';
import { startProgram } from '../tests/e2e/program.mjs';
import { startSite } from '../tests/e2e/site.mjs';

const SECONDS = 10;
const ROUNDS = Number(process.env.ROUNDS ?? 3);
const NODES = 10000;
const FIELDS = 1000;
const DESCRIPTIONS = 60;

const row = (index) => `<p class=row>${index} <b>text</b></p>`;
const FORM = '<form><input name=user autocomplete=username><input type=password name=pw><button>Log in</button></form>';
const CHANGING = `<!doctype html><style>.row{margin:0}</style>${FORM}<div id=list>${Array.from({ length: NODES / 2 }, (_, index) => row(index)).join('')}</div>
  <script>
    const rows = [...document.querySelectorAll('.row')];
    let turn = 0;
    setInterval(() => {
      const row = rows[turn % rows.length];
      const next = document.createElement('p');
      next.className = 'row';
      next.innerHTML = turn + ' <b>new</b><input type=text style="display:none">';
      row.replaceWith(next);
      rows[turn % rows.length] = next;
      rows[(turn * 7) % rows.length].classList.toggle('odd');
      turn += 1;
    }, 10);
  </script>`;
const field = (index) => `<tr><th><label for=f${index}>Field ${index}</label></th><td><input id=f${index} name=field${index} placeholder="value ${index}"></td></tr>`;
const LARGE = `<!doctype html><title>Large</title><form><table>${Array.from({ length: FIELDS }, (_, index) => field(index)).join('')}</table></form>`;

const median = (numbers) => [...numbers].sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
const kinds = process.argv.length > 2 ? process.argv.slice(2) : BROWSERS;

const TICKS = 100; // a second, in /proc

function statOf(pid) {
  const fields = readFileSync(`/proc/${pid}/stat`, 'utf8').replace(/^.*\) /, '').split(' ');
  return { parent: Number(fields[1]), seconds: (Number(fields[11]) + Number(fields[12])) / TICKS };
}

/** The processor time of a process and all below it, in seconds. */
function timeOf(root) {
  const all = new Map();
  for (const pid of readdirSync('/proc').filter((name) => /^\d+$/.test(name)).map(Number)) {
    try {
      all.set(pid, statOf(pid));
    } catch {
      // it ended
    }
  }
  const isBelow = (pid) => pid === root || (all.has(pid) && isBelow(all.get(pid).parent));
  return [...all].filter(([pid]) => isBelow(pid)).reduce((sum, [, { seconds }]) => sum + seconds, 0);
}

/** How much of a processor the browser needs while it shows the page. */
async function workAt(browser, url) {
  const page = await browser.newPage();
  await page.goto(url);
  await setTimeout(3000);
  const [start, before] = [performance.now(), timeOf(browser.process().pid)];
  await setTimeout(SECONDS * 1000);
  const share = (timeOf(browser.process().pid) - before) / ((performance.now() - start) / 1000);
  await page.close();
  return share;
}

/** How much of the time the extension's scripts run in the page: Chromium alone tells, but whatever else runs counts nothing. */
async function scriptShare(browser, url) {
  const page = await browser.newPage();
  const session = await page.createCDPSession();
  await page.goto(url);
  await setTimeout(3000);
  await session.send('Profiler.enable');
  await session.send('Profiler.setSamplingInterval', { interval: 200 });
  await session.send('Profiler.start');
  await setTimeout(SECONDS * 1000);
  const { profile: { nodes, samples, timeDeltas } } = await session.send('Profiler.stop');
  await page.close();
  const own = new Set();
  const mark = (node, isOwn) => {
    const isOurs = isOwn || node.callFrame.url.startsWith('chrome-extension:');
    if (isOurs) own.add(node.id);
    for (const child of node.children ?? []) mark(nodes.find(({ id }) => id === child), isOurs);
  };
  mark(nodes[0], false);
  const sum = (numbers) => numbers.reduce((total, number) => total + number, 0);
  return sum(timeDeltas.filter((_, index) => own.has(samples[index]))) / sum(timeDeltas);
}

const program = await startProgram();
const site = await startSite({ '/changing': CHANGING, '/large': LARGE });
console.log(`load before: ${loadavg()[0].toFixed(1)}`);
for (const kind of kinds) {
  const bare = await launchBrowser(kind, { hosts: ['bench.example'], extension: false });
  const full = await launchBrowser(kind, { hosts: ['bench.example'] });
  const url = `http://bench.example:${site.port}`;
  const shares = [];
  for (let round = 0; round < ROUNDS; round += 1) {
    shares.push(-(await workAt(bare.browser, `${url}/changing`)) + (await workAt(full.browser, `${url}/changing`)));
  }
  const percent = (share) => `${(share * 100).toFixed(2)} %`;
  if (ROUNDS > 0) console.log(`${kind}: a page that changes loses ${percent(median(shares))} (${shares.map(percent).join(', ')})`);

  if (kind === 'chromium') console.log(`${kind}: the scripts of the extension run ${percent(await scriptShare(full.browser, `${url}/changing`))} of that page's time`);

  const page = await bare.browser.newPage();
  await page.goto(`${url}/large`);
  await page.bringToFront();
  await page.evaluate(readFileSync(new URL(`../extension/dist/${kind}/page.js`, import.meta.url), 'utf8'));
  const describe = (rounds) => page.evaluate((count) => Array.from({ length: count }, () => {
    const start = performance.now();
    globalThis[Symbol.for('glaceron')].collect();
    return performance.now() - start;
  }), rounds);
  const [first] = await describe(1);
  await describe(20);
  const before = timeOf(bare.browser.process().pid);
  const times = await describe(DESCRIPTIONS);
  const work = ((timeOf(bare.browser.process().pid) - before) * 1000) / DESCRIPTIONS;
  console.log(`${kind}: describing a page of ${FIELDS} fields takes ${work.toFixed(0)} ms of processor time (by the clock: first ${first.toFixed(0)} ms, median ${median(times).toFixed(0)} ms, best ${Math.min(...times).toFixed(0)} ms)`);
  await bare.close();
  await full.close();
}
site.close();
await program.stop();
