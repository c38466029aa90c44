import { captionOf, isButton } from './buttons.js';
import { attr, partsOf } from './dom.js';
import { isCode, purposeOf } from './fields.js';
import { GO_ON, SIGN_IN, USER_NAME, findPhrase } from './words.js';

// What a field is for, as far as its icon goes: told from the field itself alone, cheaply, as every field of every page
// is asked. What is filled in the end is the program's decision.
const LINES = new Set(['text', 'email', 'tel', 'password', 'number', 'url', 'month']);
const TOKENS = [
  [/^(username|current-password|new-password|webauthn)$/, 'login'],
  [/^cc-/, 'creditcard'],
  [/^(name|honorific|given-name|additional-name|family-name|nickname|organization|street-address|address-|country|postal-code|bday|sex|tel|email)/, 'identity'],
];
const NEVER = /captcha|one.?time|\botp\b|totp|2fa|mfa|verif|pin.?code|sms|search|query|such|поиск|recherche|buscar|coupon|voucher|promo|gift|newsletter|subscri|abonn/i;
const CARD = /card.?(number|no|num|holder|name)|cc.?(number|num|name|exp|csc|cvc)|credit.?card|kartennummer|karteninhaber|numéro de (la )?carte|n[úu]mero de (la )?tarjeta|номер карты|\bcv[vc]2?\b|\bcsc\b|security.?code|prüfziffer|expir|\bexp\b|(?<![/.-] ?)\b(mm|мм) ?[/-] ?(yy|jj|aa|гг)|ablaufdatum|gültig bis|срок действия|caduc/i;
const PERSON = /(first|last|given|family|middle|full|sur|fore).?name|vorname|nachname|prénom|\bnom\b|nombre|apellido|имя|фамилия|отчество|street|address|straße|strasse|adresse|direcci[óo]n|адрес|улица|\bcity\b|\bstadt\b|\bort\b|ville|ciudad|город|zip|postal|postcode|\bplz\b|индекс|phone|mobile|telefon|téléphone|tel[ée]fono|телефон|birth|geburt|naissance|nacimiento|рожден|company|firma|société|empresa|компания/i;

const TOLD = ['name', 'id', 'placeholder', 'aria-label', 'title'];

// Without an id only a label around the field can be meant; with one the browser walks through the whole page.
function labelsOf(field) {
  if (field.id) return [...(field.labels ?? [])];
  const around = field.closest('label');
  return around ? [around] : [];
}

function textOf(field) {
  const labels = labelsOf(field).map((label) => label.textContent.slice(0, 80));
  return [...TOLD.map((name) => attr(field, name)), ...labels].join(' ').replaceAll(/([a-zà-ž])([A-Z])/g, '$1 $2');
}

const tokenOf = (field) => purposeOf(field).findLast((word) => word !== 'webauthn') ?? '';
const isPassword = ({ type }) => type === 'password';

// A page that asks for the user name first has no password field yet, only a button that goes on.
function leadsToLogin(field) {
  const parts = [...(field.form ? partsOf(field.form) : field.getRootNode().querySelectorAll('input, button'))];
  if (parts.some(isPassword)) return true;
  const captions = parts.filter(isButton).map(captionOf);
  return captions.some((caption) => findPhrase(caption, [...SIGN_IN, ...GO_ON]) >= 0);
}

/** "login", "creditcard", "identity", or undefined where the icon has no business. */
export function kindOf(field) {
  if (field.tagName !== 'INPUT' || !LINES.has(field.type) || field.readOnly || field.disabled) return undefined;
  const token = tokenOf(field);
  if (token === 'one-time-code') return undefined;
  const text = textOf(field);
  const told = TOKENS.find(([pattern]) => pattern.test(token))?.[1];
  const isUserName = field.type === 'email' || token === 'email' || USER_NAME.some((word) => text.toLowerCase().includes(word));
  if (told && !(told === 'identity' && isUserName)) return told;
  if (!isPassword(field) && (NEVER.test(text) || field.closest('search, [role=search]'))) return undefined;
  if (CARD.test(text)) return 'creditcard';
  if (isPassword(field)) return isCode(field, text) ? undefined : 'login';
  if (isUserName && leadsToLogin(field)) return 'login';
  return told ?? (PERSON.test(text) ? 'identity' : undefined);
}
