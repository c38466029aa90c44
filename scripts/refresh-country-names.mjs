#!/usr/bin/env node
// Writes the names of the countries in the languages of the program from the Unicode CLDR data:
// npm pack cldr-localenames-modern, unpacked: scripts/refresh-country-names.mjs FOLDER/package
import { copyFileSync, readFileSync, writeFileSync } from 'node:fs';

// By the words of the languages for themselves, which is how the program's translations name them.
const LANGUAGES = { Deutsch: 'de', Español: 'es', Français: 'fr', Русский: 'ru' };
// Of these the full names are titles of office.
const SHORT = ['HK', 'MO', 'PS'];
const TABLE = new URL('../src/items/PMCountryTable.cpp', import.meta.url);
const TARGET = new URL('../resources/countries/', import.meta.url);
// Names of the program's table that are not those of the data.
const CODES = {
  'Antigua and Barbuda': 'AG', 'Bosnia and Herzegovina': 'BA', 'Cocos Islands': 'CC', Curacao: 'CW',
  'Czech Republic': 'CZ', 'Cape Verde': 'CV', 'Democratic Republic of the Congo': 'CD', 'East Timor': 'TL',
  'Hong Kong': 'HK', 'Ivory Coast': 'CI', Macau: 'MO', Myanmar: 'MM', Palestine: 'PS', Pitcairn: 'PN',
  'Republic of the Congo': 'CG', Reunion: 'RE', 'Saint Barthelemy': 'BL', 'Saint Helena': 'SH',
  'Saint Kitts and Nevis': 'KN', 'Saint Lucia': 'LC', 'Saint Martin': 'MF', 'Saint Pierre and Miquelon': 'PM',
  'Saint Vincent and the Grenadines': 'VC', 'Sao Tome and Principe': 'ST', 'Svalbard and Jan Mayen': 'SJ',
  'Trinidad and Tobago': 'TT', Turkey: 'TR', 'Turks and Caicos Islands': 'TC', 'United Kingdom': 'GB',
  'United States': 'US', Vatican: 'VA', 'Wallis and Futuna': 'WF',
};

const folder = process.argv[2];
if (!folder) throw new Error('usage: refresh-country-names.mjs FOLDER');

const territories = (language) =>
  JSON.parse(readFileSync(`${folder}/main/${language}/territories.json`, 'utf8')).main[language].localeDisplayNames
    .territories;

const english = territories('en');
const codeOf = new Map(Object.entries(english).map(([code, name]) => [name, code]));
const tables = Object.values(LANGUAGES).map(territories);
const nameIn = (table, code) => (SHORT.includes(code) && table[`${code}-alt-short`]) || table[code];

const names = [...readFileSync(TABLE, 'utf8').matchAll(/\{"([^"]+)", "[\d-]*"\}/g)].map((match) => match[1]);
const lines = [['English', ...Object.keys(LANGUAGES)].join('\t')];
for (const name of names) {
  const code = CODES[name] ?? codeOf.get(name);
  if (!code) throw new Error(`${name}: which code?`);
  lines.push([name, ...tables.map((table) => nameIn(table, code))].join('\t'));
}
writeFileSync(new URL('names.tsv', TARGET), `${lines.join('\n')}\n`);
copyFileSync(`${folder}/LICENSE`, new URL('LICENSE', TARGET));
