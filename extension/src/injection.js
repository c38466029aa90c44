const PAGES = { url: ['http://*/*', 'https://*/*'] };
const SCRIPT = { files: ['content.js'] };

// Runs inside the page, and sends away what an earlier version left there. The page hears it too, so it is said nowhere
// else: no page that is opened later can tell by it that the extension is there.
function sendAwayLeft() {
  dispatchEvent(new Event('glaceron-renewed'));
}

/**
 * Brings the script that runs in every page to those that were open before: when the extension is installed or renewed,
 * and when its user allows it in pages later. Where it runs already, it does nothing.
 */
export function injectIntoOpenPages({ api }) {
  async function inject() {
    const tabs = await api.tabs.query(PAGES);
    const targets = tabs.map(({ id }) => ({ tabId: id, allFrames: true }));
    const steps = targets.flatMap((target) => [{ target, func: sendAwayLeft }, { target, ...SCRIPT }]);
    // The browser does not let it into some pages, such as its own shop; and a frame that hangs must not hold up the others.
    await Promise.allSettled(steps.map((step) => api.scripting.executeScript(step)));
  }

  api.runtime.onInstalled.addListener(inject);
  api.permissions.onAdded.addListener(inject);
}
