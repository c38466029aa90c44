const LOAD_LIMIT = 30000;

/** Finding, opening and awaiting tabs. A tab that cannot be had is undefined, never an exception. */
export function createTabs({ api, timers }) {
  const orNothing = (promise) => promise.catch(() => undefined);

  async function active() {
    const window = await orNothing(api.windows.getLastFocused({ windowTypes: ['normal'] }));
    if (!window) return undefined;
    const [tab] = await api.tabs.query({ active: true, windowId: window.id });
    return tab;
  }

  /**
   * Runs open(), which resolves with a tab that starts to load, and waits until the page is there.
   * Resolves with the tab's id; undefined when the tab closed, nothing arrived in time, or the signal came.
   * loading: the tab that is known to be loading already.
   */
  function loaded(open, signal, loading) {
    return new Promise((resolve) => {
      const states = new Map(loading === undefined ? [] : [[loading, 'loading']]);
      let tabId;

      function finish(result) {
        api.tabs.onUpdated.removeListener(onUpdated);
        api.tabs.onRemoved.removeListener(onRemoved);
        signal.removeEventListener('abort', giveUp);
        timers.clearTimeout(limit);
        resolve(result);
      }

      function check() {
        if (states.get(tabId) === 'complete') finish(tabId);
        if (states.get(tabId) === 'closed') finish(undefined);
      }

      function note(id, state) {
        states.set(id, state);
        check();
      }

      // "complete" may still belong to the page before; only one after "loading" is the new page's.
      function onUpdated(id, { status }) {
        if (status === 'loading' || (status === 'complete' && states.has(id))) note(id, status);
      }

      const onRemoved = (id) => note(id, 'closed');
      const giveUp = () => finish(undefined);
      // A page whose last picture never arrives is used as it is.
      const limit = timers.setTimeout(() => finish(states.get(tabId) === 'loading' ? tabId : undefined), LOAD_LIMIT);

      api.tabs.onUpdated.addListener(onUpdated);
      api.tabs.onRemoved.addListener(onRemoved);
      signal.addEventListener('abort', giveUp);
      if (signal.aborted) return giveUp();
      open().then((tab) => {
        tabId = tab.id;
        check();
      }, giveUp);
    });
  }

  /** Waits for a tab whose page is still on its way. */
  function settled(tab, signal) {
    return tab.status === 'loading' ? loaded(async () => tab, signal, tab.id) : Promise.resolve(tab.id);
  }

  function raise(windowId) {
    orNothing(api.windows.update(windowId, { focused: true }));
  }

  function openWindow(url, signal) {
    return loaded(async () => (await api.windows.create({ url })).tabs[0], signal);
  }

  function openTab(windowId, url, signal) {
    raise(windowId);
    return loaded(() => api.tabs.create({ windowId, url, active: true }), signal);
  }

  function navigate(tab, url, signal) {
    raise(tab.windowId);
    return loaded(() => api.tabs.update(tab.id, { url, active: true }), signal);
  }

  return { active, get: (tabId) => orNothing(api.tabs.get(tabId)), settled, openWindow, openTab, navigate };
}
