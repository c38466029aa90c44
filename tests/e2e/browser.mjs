import { execFileSync } from 'node:child_process';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import puppeteer from 'puppeteer-core';

const root = fileURLToPath(new URL('../..', import.meta.url));

const CHROMIUM = process.env.CHROMIUM ?? '/usr/bin/chromium';
const FLAGS = [
  '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync',
];

/** Builds the extension where it is out of date; returns the folder that Chromium loads. */
export function buildExtension() {
  execFileSync(join(root, 'scripts/build-extension'), { stdio: 'inherit' });
  return join(root, 'extension/dist/chromium');
}

/**
 * Starts Chromium with the extension. Without profileDir it gets a profile of its own, removed by close().
 * hosts: names that lead to this machine. Returns {browser, extensionId, close}.
 */
export async function launchChromium({ profileDir, extensionDir, hosts = [], headless = true, args = [] }) {
  const userDataDir = profileDir ?? (await mkdtemp(join(tmpdir(), 'glaceron-chromium-')));
  const rules = hosts.map((host) => `MAP ${host} 127.0.0.1`).join(', ');
  // Over the pipe the background script keeps the life span that it has for a user.
  const browser = await puppeteer.launch({
    executablePath: CHROMIUM,
    pipe: true,
    enableExtensions: true,
    headless,
    userDataDir,
    args: [...FLAGS, ...(rules ? [`--host-resolver-rules=${rules}`] : []), ...args],
  });
  const extensionId = await browser.installExtension(extensionDir);

  async function close() {
    await browser.close();
    if (!profileDir) await rm(userDataDir, { recursive: true, force: true, maxRetries: 10, retryDelay: 200 });
  }

  return { browser, extensionId, close };
}
