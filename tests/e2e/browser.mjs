import { execFileSync } from 'node:child_process';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { setTimeout } from 'node:timers/promises';
import { fileURLToPath } from 'node:url';
import puppeteer from 'puppeteer-core';

const root = fileURLToPath(new URL('../..', import.meta.url));

const CHROMIUM_FLAGS = [
  '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync',
];
const GECKO_ID = 'extension@glaceron.example';
// A browser of the tests has the same one always, so that the program can know it beforehand.
const FIREFOX_UUID = '6f2b8a14-3c5d-4e7f-8a9b-0c1d2e3f4a5b';
const FIREFOX_PREFERENCES = {
  'extensions.webextensions.uuids': JSON.stringify({ [GECKO_ID]: FIREFOX_UUID }),
  'datareporting.policy.dataSubmissionEnabled': false,
  'browser.aboutwelcome.enabled': false,
  'browser.tabs.closeWindowWithLastTab': false,
  'signon.rememberSignons': false,
  'network.captive-portal-service.enabled': false,
};

const CHROMIUM = {
  options: ({ hosts, args }) => ({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    // Over the pipe the background script keeps the life span that it has for a user.
    pipe: true,
    enableExtensions: true,
    args: [...CHROMIUM_FLAGS, `--host-resolver-rules=${hosts.map((host) => `MAP ${host} 127.0.0.1`).join(', ')}`, ...args],
  }),
  origin: (extensionId) => `chrome-extension://${extensionId}`,
};

const FIREFOX = {
  options: ({ hosts, args, preferences }) => ({
    browser: 'firefox',
    executablePath: process.env.FIREFOX ?? '/usr/bin/firefox-esr',
    // Without it no page of the extension can be opened.
    args: ['--remote-allow-system-access', ...args],
    extraPrefsFirefox: { ...FIREFOX_PREFERENCES, 'network.dns.localDomains': hosts.join(','), ...preferences },
  }),
  origin: () => `moz-extension://${FIREFOX_UUID}`,
};

const KINDS = { chromium: CHROMIUM, firefox: FIREFOX };

/** The browsers that every story is told in. BROWSERS=firefox tells it in that one alone. */
export const BROWSERS = process.env.BROWSERS?.split(',') ?? Object.keys(KINDS);

/** The origin that the extension has in Firefox; in Chromium the program knows it. */
export const FIREFOX_ORIGIN = FIREFOX.origin();

/** Builds the extension where it is out of date; returns the folder that the browser loads. */
export function buildExtension(kind = 'chromium') {
  execFileSync(join(root, 'scripts/build-extension'), { stdio: 'inherit' });
  return join(root, 'extension/dist', kind);
}

/**
 * Starts a browser ("chromium", "firefox") with the extension. Without profileDir it gets a profile of its own, removed
 * by close(). hosts: names that lead to this machine; env: with DISPLAY where it is not headless; preferences: more of
 * Firefox's; extension: false leaves it out, until install().
 * Returns {kind, browser, extensionId, origin, install, remove, openExtensionPage, pageAt, connected, close}.
 */
export async function launchBrowser(kind, { profileDir, hosts = [], headless = true, args = [], preferences, env, extension = true } = {}) {
  const userDataDir = profileDir ?? (await mkdtemp(join(tmpdir(), `glaceron-${kind}-`)));
  const own = KINDS[kind].options({ hosts, args, preferences });
  const browser = await puppeteer.launch({ ...own, headless, userDataDir, acceptInsecureCerts: true, ...(env && { env }) });
  let extensionId;

  async function install() {
    extensionId = await browser.installExtension(buildExtension(kind));
  }

  const remove = () => browser.uninstallExtension(extensionId);
  const origin = () => KINDS[kind].origin(extensionId);

  /** Opens a page of the extension in a tab. */
  async function openExtensionPage(path, selector) {
    const page = await browser.newPage();
    await page.goto(`${origin()}/${path}`, { waitUntil: [] });
    await page.waitForSelector(selector);
    return page;
  }

  /** The page with the address, once it is there: the driver may hear of a new tab after the extension does. */
  async function pageAt(url) {
    for (let tries = 0; tries < 200; tries += 1) {
      const page = (await browser.pages()).findLast((each) => each.url() === url);
      if (page) return page;
      await setTimeout(50);
    }
    throw new Error(`No page at ${url}`);
  }

  /** Waits until the program has answered. */
  async function connected() {
    const page = await openExtensionPage('popup.html', '[data-state=connected]');
    await page.close();
  }

  async function close() {
    await browser.close();
    if (!profileDir) await rm(userDataDir, { recursive: true, force: true, maxRetries: 10, retryDelay: 200 });
  }

  if (extension) await install();
  return { kind, browser, extensionId, origin: origin(), install, remove, openExtensionPage, pageAt, connected, close };
}
