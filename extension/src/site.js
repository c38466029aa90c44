import { parse } from 'tldts';

const DEFAULT_PORTS = { 'http:': '80', 'https:': '443' };

function webUrl(address) {
  if (typeof address !== 'string') return undefined;
  try {
    const url = new URL(address);
    return url.protocol in DEFAULT_PORTS ? url : undefined;
  } catch {
    return undefined;
  }
}

export function isWebAddress(address) {
  return webUrl(address) !== undefined;
}

const LONGEST_ICON_ADDRESS = 2048;

/**
 * The first of the addresses that an icon can be fetched from. Firefox itself tells the picture and no address, and the
 * program takes no drawings.
 */
export function iconIn(...addresses) {
  const isUsable = (address) => isWebAddress(address) && address.length <= LONGEST_ICON_ADDRESS && !new URL(address).pathname.endsWith('.svg');
  return addresses.find(isUsable);
}

/**
 * The site that an address belongs to: its registrable domain, or host and port where there is none
 * (IP literals, localhost, names inside a network). Undefined for anything but http and https.
 */
export function siteOf(address) {
  const url = webUrl(address);
  if (!url) return undefined;
  const { domain, isIp } = parse(url.hostname, { allowPrivateDomains: true });
  const local = /(^|\.)localhost$/.test(url.hostname);
  if (domain && !isIp && !local) return domain;
  return `${url.hostname}:${url.port || DEFAULT_PORTS[url.protocol]}`;
}

export function sameSite(one, other) {
  const site = siteOf(one);
  return site !== undefined && site === siteOf(other);
}

/** Whether going from one address to the other gives up the encrypted connection. */
export function losesEncryption(from, to) {
  return webUrl(from)?.protocol === 'https:' && webUrl(to)?.protocol !== 'https:';
}

/** Whether a frame is one of the page: it and every frame around it are of its site, and none gives up its encryption. */
export function belongsTo(page, frames) {
  return frames.every((address) => sameSite(address, page) && !losesEncryption(page, address));
}

/** Whether two addresses name the same document; what follows the # does not count. */
export function sameDocument(one, other) {
  const [a, b] = [webUrl(one), webUrl(other)];
  if (!a || !b) return false;
  a.hash = '';
  b.hash = '';
  return a.href === b.href;
}
