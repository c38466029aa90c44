import { belongsTo } from './site.js';

const KINDS = ['login', 'creditcard', 'identity'];
const SIDES = ['left', 'top', 'width', 'height'];

function wishOf({ kind, field }) {
  if (!KINDS.includes(kind) || !SIDES.every((side) => Number.isFinite(field?.[side]))) return undefined;
  return { kind, field: Object.fromEntries(SIDES.map((side) => [side, field[side]])) };
}

/** What the script in the pages says: an icon was clicked on, or whether its frame is one of the page's site. */
export function listenToPages({ api, open }) {
  const belongs = ({ tab, url, origin }, around) => Array.isArray(around) && belongsTo(tab.url, [origin ?? url, ...around]);

  const answers = {
    belongs: (around, sender) => belongs(sender, around),
    open(payload, sender) {
      const wish = belongs(sender, payload?.around) && wishOf(payload);
      if (wish) open(sender.tab, wish);
    },
  };

  api.runtime.onMessage.addListener((message, sender, answer) => {
    const [name, payload] = Object.entries(message ?? {})[0] ?? [];
    if (sender.id !== api.runtime.id || !sender.tab || !Object.hasOwn(answers, name)) return;
    answer(answers[name](payload, sender));
  });
}
