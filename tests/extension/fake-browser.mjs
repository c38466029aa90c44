import { startExtension } from '../../extension/src/extension.js';
import { createClock, flush, idle } from './clock.mjs';
import { openPage, pageScript } from './page.mjs';

function createEvent() {
  const listeners = new Set();
  return {
    addListener: (listener) => listeners.add(listener),
    removeListener: (listener) => listeners.delete(listener),
    fire: (...values) => [...listeners].forEach((listener) => listener(...values)),
  };
}

export const WINDOW = { left: 10, top: 20, width: 800, height: 600 };

/**
 * A browser with one window and the extension running in it, connected to a stand-in for the program.
 * web: address → page text, or {html, busy, endless, frames: [[address, ...addresses around it]]}; one that is missing fails
 * to load, one that is busy answers no script, one that is endless never finishes loading. With manual set, a navigation stays under way until arrive() is called.
 * documentIds: whether the browser names documents, or knows them by their frame alone. windowType: what kind its window is.
 */
export async function startBrowser(web, { manual = false, documentIds = true, windowType = 'normal' } = {}) {
  const clock = createClock();
  const tabs = new Map();
  const looks = {};
  const injections = [];
  const styles = [];
  let lastDocument = 0;
  const onUpdated = createEvent();
  const onRemoved = createEvent();
  const onConnect = createEvent();
  const onMessage = createEvent();
  const onCommand = createEvent();
  let program;

  const view = ({ id, windowId, url, status }) => ({ id, windowId, url, status });
  const htmlOf = (page) => (typeof page === 'string' ? page : page.html);

  function open(tab, url, frameId, around) {
    const window = openPage(htmlOf(web[url]), { url, clock, ancestors: around.map((address) => new URL(address).origin) });
    const document = { frameId, documentId: `D${(lastDocument += 1)}`, window, busy: web[url].busy };
    const sender = { id: 'own', tab: view(tab), frameId, ...(documentIds && { documentId: document.documentId }) };
    window.chrome = { runtime: { sendMessage: async (message) => onMessage.fire(structuredClone(message), sender, () => {}) } };
    return document;
  }

  function arrive(tab) {
    const url = tab.coming;
    onUpdated.fire(tab.id, { status: 'complete' }); // the end of the page before
    tab.url = url;
    onUpdated.fire(tab.id, { status: 'loading' });
    const page = web[url];
    tab.documents = page === undefined ? [] : [open(tab, url, 0, []), ...(page.frames ?? []).map(([address, ...around], index) => open(tab, address, index + 1, around))];
    if (page?.endless) return idle();
    tab.status = 'complete';
    onUpdated.fire(tab.id, { status: 'complete' });
    return idle();
  }

  function navigate(tab, url) {
    Object.assign(tab, { coming: url, status: 'loading' });
    if (!manual) setImmediate(() => arrive(tab));
    return view(tab);
  }

  function addTab(url) {
    const tab = { id: tabs.size + 1, windowId: 1, url: '', status: 'complete', documents: [] };
    for (const other of tabs.values()) other.active = false;
    tabs.set(tab.id, Object.assign(tab, { active: true }));
    return navigate(tab, url);
  }

  function closeTab(id) {
    tabs.delete(id);
    onRemoved.fire(id);
    return idle();
  }

  function targetsOf({ tabId, allFrames, frameIds, documentIds: ids }) {
    if (ids && !documentIds) throw new Error('Unexpected property: documentIds');
    const { documents } = tabs.get(tabId);
    if (allFrames) return documents;
    return documents.filter(({ frameId, documentId }) => (ids ? ids.includes(documentId) : frameIds.includes(frameId)));
  }

  async function executeScript({ target, func, files, args = [] }) {
    const wanted = targetsOf(target);
    if (wanted.length === 0) throw new Error('No such document');
    return Promise.all(wanted.map(async ({ frameId, documentId, window, busy }) => {
      injections.push({ document: window.document, args });
      if (busy) await new Promise(() => {});
      const result = files ? window.eval(pageScript) : await window.eval(`(${func})`)(...structuredClone(args));
      const plain = files || result === undefined ? null : JSON.parse(JSON.stringify(result));
      return { frameId, ...(documentIds && { documentId }), result: plain };
    }));
  }

  const getTab = async (id) => view(tabs.get(id) ?? (() => { throw new Error('No tab'); })());
  const api = () => ({
    runtime: {
      getURL: () => 'chrome-extension://id/', getManifest: () => ({ version: '1.1.32' }), getPlatformInfo: async () => ({}),
      id: 'own', onMessage, onConnect, onInstalled: createEvent(), onStartup: createEvent(),
    },
    scripting: { executeScript, insertCSS: async (style) => styles.push(style) },
    tabs: {
      onUpdated, onRemoved, get: getTab, getZoom: async () => 2,
      query: async () => [...tabs.values()].filter(({ active }) => active).map(view),
      create: async ({ url }) => addTab(url),
      update: async (id, { url }) => navigate(tabs.get(id), url),
    },
    windows: {
      getLastFocused: async () => ({ id: 1 }),
      get: async (id) => (id === 1 ? { id, type: windowType, ...WINDOW } : Promise.reject(new Error('No window'))),
      create: async ({ url }) => ({ tabs: [addTab(url)] }),
      update: async () => ({}),
    },
    action: {
      setBadgeText: ({ text }) => { looks.badge = text; },
      setBadgeBackgroundColor: () => {},
      setTitle: ({ title }) => { looks.title = title; },
    },
    i18n: { getMessage: (name) => name },
    alarms: { onAlarm: createEvent(), create: () => {} },
    commands: { onCommand },
    permissions: { contains: async () => true, onAdded: createEvent(), onRemoved: createEvent() },
    contextMenus: { onClicked: createEvent(), create: () => {}, removeAll: async () => {} },
  });

  class Socket {
    sent = [];
    constructor() { program = this; }
    send(text) { this.sent.push(JSON.parse(text)); }
  }

  async function greet() {
    program.onopen();
    program.onmessage({ data: '{"action":"hello","callerId":"{1}"}' });
    await idle();
  }

  startExtension({ api: api(), WebSocket: Socket, timers: clock.timers, now: clock.now });
  await greet();
  return {
    clock, looks, injections, styles, arrive: (id) => arrive(tabs.get(id)), addTab, closeTab, greet, hangUp: () => program.onclose(),
    /** The user presses the keys of a command. */
    press(command, tab) { onCommand.fire(command, tab); return idle(); },
    /** A script in a page says something; what it is answered. */
    async hear(message, sender) {
      let answer;
      onMessage.fire(message, { id: 'own', ...sender }, (value) => { answer = value; });
      await idle();
      return answer;
    },
    /** The pop-up of the toolbar button: {say, shown: what it was told}. */
    async openPopup(url = 'chrome-extension://id/popup/popup.html') {
      const port = { name: 'popup', sender: { url }, onMessage: createEvent(), onDisconnect: createEvent(), shown: [], postMessage: (state) => port.shown.push(state) };
      onConnect.fire(port);
      return { shown: port.shown, close: () => port.onDisconnect.fire(), say: (message) => { port.onMessage.fire(message); return idle(); } };
    },
    /** A document of a tab speaks of logins: {say, end}. */
    openLoginPort(tabId, origin, frameId = 0) {
      const tab = { ...view(tabs.get(tabId)), title: 'Sign in | The shop', favIconUrl: 'https://shop.example/i.png' };
      const port = { name: 'login', onMessage: createEvent(), onDisconnect: createEvent(), sender: { tab, frameId, url: origin ?? tab.url, origin: origin ?? new URL(tab.url).origin } };
      onConnect.fire(port);
      return { say: (message) => { port.onMessage.fire(message); return idle(); }, end: () => { port.onDisconnect.fire(); return idle(); } };
    },
    documentOf: (tabId, frame = 0) => tabs.get(tabId).documents[frame].window.document,
    go: (tabId, url) => { navigate(tabs.get(tabId), url); return idle(); },
    /** What the browser tells when a page changes its own address. */
    sameDocumentNavigation: (tabId) => { onUpdated.fire(tabId, { status: 'complete' }); return idle(); },
    address: (tabId) => tabs.get(tabId)?.url,
    /** Has the program send a command. */
    async command(action, payload) {
      program.onmessage({ data: JSON.stringify({ action, payload }) });
      await idle();
    },
    /** What the program received since the last look, without the greeting and the keep-alive. */
    received() {
      return program.sent.splice(0).filter(({ action }) => !['hello', 'keepAlive'].includes(action));
    },
  };
}
