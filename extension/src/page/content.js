import { describeFrame } from '../frame.js';
import { watchLogins } from './capture.js';
import { removeOrphans } from './icon.js';
import { createIcons } from './icons.js';
import { kindOf } from './kinds.js';
import { watch } from './watch.js';

// Runs in every page by itself, and so does next to nothing before there is a field to fill.
// Every browser has "chrome"; where one has no "browser", that name finds a form or frame of the page that is called so.
const api = globalThis.chrome;
const STARTED = Symbol.for('glaceron.content');
const RENEWED = 'glaceron-renewed';
const MOVES = ['scroll', 'resize', 'focusin', 'transitionend', 'animationend', 'toggle'];

// Where on the screen the click was and, in the page's own measure, where around it the field is: only a real click tells
// of both, and only the background script knows how large the page is shown.
function fromClick({ left, top, width, height }, { screenX, screenY, clientX, clientY }) {
  const { scale } = visualViewport;
  const [x, y, w, h] = [left - clientX, top - clientY, width, height].map((length) => length * scale);
  return { field: { left: x, top: y, width: w, height: h }, click: { left: screenX, top: screenY } };
}

// Firefox ends the scripts of an extension that is removed without a word, but takes back its styles: there the icons show by
// one, of a name that no page can know. Chromium leaves the scripts, which notice.
function makeMark() {
  if (!api.runtime.getURL('').startsWith('moz-')) return undefined;
  return `g${[...crypto.getRandomValues(new Uint8Array(8))].map((byte) => byte.toString(16).padStart(2, '0')).join('')}`;
}

function start() {
  const mark = makeMark();
  let isStyled = !mark;
  const icons = createIcons({
    mark,
    title: api.i18n.getMessage('iconTitle'),
    open: (kind, box, place) => say({ open: { kind, ...fromClick(box, place), around: describeFrame().around } }),
  });
  let isPlanned = false;
  let belongs = self === top ? true : undefined; // whether the frame is one of the page's site; not known yet

  // An extension that was updated or removed leaves its scripts behind, without anybody to talk to.
  async function say(message) {
    try {
      return await api.runtime.sendMessage(message);
    } catch {
      stopIfLeft();
      return undefined;
    }
  }

  function refreshSoon() {
    if (isPlanned || icons.isEmpty()) return;
    isPlanned = true;
    requestAnimationFrame(() => {
      isPlanned = false;
      if (!stopIfLeft()) icons.refresh();
    });
  }

  function add(field, kind) {
    if (!isStyled) say({ show: mark });
    isStyled = true;
    icons.add(field, kind);
  }

  const waiting = [];
  async function take(field) {
    const kind = kindOf(field);
    if (!kind || belongs === false) return;
    if (belongs) return add(field, kind);
    waiting.push([field, kind]);
    if (waiting.length > 1) return;
    belongs = Boolean(await say({ belongs: describeFrame().around }));
    for (const [each, of] of waiting.splice(0)) if (belongs) add(each, of);
  }

  function listen() {
    logins.listen();
    for (const type of MOVES) addEventListener(type, refreshSoon, { capture: true, passive: true });
    addEventListener(RENEWED, stopIfLeft);
  }

  function onChange() {
    if (stopIfLeft()) return;
    listen();
    refreshSoon();
  }

  const watcher = watch(document, { onField: take, onChange });
  const logins = watchLogins({
    connect: () => api.runtime.connect({ name: 'login' }),
    isTrusted: (event) => event.isTrusted && !stopIfLeft(),
  });
  listen();

  // A new version has come (see injection.js), the extension was removed, or the page says so: only who is left behind goes.
  function stopIfLeft() {
    const isLeft = !api.runtime?.id;
    if (isLeft) stop();
    return isLeft;
  }

  function stop() {
    watcher.stop();
    logins.stop();
    icons.stop();
    for (const type of MOVES) removeEventListener(type, refreshSoon, { capture: true });
    removeEventListener(RENEWED, stopIfLeft);
  }
}

if (!globalThis[STARTED] && document instanceof HTMLDocument) {
  globalThis[STARTED] = true;
  removeOrphans(document);
  start();
}
