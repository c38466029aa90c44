// What the pop-up of the toolbar button says and does in every state of the link, and how a browser is let in: the real
// program, both browsers, real clicks and key strokes.

import assert from 'node:assert/strict';
import { cpSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { test } from 'node:test';
import { setTimeout } from 'node:timers/promises';
import WebSocket from 'ws';
import { buildExtension } from './browser.mjs';

const QUICK = '^Quick access$';
// Where the button "Allow" of the question has its middle, from the corner at the bottom right.
const ALLOW = [53, 33];

/** Another browser that comes as soon as the program does. */
async function otherBrowser() {
  for (;;) {
    const socket = new WebSocket('ws://127.0.0.1:7899');
    if (await new Promise((resolve) => socket.on('open', () => resolve(true)).on('error', () => resolve(false)))) {
      socket.send(JSON.stringify({ action: 'hello', version: '1.1.32', bundleId: 'glaceron.chrome' }));
      return socket;
    }
    await setTimeout(10);
  }
}

const limit = { timeout: 60000 };

/** A browser that grants nothing at first, for stories that begin with letting the extension in. */
export const UNGRANTED = { 'extensions.originControls.grantByDefault': false };

/**
 * Tells of the toolbar button in a browser: path leads to a page with a crystal at the place, and the stage's open safe
 * has one login with the password for it. Returns the stories for the end, after which the browser has another extension.
 */
export function tellOfToolbar(stage, kind, { path, crystal, masterPassword, password }) {
  const isQuickOpen = () => stage.desktop.isVisible(QUICK);
  const shot = (name) => process.env.PICTURES && stage.desktop.picture(`${process.env.PICTURES}/${name}.png`);
  let page;
  let popup;

  async function leaveQuick() {
    await stage.desktop.activate(QUICK);
    await stage.desktop.press('Escape');
    await stage.program.until(async () => !(await isQuickOpen()), 'quick access to close');
  }

  /** Waits until the pop-up shows the state: its words, and what can be pressed. */
  async function shows(state) {
    await popup.waitForSelector(`[data-state=${state}]`);
    const words = await popup.$$eval('#state :is(h1, #text, #act, #help)', (parts) => parts.filter((part) => part.checkVisibility()).map(({ innerText }) => innerText));
    await shot(`toolbar-${kind}-${state}`);
    return words;
  }

  // The pop-up is of the page that was in front when it was opened.
  async function openPopup() {
    await popup?.close().catch(() => {});
    popup = await stage.browser.openExtensionPage('popup.html', 'body');
    await page.bringToFront();
    await popup.reload({ waitUntil: [] });
  }

  /** Presses the button of the pop-up; quick access opens. */
  async function press() {
    await popup.bringToFront();
    await popup.waitForSelector('#act');
    await popup.click('#act').catch(() => {}); // it closes under the pointer
    await stage.user.quickAccess();
  }

  /** Clicks where the page's crystal is, or will be in a moment. */
  async function clickCrystal() {
    await page.bringToFront();
    await stage.program.until(async () => {
      await page.mouse.click(...crystal);
      return stage.desktop.comes(QUICK);
    }, 'quick access');
    await stage.user.quickAccess();
  }

  test('a page is open before the extension is allowed anything', limit, async () => {
    page = await stage.browser.browser.newPage();
    await page.goto(stage.at(path));
    await openPopup();
  });

  test('Firefox is let in by a click on "Allow"', { ...limit, skip: kind !== 'firefox' }, async () => {
    assert.deepEqual(await shows('approval'), [
      'Waiting for your approval', 'Approve this browser in Glaceron Password Manager; it connects by itself then',
    ]);
    const question = await stage.desktop.activate('^Let Firefox connect');
    const { left, top, width, height } = await stage.desktop.placeOf(question);
    await stage.desktop.click(left + width - ALLOW[0], top + height - ALLOW[1]);
    await shows('connected');
  });

  test('where pages are not allowed the user is asked, and those that are open get their crystals', { ...limit, skip: kind !== 'firefox' }, async () => {
    const asks = () => popup.$$eval('#permission :is(h2, p)', (parts) => parts.filter((part) => part.checkVisibility()).map(({ innerText }) => innerText));
    assert.deepEqual(await asks(), [
      'Pages are not allowed yet', 'To find and fill fields, the extension has to be allowed on the sites you visit', 'Allow…',
    ]);
    await page.bringToFront();
    await page.mouse.click(...crystal);
    await stage.desktop.activate('Mozilla Firefox$');
    await popup.bringToFront();
    await popup.click('#permission button');
    await stage.program.until(async () => {
      await stage.desktop.press('alt+a');
      return (await asks()).length === 0;
    }, 'the permission');
    assert.equal(await isQuickOpen(), false);
  });

  test('a page that was there before is filled by a click on its crystal', limit, async () => {
    await clickCrystal();
    await stage.desktop.press('Return');
    await page.waitForFunction((value) => document.querySelector('[name=pw]').value === value, {}, password);
  });

  test('connected: the safe, the logins of the page, quick access', limit, async () => {
    await openPopup();
    assert.deepEqual(await shows('connected'), ['Connected', 'Personal is open · 1 login for this site', 'Open quick access']);
    await press();
    await leaveQuick();
  });

  test('locked: quick access unlocks', limit, async () => {
    await stage.user.lock();
    await openPopup();
    assert.deepEqual(await shows('locked'), ['The safe is locked', 'Unlock it in the program to fill this page', 'Unlock…']);
    await press();
    await stage.desktop.type(masterPassword);
    await stage.desktop.press('Return');
    await stage.program.until(() => stage.desktop.isVisible('^Personal - '), 'the open safe');
    await leaveQuick();
    await openPopup();
    await shows('connected');
  });

  test('not running: how to start it; another browser is connected; it comes to its turn by itself', { timeout: 90000 }, async () => {
    await stage.program.stop('SIGKILL');
    const offline = ['The program is not running', 'Start Glaceron Password Manager, this page connects by itself', 'How to start it'];
    assert.deepEqual(await shows('offline'), offline);
    await popup.bringToFront();
    await popup.click('#act');
    const [, , , help] = await shows('offline');
    assert.match(help, /^On Windows: .*look for the crystal in the tray\.$/);
    const coming = otherBrowser();
    stage.program.start();
    const other = await coming;
    assert.deepEqual(await shows('busy'), [
      'Another browser is connected', 'Only one browser is served at a time; close the other one’s link to use this one',
    ]);
    other.close();
    await shows('locked');
    await stage.user.unlock(masterPassword);
    await shows('connected');
    await stage.desktop.activate('(Chromium|Mozilla Firefox)$');
  });

  return () => {
    test('another version takes over in open pages; one that is too old says so', limit, async () => {
      const folder = mkdtempSync(join(tmpdir(), 'glaceron-old-'));
      cpSync(buildExtension(kind), folder, { recursive: true });
      const manifest = join(folder, 'manifest.json');
      writeFileSync(manifest, readFileSync(manifest, 'utf8').replace('"1.1.32"', '"1.0.1.25"'));
      await popup.close();
      await stage.browser.browser.installExtension(folder);
      if (kind === 'chromium') {
        await stage.desktop.activate('^Warning$');
        await stage.desktop.press('Return');
      }
      await clickCrystal();
      assert.equal(await page.$$eval('html > div', ({ length }) => length), 1);
      await leaveQuick();
      await openPopup();
      if (kind === 'chromium') {
        assert.deepEqual(await shows('version'), [
          'This extension is too old', 'Update it; the settings of Glaceron Password Manager, under Browser, show the way',
        ]);
      } else await shows('connected');
      rmSync(folder, { recursive: true });
    });

    test('of an extension that is removed nothing stays in the pages', limit, async () => {
      const isPage = () => page.evaluate((x, y) => document.elementFromPoint(x, y).name === 'pw', ...crystal);
      await page.bringToFront();
      await stage.program.until(async () => !(await isPage()), 'the crystal');
      const faults = [];
      page.on('pageerror', ({ message }) => faults.push(message));
      await stage.browser.remove();
      await stage.program.until(async () => {
        await page.mouse.click(...crystal);
        return isPage();
      }, 'the crystal to go');
      assert.deepEqual(faults, []);
    });
  };
}
