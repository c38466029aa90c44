const PAGES = { url: ['http://*/*', 'https://*/*'] };
const HIDING = 500;
const SCRIPT = { files: ['content.js'] };

// Runs inside the page, and sends away what an earlier version left there. The page hears it too, so it is said nowhere
// else: no page that is opened later can tell by it that the extension is there.
function sendAwayLeft() {
  dispatchEvent(new Event('glaceron-renewed'));
}

// Runs among the page's own scripts. Chromium gives the first script that comes into a page no functions where a frame is
// called like what holds them; so such a frame has no name for a moment.
function hideName() {
  const { name } = window;
  if (!['chrome', 'browser'].includes(name)) return;
  window.name = '';
  setTimeout(() => { window.name ||= name; }, 2000);
}

/**
 * Brings the script that runs in every page to those that were open before: when the extension is installed or renewed,
 * and when its user allows it in pages later. Where it runs already, it does nothing.
 */
export function injectIntoOpenPages({ api, timers }) {
  async function inject() {
    const tabs = await api.tabs.query(PAGES);
    const targets = tabs.map(({ id }) => ({ tabId: id, allFrames: true }));
    // The browser does not let it into some pages, such as its own shop; and a frame that hangs must not hold up the others.
    const run = (step) => Promise.allSettled(targets.map((target) => api.scripting.executeScript({ target, ...step })));
    await Promise.race([run({ func: hideName, world: 'MAIN' }), new Promise((done) => timers.setTimeout(done, HIDING))]);
    await Promise.all([run({ func: sendAwayLeft }), run(SCRIPT)]);
  }

  api.runtime.onInstalled.addListener(inject);
  api.permissions.onAdded.addListener(inject);
}
