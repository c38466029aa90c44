// A user may be slow on the page in between.
const PATIENCE = 180000;

/**
 * The logins that were reported, so that a later page can answer the same request; kept as long as this script runs,
 * which the open connection sees to: the program takes the answer from that connection alone. At most one record a tab
 * and an item: {request, tabId, site, complete: nothing more will be reported, until: end of the wait for a password
 * or 0}.
 */
export function createLogins({ now }) {
  let records = [];

  function keep(condition) {
    records = records.filter(condition);
  }

  const find = (tabId) => records.find((record) => record.tabId === tabId);

  function waiting(tabId) {
    const record = find(tabId);
    return record?.until > now() ? record : undefined;
  }

  return {
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
      Object.assign(record, { complete, until: complete ? 0 : now() + PATIENCE });
    },

    waiting,
    timeLeft: (record) => record.until - now(),

    /** Hands the waiting record out, once; undo gives it back. */
    take(tabId) {
      const record = waiting(tabId);
      if (!record) return undefined;
      const { until } = record;
      Object.assign(record, { complete: true, until: 0 });
      return { ...record, undo: () => Object.assign(record, { complete: false, until }) };
    },

    dropItem: (itemid) => keep(({ request }) => request.itemid !== itemid),
    dropTab: (tabId) => keep((record) => record.tabId !== tabId),
  };
}
