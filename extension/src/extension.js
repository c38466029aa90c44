import { listenToLogins } from './captures.js';
import { createDocuments } from './documents.js';
import { createFills } from './fills.js';
import { parseFrame } from './frames.js';
import { injectIntoOpenPages } from './injection.js';
import { createLink } from './link.js';
import { createLogins } from './logins.js';
import { listenToUser } from './menu.js';
import { createOpening } from './opening.js';
import { listenToPages } from './pages.js';
import { createRequests } from './requests.js';
import { createStatus } from './status.js';
import { createTabs } from './tabs.js';
import { createToolbar } from './toolbar.js';

const ALARM = 'link';

/** Puts the parts together and connects them to the browser. */
export function startExtension({ api, WebSocket, timers, now }) {
  const bundleId = api.runtime.getURL('').startsWith('moz-') ? 'glaceron.firefox' : 'glaceron.chrome';
  const toolbar = createToolbar({ api });
  const link = createLink({
    WebSocket,
    timers,
    identity: { version: api.runtime.getManifest().version, bundleId },
    touchBrowser: () => api.runtime.getPlatformInfo(),
    parseFrame,
    onFrame: ({ action, payload }) => actions[action](payload),
    onState: (state) => {
      toolbar.show(state);
      status.linked(state);
      opening.deliver();
    },
  });
  const status = createStatus({ send: link.send });
  const opening = createOpening({ api, send: link.send, connect: link.connect, now });

  const tabs = createTabs({ api, timers });
  const documents = createDocuments({ api, timers });
  const logins = createLogins({ now });
  const requests = createRequests({ tabs, documents, logins, send: link.send });
  const fills = createFills({ documents, logins, answer: requests.answer, send: link.send });
  const actions = {
    getDocumentData: requests.getDocumentData,
    findLoginPage: requests.findLoginPage,
    fillForm: fills.fillForm,
    state(payload) {
      if (payload.refused) toolbar.show(payload.refused);
      status.told(payload);
    },
  };

  api.tabs.onUpdated.addListener((tabId, { status }) => {
    if (status === 'complete') fills.awaitPassword(tabId);
  });
  api.tabs.onRemoved.addListener(documents.forget);
  api.tabs.onRemoved.addListener(logins.dropTab);
  api.runtime.onConnect.addListener((port) => {
    if (port.name !== 'popup' || !port.sender?.url?.startsWith(api.runtime.getURL(''))) return;
    link.connect();
    port.onMessage.addListener(async ({ url, open }) => (open ? opening.open(await tabs.active()) : status.watch(port, url)));
    port.onDisconnect.addListener(() => status.forget(port));
  });
  injectIntoOpenPages({ api, timers });
  listenToPages({ api, open: opening.open });
  listenToUser({ api, open: opening.open });
  listenToLogins({ api, documents, timers, now, send: link.send, makeId: () => crypto.randomUUID() });
  // Timers end with the background script; the alarm starts it anew.
  api.alarms.onAlarm.addListener(() => link.connect());
  api.alarms.create(ALARM, { periodInMinutes: 0.5 });

  link.connect();
}
