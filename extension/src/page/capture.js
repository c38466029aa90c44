import { describeFrame } from '../frame.js';
import { captionOf, isButton, isSubmitButton } from './buttons.js';
import { collect } from './collect.js';
import { attr, elementsUnder, findAll, matches, parentOf, shadowRootOf, titleOf } from './dom.js';
import { fieldType, purposeOf } from './fields.js';
import { isStillAsked } from '../shapes.js';
import { groupAround, isName, isPassword, passwordForms, shapeOf } from './shape.js';
import { labelText } from './surroundings.js';
import { clean } from './text.js';
import { isVisible } from './visible.js';
import { CHANGE, CLOSE, GO_ON, SIGN_IN, SIGN_UP, USER_NAME, findPhrase, isPhrase, leadsElsewhere, siteNameIn } from './words.js';

const LOOK = 300;
const GONE_FOR = 1500;
// A page that still shows that it is at work may show its form again.
const BUSY_FOR = 6000;
const PATIENCE = 30000;
// The program keeps a report for a minute: one that is sent again later is a new one.
const SAME_FOR = 10000;
const LONGEST = 320;
const LONGEST_CAPTION = 40;
const BUSY = '[aria-busy=true], [role=progressbar], progress';
const NAMING = ['name', 'id', 'type', 'autocomplete', 'placeholder', 'aria-label'];
const NAMED = new RegExp(USER_NAME.join('|'), 'i');
// Hidden fields hold much that is about users and is not what they type.
const NOT_NAMED = /token|csrf|nonce|challenge|session|agent|type|hash|key|state|(^|[_\-[])id\b/i;
const LONGEST_HIDDEN = 100;
// No password is longer, and the program ends a connection that says too much.
const LONGEST_SECRET = 1024;
const TYPED = Symbol.for('glaceron.typed');
const NEAR = 5;
// A page's script can type and send by itself, and the browser calls that trusted: a person must have acted too.
const ACTED = { input: 'hasBeenActive', submit: 'isActive' };

// Inside of a closed shadow tree an event names only its host.
function deepTarget(event) {
  let [target] = event.composedPath();
  for (let root = shadowRootOf(target); root; root = shadowRootOf(target)) {
    const isPointed = event.type === 'click' && event.detail > 0;
    const inner = isPointed ? root.elementFromPoint(event.clientX, event.clientY) : root.activeElement;
    if (!inner || inner === target) break;
    target = inner;
  }
  return target;
}

const isPasswordShown = (field) => isPassword(field) && isVisible(field);

function sends(button) {
  const caption = captionOf(button);
  if (isButton(button) && findPhrase(caption, CHANGE) >= 0 && groupAround(button).filter(isPasswordShown).length > 1) return true;
  if (leadsElsewhere(caption) && findPhrase(caption, SIGN_UP) < 0) return false;
  if (isSubmitButton(button)) return true;
  const words = [...SIGN_IN, ...SIGN_UP, ...GO_ON];
  return isButton(button) ? findPhrase(caption, words) >= 0 : caption.length <= LONGEST_CAPTION && isPhrase(caption, words);
}

function sendingButton(target) {
  for (let node = target, level = 0; node && level < NEAR; node = parentOf(node), level += 1) {
    if (fieldType(node)) return undefined;
    if (isButton(node)) return sends(node) ? node : undefined;
    if (node.tagName !== 'BODY' && findAll(node, '*').length < 5 && sends(node)) return node;
  }
  return undefined;
}

/** Whether a click there leaves a login alone: another way in, help with it, or the end of its window. */
function givesUp(target) {
  for (let node = target, level = 0; node && level < NEAR; node = parentOf(node), level += 1) {
    if (!isButton(node) && !matches(node, 'a')) continue;
    const caption = captionOf(node);
    return leadsElsewhere(caption) || isPhrase(caption, CLOSE);
  }
  return false;
}

// What the page calls its site, without "Sign in".
function siteTitle(doc) {
  const named = findAll(doc, 'meta[property="og:site_name"], meta[name="application-name"]')[0];
  const name = named && clean(attr(named, 'content'));
  return name || siteNameIn(clean(titleOf(doc)));
}

/**
 * Watches for logins that a person types into the document and sends, and for what the page makes of them.
 * connect: opens a port to the background script; on it go {name}, {submitted, shape, around}, {accepted} and {dropped},
 * and its end means that the document went away. isTrusted: whether an event is the browser's and not a script's.
 */
export function watchLogins({ connect, isTrusted = (event) => event.isTrusted, doc = document, view = window }) {
  const passwords = new WeakSet(); // also while they are shown as text
  const typed = new WeakSet();
  const numbers = new WeakMap();
  const roots = new WeakSet();
  let lastNumber = 0;
  let current;

  const isReal = (event) => isTrusted(event) && view.navigator.userActivation?.[ACTED[event.type]] !== false;
  const isSecret = (field) => isPassword(field) || passwords.has(field);

  function numberOf(element) {
    if (!numbers.has(element)) numbers.set(element, (lastNumber += 1));
    return numbers.get(element);
  }

  /** The program has filled a field. What it has just made up is not in the safe yet. */
  function filled(field, isNew) {
    if (!isSecret(field)) return;
    passwords.add(field);
    if (isNew) typed.add(field);
    else typed.delete(field);
  }

  // The page is described as for filling, and what was typed added: the program finds the login in it.
  function describe(group) {
    const { report, fields } = collect(doc, 'typed', numberOf);
    const entries = [...report.forms.flatMap((form) => form.fields), ...report.elements];
    const form = report.forms.find((each) => each.fields.some(({ opid }) => group.includes(fields.get(opid).field)));
    const described = entries.filter(({ opid }) => group.includes(fields.get(opid).field)).map(({ options, ...entry }) => {
      const { field } = fields.get(entry.opid);
      if (purposeOf(field).some((word) => word.startsWith('cc-'))) return entry;
      if (isSecret(field)) return { ...entry, type: 'password', inputtype: 'password', value: field.value };
      return isName(field) ? { ...entry, value: field.value.slice(0, LONGEST) } : entry;
    });
    return { title: clean(titleOf(doc)), siteName: siteTitle(doc), icon: report.icon, buttons: form?.buttons, fields: described };
  }

  // The second page of two often keeps the user name in a field that nobody sees.
  function nameOf(group) {
    const inputs = [...findAll(group.find((field) => field.form)?.form ?? doc, 'input')].filter(({ value }) => value !== '');
    const isNamed = (field) => {
      const words = [attr(field, 'name'), attr(field, 'id')];
      return NAMED.test(words.join(' ')) && !words.some((word) => NOT_NAMED.test(word));
    };
    const told = inputs.find((field) => purposeOf(field).includes('username'));
    const kept = told ?? inputs.find((field) => field.type === 'hidden' && field.value.length <= LONGEST_HIDDEN && isNamed(field));
    return kept?.value.slice(0, LONGEST);
  }

  function forget() {
    view.clearInterval(current?.timer);
    current = undefined;
  }

  function end(word) {
    const { port } = current;
    forget();
    try {
      port.postMessage({ [word]: true });
      port.disconnect();
    } catch {
      // The background script was ended, and its reports with it.
    }
  }

  const isAsked = () => isStillAsked(current.shape, passwordForms(doc, isSecret));

  // A form that goes because the user gave up was not accepted.
  function giveUp() {
    if (current && isAsked()) end('dropped');
  }

  function look() {
    const now = view.performance.now();
    if (isAsked()) {
      current.gone = undefined;
      if (now - current.since >= PATIENCE) end('dropped');
      return;
    }
    current.gone ??= now;
    const isBusy = [...elementsUnder(doc)].some((element) => matches(element, BUSY) && isVisible(element));
    if (now - current.gone >= (isBusy ? BUSY_FOR : GONE_FOR)) end('accepted');
  }

  function submit(group) {
    if (group.some((field) => isSecret(field) && field.value.length > LONGEST_SECRET)) return;
    const key = JSON.stringify(group.filter((field) => isSecret(field) || isName(field)).map(({ value }) => value));
    const now = view.performance.now();
    if (current?.key === key && now - current.since < SAME_FOR) return;
    if (current) end('dropped');
    const shape = shapeOf(group, isSecret);
    const submitted = { ...describe(group), login: nameOf(group) };
    const port = connect();
    port.postMessage({ submitted, shape, around: describeFrame().around });
    const report = { port, shape, key, since: now, timer: view.setInterval(look, LOOK) };
    port.onDisconnect.addListener(() => report === current && forget());
    current = report;
  }

  function tellName(group) {
    const isNamed = (field) => NAMED.test([...NAMING.map((key) => attr(field, key)), labelText(field)].join(' '));
    const name = group.find((field) => isName(field) && isVisible(field) && field.value !== '' && isNamed(field));
    if (!name) return;
    const port = connect();
    port.postMessage({ name: name.value.slice(0, LONGEST), around: describeFrame().around });
    port.disconnect();
  }

  function attempt(element) {
    const group = groupAround(element);
    if (group.some((field) => typed.has(field) && field.value !== '')) submit(group);
    else if (!group.some((field) => isSecret(field) && isVisible(field))) tellName(group);
  }

  // Those of a shadow tree do not leave it.
  function listenIn(root) {
    if (root === doc || roots.has(root)) return;
    roots.add(root);
    root.addEventListener('submit', (event) => isReal(event) && attempt(event.target), { capture: true });
  }

  const listeners = {
    input(event) {
      const field = deepTarget(event);
      if (!isSecret(field)) return;
      passwords.add(field);
      typed.add(field);
      listenIn(field.getRootNode());
    },
    submit: (event) => attempt(event.target),
    click(event) {
      const target = deepTarget(event);
      const button = sendingButton(target);
      if (button) attempt(button);
      else if (givesUp(target)) giveUp();
    },
    keydown(event) {
      if (event.key === 'Escape') giveUp();
      const field = deepTarget(event);
      if (event.key === 'Enter' && !event.isComposing && (isSecret(field) || isName(field))) attempt(field);
    },
    // The document may come back later; what became of its login is seen in the next one.
    pagehide() {
      current?.port.disconnect();
      forget();
    },
  };
  const guarded = Object.entries(listeners).map(([type, listener]) => [type, (event) => isReal(event) && listener(event)]);
  function listen() {
    for (const [type, listener] of guarded) view.addEventListener(type, listener, { capture: true });
  }
  listen();
  globalThis[TYPED] = { filled };

  return {
    /** Once more, where the page was written anew and its window has forgotten who listens. */
    listen,
    stop() {
      for (const [type, listener] of guarded) view.removeEventListener(type, listener, { capture: true });
      forget();
    },
  };
}
