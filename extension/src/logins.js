const KEY = 'logins';
const PATIENCE = 60000;

/**
 * The logins that were reported, so that a later page can answer the same request. They outlive the background
 * script in the session's storage: addresses and ids only, never a value. At most one record a tab and an item:
 * {request, tabId, site, complete: nothing more will be reported, until: end of the wait for a password or 0}.
 */
export function createLogins({ storage, now }) {
  let records = [];
  const ready = storage.get(KEY).then((stored) => {
    records = stored[KEY] ?? [];
  });

  function keep(condition) {
    records = records.filter(condition);
    storage.set({ [KEY]: records });
  }

  function set(record, changes) {
    Object.assign(record, changes);
    storage.set({ [KEY]: records });
  }

  const find = (tabId) => records.find((record) => record.tabId === tabId);
  const isWaiting = (record) => record.until > now();

  function waiting(tabId) {
    const record = find(tabId);
    return record && isWaiting(record) ? record : undefined;
  }

  return {
    ready,

    /** Notes the latest report of a tab; complete when a visible password field was in it. */
    reported(request, tabId, site, complete) {
      records.push({ request, tabId, site, complete, until: 0 });
      const latest = records.length - 1;
      keep((record, index) => index === latest || (record.tabId !== tabId && record.request.itemid !== request.itemid));
    },

    /** The tab that gave the latest answer to the request. */
    tabOf({ itemid, timestamp }) {
      return records.find(({ request }) => request.itemid === itemid && request.timestamp === timestamp)?.tabId;
    },

    /** A login was filled in the tab. Without its password the wait for a page that asks for it begins. */
    filled(tabId, withPassword) {
      const record = find(tabId);
      if (!record) return;
      const complete = record.complete || withPassword;
      set(record, { complete, until: complete ? 0 : now() + PATIENCE });
    },

    waiting,
    waitingTabs: () => records.filter(isWaiting).map(({ tabId }) => tabId),
    timeLeft: (record) => record.until - now(),

    /** Hands the waiting record out, once; undo gives it back. */
    take(tabId) {
      const record = waiting(tabId);
      if (!record) return undefined;
      const { until } = record;
      set(record, { complete: true, until: 0 });
      return { ...record, undo: () => set(record, { complete: false, until }) };
    },

    dropItem: (itemid) => keep(({ request }) => request.itemid !== itemid),
    dropTab: (tabId) => keep((record) => record.tabId !== tabId),
  };
}
