import { isStillAsked } from './shapes.js';
import { siteNameIn } from './page/words.js';
import { belongsTo, iconIn, siteOf } from './site.js';

// A page that has arrived may still be drawing its form.
const SETTLE = 1000;
const LIMIT = 40000;
// What the last look may take, at a page that may be hanging.
const LAST_LOOK = 2000;
// A window for logging in that closes this soon has done its work.
const POPUP_TIME = 3000;
const MOST_LOOKS = 5;
// A user may be slow on the page between user name and password.
const NAME_PATIENCE = 180000;
const FAILED = 400;

const isText = (value) => typeof value === 'string';

/**
 * Logins that pages have sent: reported to the program at once, and confirmed or taken back when the page has moved on.
 * Here stay only the id of a report, the shape of its form and, between two pages, a user name.
 */
export function listenToLogins({ api, documents, timers, now, send, makeId }) {
  const captures = new Map(); // tab → the report that is not decided yet
  const names = new Map(); // tab → the user name of a page before

  const belongs = ({ tab, url, origin }, around) => belongsTo(tab.url, [origin ?? url, ...around]);

  function decide(capture, accepted) {
    if (captures.get(capture.tabId) !== capture) return;
    captures.delete(capture.tabId);
    timers.clearTimeout(capture.limit);
    timers.clearTimeout(capture.settling);
    const { captureId, place } = capture;
    if (accepted) send('saveLogin', { login: { captureId, ...place } });
    else send('loginDropped', { captureId });
  }

  function nameFor(tab) {
    const known = names.get(tab.id);
    return known && known.until > now() && known.site === siteOf(tab.url) ? known.name : undefined;
  }

  // Not to be asked any more once it has closed. What a page says of its window's place depends on how large it is shown.
  async function noteWindow(capture, id) {
    const window = await api.windows.get(id).catch(() => undefined);
    if (!window) return;
    const { type, left, top, width, height } = window;
    Object.assign(capture, { isPopup: type === 'popup', place: { posx: left, posy: top, width, height } });
  }

  function report(port, { submitted, shape }) {
    const { tab, frameId } = port.sender;
    const former = captures.get(tab.id);
    if (former) decide(former, false);
    const capture = { captureId: makeId(), tabId: tab.id, site: siteOf(tab.url), shape, looks: 0, since: now() };
    const { icon, ...described } = submitted;
    const login = {
      ...described,
      // A frame's own title is seen by nobody.
      ...(frameId > 0 && { siteName: siteNameIn(tab.title ?? '') }),
      login: described.login || nameFor(tab),
      url: tab.url,
      domain: new URL(tab.url).hostname,
      faviconUrl: iconIn(tab.favIconUrl, icon),
    };
    if (!send('loginSubmitted', { captureId: capture.captureId, login })) return undefined;
    captures.set(tab.id, capture);
    capture.limit = timers.setTimeout(() => judgeAtLast(capture), LIMIT);
    noteWindow(capture, tab.windowId);
    return capture;
  }

  // What the tab shows after the document went away: true, false, or undefined when that is not known yet.
  async function outcome({ tabId, site, shape }) {
    const frames = await documents.list(tabId);
    if (frames.length === 0) return undefined;
    if (siteOf(frames[0].origin) !== site) return true;
    const answers = await documents.callAll(frames, 'passwordForms');
    if (!answers[0]) return undefined;
    if (answers[0].status >= FAILED) return false;
    return !isStillAsked(shape, answers.flatMap((answer) => answer?.forms ?? []));
  }

  async function judge(capture) {
    const tab = await api.tabs.get(capture.tabId).catch(() => undefined);
    if (!tab) return decide(capture, false);
    if (tab.status === 'loading' && !capture.isLast) return undefined; // until it has loaded
    const accepted = await outcome(capture);
    capture.looks += 1;
    if (accepted !== undefined) return decide(capture, accepted);
    return capture.looks < MOST_LOOKS && !capture.isLast ? judgeSoon(capture) : decide(capture, false);
  }

  // A page may load forever and be used all the same.
  function judgeAtLast(capture) {
    if (!capture.isAway) return decide(capture, false);
    capture.isLast = true;
    capture.limit = timers.setTimeout(() => decide(capture, false), LAST_LOOK);
    return judge(capture);
  }

  function judgeSoon(capture) {
    timers.clearTimeout(capture.settling);
    capture.settling = timers.setTimeout(() => judge(capture), SETTLE);
  }

  api.runtime.onConnect.addListener((port) => {
    if (port.name !== 'login' || !port.sender?.tab) return;
    let capture;
    port.onMessage.addListener((message) => {
      if (!Array.isArray(message.around ?? [])) return;
      if (message.accepted || message.dropped) {
        if (capture) decide(capture, Boolean(message.accepted));
      } else if (belongs(port.sender, message.around ?? [])) {
        const { tab } = port.sender;
        if (message.submitted) capture = report(port, message);
        else if (isText(message.name)) names.set(tab.id, { name: message.name, site: siteOf(tab.url), until: now() + NAME_PATIENCE });
      }
    });
    port.onDisconnect.addListener(() => {
      if (!capture || captures.get(capture.tabId) !== capture) return;
      capture.isAway = true;
      judgeSoon(capture);
    });
  });

  api.tabs.onUpdated.addListener((tabId, { status }) => {
    const capture = captures.get(tabId);
    if (status === 'complete' && capture?.isAway) judgeSoon(capture);
  });
  api.tabs.onRemoved.addListener((tabId) => {
    names.delete(tabId);
    const capture = captures.get(tabId);
    if (capture) decide(capture, Boolean(capture.isPopup) && now() - capture.since <= POPUP_TIME);
  });
}
