import { belongsTo } from './site.js';

const KINDS = ['login', 'creditcard', 'identity'];
const SIDES = ['left', 'top', 'width', 'height'];
const CLICK = ['left', 'top'];
const MARK = /^g[0-9a-f]{16}$/;

const hasNumbers = (value, names) => names.every((name) => Number.isFinite(value?.[name]));
const isWish = ({ kind, field, click }) => KINDS.includes(kind) && hasNumbers(field, SIDES) && hasNumbers(click, CLICK);

/** What the script in the pages says: an icon was clicked on, or whether its frame is one of the page's site. */
export function listenToPages({ api, open }) {
  const belongs = ({ tab, url, origin }, around) => Array.isArray(around) && belongsTo(tab.url, [origin ?? url, ...around]);

  // In Firefox the page's own measure goes for the screen, too.
  const screenIsScaled = api.runtime.getURL('').startsWith('moz-');

  // The page says where its field lies seen from the click, in its own measure, and where on the screen the click was.
  async function openAt({ kind, field, click }, tab) {
    const zoom = await api.tabs.getZoom(tab.id).catch(() => 1);
    const scale = screenIsScaled ? zoom : 1;
    const from = { left: click.left * scale, top: click.top * scale, width: 0, height: 0 };
    const place = SIDES.map((side) => [side, Math.round(from[side] + field[side] * zoom)]);
    open(tab, { kind, field: Object.fromEntries(place) });
  }

  // Above the page's own styles, and gone with this extension.
  function show(mark, { tab, frameId }) {
    if (!MARK.test(mark)) return;
    const css = `[${mark}] { content-visibility: visible !important; }`;
    api.scripting.insertCSS({ target: { tabId: tab.id, frameIds: [frameId] }, css, origin: 'USER' }).catch(() => {});
  }

  const answers = {
    show,
    belongs: (around, sender) => belongs(sender, around),
    open(payload, sender) {
      if (belongs(sender, payload?.around) && isWish(payload)) openAt(payload, sender.tab);
    },
  };

  api.runtime.onMessage.addListener((message, sender, answer) => {
    const [name, payload] = Object.entries(message ?? {})[0] ?? [];
    if (sender.id !== api.runtime.id || !sender.tab || !Object.hasOwn(answers, name)) return;
    answer(answers[name](payload, sender));
  });
}
