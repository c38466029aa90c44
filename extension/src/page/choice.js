// Which of several offered choices means the same as the wanted value: "09" is "9", "09 - Sep" and "September",
// "2029" is "29", "Germany" is the option DE. What a person reads on the choice counts before its hidden value.

const fold = (text) => text.normalize('NFKC').trim().toLowerCase();
const isNumber = (text) => /^\d+$/.test(text);
const sameNumber = (a, b) => isNumber(a) && isNumber(b) && Number(a) === Number(b);
const startsWithNumber = (text, wanted) => isNumber(wanted) && sameNumber(/^\d+/.exec(text)?.[0] ?? '', wanted);
const sameYear = (text, wanted) => /^20\d\d$/.test(wanted) && text === wanted.slice(2);
const sameInitial = (text, wanted) => ['male', 'female'].includes(wanted) && text === wanted[0];

function isMonth(text, wanted, language) {
  if (!isNumber(wanted) || Number(wanted) < 1 || Number(wanted) > 12) return false;
  const date = new Date(2000, Number(wanted) - 1, 15);
  const names = ['long', 'short'].flatMap((month) => [
    date.toLocaleString([language, 'en'], { month }),
    date.toLocaleString('en', { month }),
  ]);
  return names.some((name) => fold(name).replace('.', '') === text.replace('.', ''));
}

function isRegion(code, wanted, language) {
  if (!/^[a-z]{2}$/.test(code)) return false;
  return [language, 'en'].some((names) => {
    const name = new Intl.DisplayNames([names, 'en'], { type: 'region', fallback: 'none' }).of(code.toUpperCase());
    return name !== undefined && fold(name) === wanted;
  });
}

const LETTERS = [...'ABCDEFGHIJKLMNOPQRSTUVWXYZ'];
let regions;

// The code of the country with the English name; undefined for none.
function regionNamed(name) {
  if (!regions) {
    const names = new Intl.DisplayNames(['en'], { type: 'region', fallback: 'none' });
    const codes = LETTERS.flatMap((first) => LETTERS.map((second) => first + second));
    // Of two codes for one country, the older comes later.
    regions = new Map(codes.reverse().map((code) => [names.of(code), code]).filter(([of]) => of).map(([of, code]) => [fold(of), code]));
  }
  return regions.get(name);
}

function isRegionName(text, wanted, language) {
  const code = text === '' ? undefined : regionNamed(wanted);
  return code !== undefined && fold(new Intl.DisplayNames([language, 'en'], { type: 'region' }).of(code)) === text;
}

// Strongest first.
const MEANINGS = [
  ({ text }, wanted) => text === wanted,
  ({ text }, wanted) => startsWithNumber(text, wanted),
  ({ text }, wanted, language) => isMonth(text, wanted, language),
  ({ text }, wanted) => sameYear(text, wanted),
  ({ value }, wanted) => value === wanted,
  ({ value }, wanted) => sameNumber(value, wanted),
  ({ value }, wanted) => sameYear(value, wanted),
  ({ text, value }, wanted) => sameInitial(text, wanted) || sameInitial(value, wanted),
  ({ value }, wanted, language) => isRegion(value, wanted, language),
  ({ text }, wanted, language) => isRegionName(text, wanted, language),
];

/** The index of the choice ({text, value}) that means the wanted text, -1 for none. */
export function chooseIndex(choices, wanted, pageLanguage) {
  const [language] = Intl.getCanonicalLocales(/^[a-z]{2,3}(-[A-Z]{2})?$/.test(pageLanguage) ? pageLanguage : 'en');
  const folded = choices.map(({ text, value }) => ({ text: fold(text), value: fold(value) }));
  const target = fold(wanted);
  if (target === '') return -1;
  for (const means of MEANINGS) {
    const index = folded.findIndex((choice) => means(choice, target, language));
    if (index >= 0) return index;
  }
  return -1;
}
