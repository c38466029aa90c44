#!/usr/bin/env node
// Writes the public-suffix list of the program from the one that the extension is built with, so that both tell sites
// apart alike: npm install tldts@latest && scripts/refresh-suffixes.mjs
import { readFileSync, realpathSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { fileURLToPath } from 'node:url';

const LIST = new URL('../resources/suffixes/public_suffix_list.dat', import.meta.url);
const PACKAGE = new URL('../node_modules/tldts/', import.meta.url);
const SECTIONS = [['ICANN', 1], ['PRIVATE', 2]];

const trie = createRequire(import.meta.url)(fileURLToPath(new URL('dist/cjs/src/data/trie.js', PACKAGE)));

/** Where each edge's label begins in the text of all labels. */
function labelOffsets() {
  let end = 0;
  return Array.from(trie.edgeLength, (length) => (end += length) - length);
}

/** The rules below a node: [rule, section]. */
function* rulesBelow(node, suffix, offsets) {
  for (let edge = trie.edgeStart[node]; edge < trie.edgeStart[node + 1]; edge += 1) {
    const label = trie.labelText.substr(offsets[edge], trie.edgeLength[edge]);
    const rule = suffix === '' ? label : `${label}.${suffix}`;
    const child = trie.edgeChild[edge];
    if (trie.nodeFlags[child] !== 0) yield [rule, trie.nodeFlags[child]];
    yield* rulesBelow(child, rule, offsets);
  }
}

/** The list of the installed package, in the usual form of such lists, names in ASCII. */
export function suffixList() {
  const offsets = labelOffsets();
  const exceptions = [...rulesBelow(trie.exceptionsRoot, '', offsets)].map(([rule, section]) => [`!${rule}`, section]);
  const rules = [...rulesBelow(trie.rulesRoot, '', offsets), ...exceptions];
  const isAscii = (rule) => /^[!-~]+$/.test(rule);
  const { version } = JSON.parse(readFileSync(new URL('package.json', PACKAGE), 'utf8'));
  const lines = [
    '// The public-suffix list, https://publicsuffix.org/list/, as of tldts ' + version + '.',
    '// This Source Code Form is subject to the terms of the Mozilla Public',
    '// License, v. 2.0. If a copy of the MPL was not distributed with this',
    '// file, You can obtain one at https://mozilla.org/MPL/2.0/.',
  ];
  for (const [name, flag] of SECTIONS) {
    const own = rules.filter(([rule, section]) => (section & flag) !== 0 && isAscii(rule)).map(([rule]) => rule);
    lines.push('', `// ===BEGIN ${name} DOMAINS===`, ...own.sort(), `// ===END ${name} DOMAINS===`);
  }
  return `${lines.join('\n')}\n`;
}

export const shippedList = () => readFileSync(LIST, 'utf8');

if (process.argv[1] && realpathSync(process.argv[1]) === fileURLToPath(import.meta.url)) writeFileSync(LIST, suffixList());
