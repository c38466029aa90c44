import { parseOpid } from './route.js';
import { losesEncryption, sameSite, siteOf } from './site.js';

/** The program's values, each to the one document that reported its field, and what follows a filled login. */
export function createFills({ documents, logins, answer, send }) {
  // Fields outside of forms come in one list for all frames of a page.
  function byDocument(elements) {
    const groups = new Map();
    for (const { opid, gpmid, value } of elements) {
      const route = parseOpid(opid);
      if (!route) continue;
      const key = `${route.tabId}:${route.frameId}:${route.token}`;
      if (!groups.has(key)) groups.set(key, { ...route, elements: [] });
      groups.get(key).elements.push({ opid: route.opid, gpmid, value });
    }
    return [...groups.values()];
  }

  // Where the fields' forms may be sent: the addresses, or undefined when one is of another site or gives up encryption.
  async function safeTargets(frame, formUid, elements) {
    const addresses = await documents.call(frame, 'targets', { formUid, elements });
    const isSafe = (address) => sameSite(address, frame.origin) && !losesEncryption(frame.origin, address);
    return addresses?.every(isSafe) ? addresses : undefined;
  }

  // The values leave this script only for the document that reported their fields: whatever is now in its place may be
  // another site's.
  async function fillGroup({ elements, ...route }, formUid, isNew) {
    const frame = await documents.reportedAs(route);
    const fields = elements.map(({ opid, gpmid }) => ({ opid, gpmid }));
    if (!frame || !(await safeTargets(frame, formUid, fields))) return undefined;
    const done = await documents.call(frame, 'fill', { formUid, elements, isNew });
    return done && { ...done, frame, last: elements.at(-1) };
  }

  /** Reports a login's next page, or the password field that appeared, as the answer to the same request. */
  async function awaitPassword(tabId) {
    const record = logins.waiting(tabId);
    if (!record) return;
    const frames = await documents.list(tabId);
    if (frames.length === 0 || siteOf(frames[0].origin) !== record.site) return;
    if (!(await documents.waitFor(frames, 'password', logins.timeLeft(record)))) return;
    const taken = logins.take(tabId);
    if (!taken) return;
    const page = await documents.describe(tabId);
    if (!page || siteOf(page.tabUrl) !== taken.site) return taken.undo();
    await answer('collectDocumentResults', taken.request, tabId, page);
  }

  async function fillForm({ formUid, elements, reason, submit }) {
    const results = [];
    for (const group of byDocument(elements)) results.push(await fillGroup(group, formUid, reason === 'placepwd'));
    const done = results.filter((result) => result?.some);
    if (done.length === 0) return;

    const { tabId } = done[0].frame;
    if (reason === 'login') logins.filled(tabId, done.some(({ password }) => password));
    const complete = results.every((result) => result?.all);
    if (submit && complete) {
      const { frame, last } = done.find(({ password }) => password) ?? done.at(-1);
      const element = { opid: last.opid, gpmid: last.gpmid };
      const allowed = await safeTargets(frame, formUid, [element]);
      if (allowed && (await documents.call(frame, 'submit', { formUid, element, allowed }))) send('pressEnterKey');
    }
    awaitPassword(tabId);
  }

  return { fillForm, awaitPassword };
}
