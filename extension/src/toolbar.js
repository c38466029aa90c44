// "connected" needs no badge: the plain icon is the usual case.
const LOOKS = {
  connected: { badge: '', color: '#0c7a58' },
  offline: { badge: '!', color: '#c8374a' },
  busy: { badge: '⇄', color: '#526e7c' },
  approval: { badge: '?', color: '#9a5b00' },
  version: { badge: '!', color: '#9a5b00' },
  pages: { badge: '!', color: '#9a5b00' },
};
const ALL_PAGES = { origins: ['http://*/*', 'https://*/*'] };

/** Shows the state of the link on the toolbar button, and whether the extension still has to be allowed in pages. */
export function createToolbar({ api }) {
  let state;

  async function draw() {
    const isAllowed = await api.permissions.contains(ALL_PAGES);
    const shown = state === 'connected' && !isAllowed ? 'pages' : state;
    const { badge, color } = LOOKS[shown];
    api.action.setBadgeText({ text: badge });
    api.action.setBadgeBackgroundColor({ color });
    api.action.setTitle({ title: `Glaceron Password Manager: ${api.i18n.getMessage(`${shown}Title`)}` });
  }

  function show(next) {
    state = next;
    draw();
  }

  api.permissions.onAdded.addListener(() => state && draw());
  api.permissions.onRemoved.addListener(() => state && draw());
  return { show };
}
