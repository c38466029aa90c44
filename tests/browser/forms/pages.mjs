import { readFileSync, readdirSync } from 'node:fs';
import { buildSync } from 'esbuild';
import puppeteer from 'puppeteer-core';
import { openPage } from '../../extension/page.mjs';

const here = new URL('.', import.meta.url);
const collector = new URL('../../../extension/src/page/collect.js', import.meta.url).pathname;

/** Describes the page as the extension does, and says what its fields really are, by opid, where that is sure. */
export const describing = buildSync({
  stdin: {
    contents: `import { collect } from ${JSON.stringify(collector)};
      let last = 0;
      globalThis.describeWithTruth = () => {
        const { report, fields } = collect(document, 't', () => (last += 1));
        const truth = {};
        for (const [opid, { field }] of fields) truth[opid] = 'unsure' in field.dataset ? undefined : field.dataset.truth ?? '';
        return { report, truth };
      };`,
    resolveDir: here.pathname,
  },
  bundle: true,
  write: false,
}).outputFiles[0].text;

/** The pages of a set, a folder here or anywhere: {name, html}. */
export function pagesOf(set) {
  const folder = new URL(`${set}/`, here);
  return readdirSync(folder).sort().flatMap((file) => {
    const parts = readFileSync(new URL(file, folder), 'utf8').split(/<!-- page: (.*?) \| ([\w-]+) \| (.*?) -->\n/).slice(1);
    const pages = [];
    for (let at = 0; at < parts.length; at += 4) {
      const [name, language, title, body] = parts.slice(at, at + 4);
      const html = `<!doctype html><html lang="${language}"><title>${title}</title><body>${body}`;
      pages.push({ name: `${file}: ${name}`, html });
    }
    return pages;
  });
}

/** The page as the extension would report it to the program: {name, truth, page}. */
export function describe({ name, html }) {
  const window = openPage(html);
  window.eval(describing);
  const { report, truth } = JSON.parse(JSON.stringify(window.describeWithTruth()));
  return { name, truth, page: report };
}

/** The same in a real browser, with its layout. */
export async function describeInChromium(pages) {
  const browser = await puppeteer.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
  const tab = await browser.newPage();
  const described = [];
  for (const { name, html } of pages) {
    await tab.setContent(html);
    await tab.evaluate(describing);
    const { report, truth } = await tab.evaluate(() => globalThis.describeWithTruth());
    described.push({ name, truth, page: report });
  }
  await browser.close();
  return described;
}
