import { iconIn, isWebAddress, losesEncryption, sameDocument, sameSite, siteOf } from './site.js';

const SETTLE = 3000;
// For a page that was there before the request came.
const GLANCE = 500;
const MOST_HOPS = 5;

/**
 * The program's requests for a page. An answer that cannot be given (the page did not load, the tab closed,
 * a newer request came) is not given at all.
 */
export function createRequests({ tabs, documents, logins, send }) {
  const running = new Set();

  // A newer request for the same item, or one that takes over the tab, ends those that still wait.
  function abandon(condition) {
    for (const job of running) {
      if (!condition(job)) continue;
      job.controller.abort();
      running.delete(job);
    }
  }

  function begin(request) {
    const item = request.itemid ?? request.reason;
    abandon((job) => job.item === item);
    if (request.itemid) logins.dropItem(request.itemid);
    const controller = new AbortController();
    const job = { item, controller, signal: controller.signal, tabId: undefined };
    running.add(job);
    return job;
  }

  function navigate(job, tab, url) {
    abandon((other) => other !== job && other.tabId === tab.id);
    logins.dropTab(tab.id);
    job.tabId = tab.id;
    return tabs.navigate(tab, url, job.signal);
  }

  /** Opens what the request names; resolves with {tabId, fresh}, tabId undefined when there is none. */
  async function place(job, { openmode, url }) {
    const tab = await tabs.active();
    if (openmode === 'currentNoReload') return { tabId: tab?.id, fresh: false };
    if (!isWebAddress(url)) return { tabId: undefined };
    if (openmode === 'window' || !tab) return { tabId: await tabs.openWindow(url, job.signal), fresh: true };
    if (openmode === 'newtab') return { tabId: await tabs.openTab(tab.windowId, url, job.signal), fresh: true };
    if (!sameDocument(tab.url, url)) return { tabId: await navigate(job, tab, url), fresh: true };
    job.tabId = tab.id;
    return { tabId: await tabs.settled(tab, job.signal), fresh: tab.status === 'loading' };
  }

  /**
   * The description of a tab's page once it shows a field of the kind, or did not for a while. Pages that send
   * the browser on to another page are followed.
   */
  async function describeSettled(job, tabId, kind, milliseconds = SETTLE) {
    for (let hop = 0; hop < MOST_HOPS && !job.signal.aborted; hop += 1) {
      const tab = await tabs.get(tabId);
      if (!tab || (await tabs.settled(tab, job.signal)) === undefined) return undefined;
      const frames = await documents.list(tabId);
      if (frames.length === 0) {
        const after = await tabs.get(tabId);
        if (after?.status !== 'loading') return undefined;
        continue;
      }
      const shown = await documents.waitFor(frames, kind, milliseconds);
      const page = shown === undefined ? undefined : await documents.describe(tabId);
      if (page) return { ...page, shown };
    }
    return undefined;
  }

  // A page that admits no scripts (the browser's own, an error page) has nothing to fill.
  async function describeAsIs(tabId) {
    const page = await documents.describe(tabId);
    if (page) return page;
    const tab = await tabs.get(tabId);
    const url = tab?.url ?? '';
    return tab && { docinfo: { title: '', url, forms: [], elements: [] }, tabUrl: url, password: false };
  }

  async function answer(action, request, tabId, page) {
    const { reason, itemid, timestamp, openmode } = request;
    const echo = { reason, itemid, timestamp, openmode };
    if (typeof request.request_id === 'string') echo.request_id = request.request_id;
    if (reason === 'login' && itemid) logins.reported(echo, tabId, siteOf(page.tabUrl), page.password);
    const tab = await tabs.get(tabId);
    send(action, {
      ...echo,
      result: { docinfo: page.docinfo },
      tabUrl: page.tabUrl,
      faviconUrl: iconIn(tab?.favIconUrl, page.icon),
    });
  }

  // A login's request says which site it is for. The program decides, but what it must refuse it need not see.
  function admitted({ reason, url }, page) {
    if (reason !== 'login' || (sameSite(url, page.tabUrl) && !losesEncryption(url, page.tabUrl))) return page;
    return { ...page, docinfo: { ...page.docinfo, forms: [], elements: [] } };
  }

  async function run(request, work) {
    const job = begin(request);
    try {
      const found = await work(job);
      if (found?.page && !job.signal.aborted) await answer(found.action, request, found.tabId, admitted(request, found.page));
    } finally {
      running.delete(job);
    }
  }

  function getDocumentData(request) {
    return run(request, async (job) => {
      const { tabId, fresh } = await place(job, request);
      if (tabId === undefined) return undefined;
      const page = fresh ? await describeSettled(job, tabId, 'any') : await describeAsIs(tabId);
      return { action: 'collectDocumentResults', tabId, page };
    });
  }

  // Links are followed by address, so that none leads to another site; buttons are clicked.
  async function followSignIn(job, tabId) {
    const [top] = await documents.list(tabId);
    const ways = top && (await documents.call(top, 'waysToSignIn'));
    if (!ways) return false;
    const isSafe = (address) => address === null || (sameSite(address, top.origin) && !losesEncryption(top.origin, address));
    const way = ways.findIndex(isSafe);
    if (way < 0) return false;
    const tab = await tabs.get(tabId);
    if (!tab) return false;
    if (ways[way] === null || sameDocument(ways[way], tab.url)) {
      await documents.call(top, 'click', { way });
      return true;
    }
    return (await navigate(job, tab, ways[way])) !== undefined;
  }

  function findLoginPage(request) {
    const answered = logins.tabOf(request);
    return run(request, async (job) => {
      // A user who closed that tab is somewhere else by now, and no other tab is taken from him.
      const tab = answered === undefined ? undefined : await tabs.get(answered);
      if (!tab || !isWebAddress(request.url)) return undefined;
      job.tabId = tab.id;
      const there = sameSite(tab.url, request.url) && !losesEncryption(request.url, tab.url);
      const tabId = there ? tab.id : await navigate(job, tab, request.url);
      if (tabId === undefined) return undefined;
      let page = await describeSettled(job, tabId, 'login', there ? GLANCE : SETTLE);
      if (page && !page.shown && (await followSignIn(job, tabId))) page = await describeSettled(job, tabId, 'login');
      return { action: 'loginPageLoaded', tabId, page };
    });
  }

  return { getDocumentData, findLoginPage, answer };
}
