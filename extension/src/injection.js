const PAGES = { url: ['http://*/*', 'https://*/*'] };
const SCRIPT = { files: ['content.js'] };

/**
 * Brings the script that runs in every page to those that were open before: when the extension is installed or renewed,
 * and when its user allows it in pages later. Where it runs already, it does nothing.
 */
export function injectIntoOpenPages({ api }) {
  async function inject() {
    const tabs = await api.tabs.query(PAGES);
    const targets = tabs.map(({ id }) => ({ tabId: id, allFrames: true }));
    // The browser does not let it into some pages, such as its own shop.
    await Promise.allSettled(targets.map((target) => api.scripting.executeScript({ target, ...SCRIPT })));
  }

  api.runtime.onInstalled.addListener(inject);
  api.permissions.onAdded.addListener(inject);
}
