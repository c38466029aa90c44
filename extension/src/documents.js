import { routedOpid } from './route.js';
import { losesEncryption, sameSite } from './site.js';

const MOST_FIELDS = 500;
const LONGEST_ADDRESS = 4096;
const TOP = 0;

// The next two run inside the page and can use nothing from around them.
function describeFrame() {
  const around = location.ancestorOrigins ? [...location.ancestorOrigins] : self === top ? [] : ['null'];
  return { origin: self.origin, around };
}

async function callPage(name, argument) {
  return globalThis[Symbol.for('glaceron')]?.[name](argument);
}

/**
 * The documents of a tab, and nothing of another site. A frame counts when it and every frame around it
 * belong to the site of the tab and none of them gives up the tab's encryption.
 */
export function createDocuments(api) {
  async function run(target, injection) {
    try {
      return await api.scripting.executeScript({ target, injectImmediately: true, ...injection });
    } catch {
      return []; // the document went away or does not admit scripts
    }
  }

  // Where the browser names documents, a document that replaced the one that was looked at is never reached.
  const targetOf = ({ tabId, frameId, documentId }) =>
    documentId ? { tabId, documentIds: [documentId] } : { tabId, frameIds: [frameId] };

  /** The tab's top document and the frames of its site, the top one first; empty when the page is out of reach. */
  async function list(tabId) {
    const frames = await run({ tabId, allFrames: true }, { func: describeFrame });
    const top = frames.find(({ frameId, result }) => frameId === TOP && result);
    if (!top) return [];
    const { origin: site } = top.result;
    const belongs = (origin) => sameSite(origin, site) && !losesEncryption(site, origin);
    return frames
      .filter(({ result }) => result && [result.origin, ...result.around].every(belongs))
      .map(({ frameId, documentId, result }) => ({ tabId, frameId, documentId, origin: result.origin }))
      .sort((a, b) => a.frameId - b.frameId);
  }

  /** The answer of one document, undefined when it went away. */
  async function call(frame, name, argument = {}) {
    const target = targetOf(frame);
    await run(target, { files: ['page.js'] });
    const [answer] = await run(target, { func: callPage, args: [name, argument] });
    return answer?.result ?? undefined;
  }

  /** Waits until one of the documents shows a field of the kind; undefined when the top document went away. */
  async function waitFor(frames, kind, milliseconds) {
    const answers = frames.map((frame) => call(frame, 'waitFor', { kind, milliseconds }));
    const shown = answers.map(async (answer) => (await answer) || Promise.reject());
    const first = await Promise.any(shown).catch(() => false);
    return first || answers[0];
  }

  /** The description of a tab's page: {docinfo, tabUrl, icon, password: a visible password field is there}. */
  async function describe(tabId) {
    const frames = await list(tabId);
    const reports = await Promise.all(frames.map((frame) => call(frame, 'collect')));
    if (!reports[0]) return undefined;
    const docinfo = { title: reports[0].title, url: reports[0].url.slice(0, LONGEST_ADDRESS), forms: [], elements: [] };
    let room = MOST_FIELDS;
    let password = false;

    function take(fields, frame) {
      const taken = fields.slice(0, room).map((field) => ({ ...field, opid: routedOpid(frame, field.opid) }));
      room -= taken.length;
      password ||= taken.some((field) => field.type === 'password' && field.visible);
      return taken;
    }

    frames.forEach((frame, index) => {
      const report = reports[index];
      if (!report || report.origin !== frame.origin) return;
      const forms = report.forms.map((form) => ({ ...form, fields: take(form.fields, frame) }));
      docinfo.forms.push(...forms.filter((form) => form.fields.length > 0));
      docinfo.elements.push(...take(report.elements, frame));
    });
    return { docinfo, tabUrl: docinfo.url, icon: reports[0].icon, password };
  }

  return { list, call, waitFor, describe };
}
