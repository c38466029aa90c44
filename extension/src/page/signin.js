import { captionOf, clickable } from './buttons.js';
import { ACCOUNT, SIGN_IN, findPhrase, isPhrase, leadsElsewhere } from './words.js';

const WAYS = 'a[href], button, [role=button], input[type=button], input[type=submit]';
const LONGEST_CAPTION = 60;
const MOST_WAYS = 10;
const SIGN_IN_PATH = /(^|[/._-])(log-?[io]n|sign-?in|auth|anmelden|connexion|entrar|acceder)([/._?-]|$)/i;

function score(caption, address) {
  if (caption.length > LONGEST_CAPTION || leadsElsewhere(caption)) return 0;
  if (isPhrase(caption, SIGN_IN)) return 4;
  if (findPhrase(caption, SIGN_IN) >= 0) return 3;
  if (address && SIGN_IN_PATH.test(address.pathname)) return 2;
  return isPhrase(caption, ACCOUNT) ? 1 : 0;
}

function addressOf(element) {
  if (element.tagName !== 'A') return undefined;
  try {
    return new URL(element.href);
  } catch {
    return undefined;
  }
}

/** The page's links and buttons that lead to logging in, best first: [{element, address}], address null for a button. */
export function waysToSignIn(doc) {
  return clickable(doc, WAYS)
    .map((element) => ({ element, address: addressOf(element) }))
    .map((way) => ({ ...way, score: score(captionOf(way.element), way.address) }))
    .filter((way) => way.score > 0 && (way.address || way.element.tagName !== 'A'))
    .sort((a, b) => b.score - a.score)
    .slice(0, MOST_WAYS)
    .map(({ element, address }) => ({ element, address: address?.href ?? null }));
}
