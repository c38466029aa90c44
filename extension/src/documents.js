import { announceFrame, describeFrame } from './frame.js';
import { routedOpid } from './route.js';
import { belongsTo } from './site.js';

const MOST_FIELDS = 1000;
const MOST_OPTIONS = 5000;
const LONGEST_ADDRESS = 4096;
// The program closes the connection on a message of more than 8 MiB.
const MOST_BYTES = 7 * 1024 * 1024;
const TOP = 0;
// One frame that is busy, such as an advertisement, must not keep the page from being filled.
const FRAME_LIMIT = 1000;
// A page can make thousands of frames, and this script is there for all pages.
const MOST_FRAMES = 100;

// Runs inside the page and can use nothing from around it.
async function callPage(name, argument) {
  return globalThis[Symbol.for('glaceron')]?.[name](argument);
}

/**
 * The documents of a tab, and nothing of another site. A frame counts when it and every frame around it
 * belong to the site of the tab and none of them gives up the tab's encryption.
 */
export function createDocuments({ api, timers }) {
  let lastQuestion = 0;
  const reported = new Map(); // tab → the documents of its latest description

  async function run(target, injection) {
    try {
      return await api.scripting.executeScript({ target, injectImmediately: true, ...injection });
    } catch {
      return []; // the document went away or does not admit scripts
    }
  }

  /** What the promise brings, undefined when it takes longer. */
  function within(milliseconds, promise) {
    return new Promise((resolve) => {
      const limit = timers.setTimeout(resolve, milliseconds);
      promise.then((result) => {
        timers.clearTimeout(limit);
        resolve(result);
      });
    });
  }

  // Where the browser names documents, a document that replaced the one that was looked at is never reached.
  const targetOf = ({ tabId, frameId, documentId }) =>
    documentId ? { tabId, documentIds: [documentId] } : { tabId, frameIds: [frameId] };

  // What all frames of a tab say of themselves. The browser keeps its answer back until the last has spoken; of those that
  // let it wait, the others have told by themselves.
  async function askFrames(tabId) {
    const id = (lastQuestion += 1);
    const told = [];
    const hear = (message, { tab, frameId, documentId }) => {
      if (message?.frame?.id === id && tab?.id === tabId) told.push({ frameId, documentId, result: message.frame });
    };
    api.runtime.onMessage.addListener(hear);
    const all = await within(FRAME_LIMIT, run({ tabId, allFrames: true }, { func: announceFrame, args: [id] }));
    api.runtime.onMessage.removeListener(hear);
    return all ?? told;
  }

  /** The tab's top document and the oldest frames of its site, the top one first; empty when the page is out of reach. */
  async function list(tabId) {
    const [top] = await run({ tabId, frameIds: [TOP] }, { func: describeFrame });
    if (!top?.result) return [];
    const all = await askFrames(tabId);
    const { origin: site } = top.result;
    return [top, ...all.filter(({ frameId }) => frameId !== TOP)]
      .filter(({ result }) => result && belongsTo(site, [result.origin, ...result.around]))
      .map(({ frameId, documentId, result }) => ({ tabId, frameId, documentId, origin: result.origin }))
      .sort((a, b) => a.frameId - b.frameId)
      .slice(0, MOST_FRAMES);
  }

  /** The answer of one document, undefined when it went away. */
  async function call(frame, name, argument = {}) {
    const target = targetOf(frame);
    await run(target, { files: ['page.js'] });
    const [answer] = await run(target, { func: callPage, args: [name, argument] });
    return answer?.result ?? undefined;
  }

  // Without the top document there is no page; for the others it does not wait longer than the limit.
  function askAll(frames, name, argument, limit) {
    return frames.map((frame) => {
      const answer = call(frame, name, argument);
      return frame.frameId === TOP ? answer : within(limit, answer);
    });
  }

  /** The answers of documents of one page; undefined for those that went away, or are not the top one and take long. */
  const callAll = (frames, name) => Promise.all(askAll(frames, name, {}, FRAME_LIMIT));

  /** Waits until one of the documents shows a field of the kind; undefined when the top document went away. */
  async function waitFor(frames, kind, milliseconds) {
    const answers = askAll(frames, 'waitFor', { kind, milliseconds }, milliseconds + FRAME_LIMIT);
    const shown = answers.map(async (answer) => (await answer) || Promise.reject());
    const first = await Promise.any(shown).catch(() => false);
    return first || answers[0];
  }

  /** The description of a tab's page: {docinfo, tabUrl, icon, password: a visible password field is there}. */
  async function describe(tabId) {
    const frames = await list(tabId);
    const reports = await callAll(frames, 'collect');
    if (!reports[0]) return undefined;
    const known = new Map();
    reported.set(tabId, known);
    const [{ title, url, language }] = reports;
    const docinfo = { title, url: url.slice(0, LONGEST_ADDRESS), language, forms: [], elements: [] };
    let room = MOST_FIELDS;
    let optionRoom = MOST_OPTIONS;
    let password = false;

    // A list that finds no room any more is described without its choices.
    function takeOptions({ options }) {
      if (!options) return {};
      if (options.length > optionRoom) return { options: [] };
      optionRoom -= options.length;
      return { options };
    }

    function take(fields, frame) {
      const taken = fields.slice(0, room).map((field) => ({ ...field, opid: routedOpid(frame, field.opid), ...takeOptions(field) }));
      room -= taken.length;
      password ||= taken.some((field) => field.type === 'password' && field.visible);
      return taken;
    }

    frames.forEach((frame, index) => {
      const report = reports[index];
      if (!report || report.origin !== frame.origin) return;
      known.set(report.token, frame);
      const forms = report.forms.map((form) => ({ ...form, fields: take(form.fields, frame) }));
      docinfo.forms.push(...forms.filter((form) => form.fields.length > 0));
      docinfo.elements.push(...take(report.elements, frame));
    });
    if (new TextEncoder().encode(JSON.stringify(docinfo)).length > MOST_BYTES) Object.assign(docinfo, { forms: [], elements: [] });
    return { docinfo, tabUrl: docinfo.url, icon: reports[0].icon, password };
  }

  /** The document that described itself under the token, while it is there; undefined for any other in its place. */
  async function reportedAs({ tabId, frameId, token }) {
    const frame = reported.get(tabId)?.get(token);
    if (frame?.frameId !== frameId) return undefined;
    if (frame.documentId) return frame;
    const there = (await list(tabId)).find((one) => one.frameId === frameId && one.origin === frame.origin);
    return there && (await call(there, 'token')) === token ? there : undefined;
  }

  return { list, call, callAll, waitFor, describe, reportedAs, forget: (tabId) => reported.delete(tabId) };
}
