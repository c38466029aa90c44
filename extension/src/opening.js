// The browser may start this script for the wish alone, and the connection takes a moment.
const KEEP = 5000;

/** Opens the program's quick access; a wish is kept for a few seconds until the program listens. */
export function createOpening({ api, send, connect, now }) {
  let kept;

  function deliver() {
    if (kept && (now() > kept.until || send('showWindow', kept.payload))) kept = undefined;
  }

  async function windowBox(windowId) {
    try {
      const { left, top, width, height } = await api.windows.get(windowId);
      return { left, top, width, height };
    } catch {
      return undefined; // the window went away
    }
  }

  /** For the page in the tab; wish: {kind, fill, field} as the program knows them, each may be missing. */
  async function open(tab, wish = {}) {
    connect();
    const window = await windowBox(tab?.windowId);
    kept = { payload: { url: tab?.url ?? '', ...wish, ...(window && { window }) }, until: now() + KEEP };
    deliver();
  }

  return { open, deliver };
}
