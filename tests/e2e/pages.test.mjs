// On the page itself: the crystals in the fields, the keys and the pop-up, on pages like those of today's sites and on
// hostile ones. The real program, both browsers.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { setTimeout } from 'node:timers/promises';
import { reactPages } from './react.mjs';
import { makeStage } from './stage.mjs';
import { UNGRANTED, tellOfToolbar } from './toolbar.mjs';

const PASSWORD = 'first Master 1!';
// Its place in the menu of new items.
const CARD = 2;
const SECRET = 's3cret-of-the-shop';
const USER = 'ana@shop.example';
const FILLED = { user: USER, pw: SECRET };

// Each page has its fields where the tests look for them.
const PLACE = { user: [60, 90], pw: [60, 160] };
const SIZE = { width: 300, height: 40 };
const styleOf = ([left, top]) => `position:fixed;left:${left}px;top:${top}px;width:${SIZE.width}px;height:${SIZE.height}px;box-sizing:border-box`;
const iconIn = ([left, top]) => [left + SIZE.width - 18, top + SIZE.height / 2];
// So that it can be found on the screen.
const FIELD_COLOR = [255, 0, 254];
const COLORED = `border:0;background:rgb(${FIELD_COLOR})`;
const USER_FIELD = `<input name=user autocomplete=username required style="${styleOf(PLACE.user)};${COLORED}">`;
const PW_FIELD = `<input name=pw type=password required style="${styleOf(PLACE.pw)}">`;
const newField = (name, top) => `<input name=${name} type=password autocomplete=new-password required style="${styleOf([60, top])}">`;
const FIELDS = `${USER_FIELD}${PW_FIELD}<button style="position:fixed;left:60px;top:230px">Log in</button>`;
const FORM = `<form method=post action=/done>${FIELDS}</form>`;

const reactStyle = ([left, top]) => ({ position: 'fixed', left, top, ...SIZE, boxSizing: 'border-box' });

// Forms in shadow trees post by script, as components do.
const component = (mode) => `<sign-in></sign-in><script>
  customElements.define('sign-in', class extends HTMLElement {
    connectedCallback() {
      const root = this.attachShadow({ mode: '${mode}' });
      root.innerHTML = ${JSON.stringify(FORM)};
      root.querySelector('form').onsubmit = (event) => {
        event.preventDefault();
        fetch('/done', { method: 'POST', body: new URLSearchParams(new FormData(event.target)) });
      };
    }
  });
</script>`;

const PAGES = {
  '/plain': FORM,
  // Without its name no script of the extension could work in a page that was there before.
  '/before': `${FORM}<iframe name=chrome hidden></iframe>`,
  ...reactPages({ user: reactStyle(PLACE.user), pw: reactStyle(PLACE.pw), button: { position: 'fixed', left: 60, top: 230 } }),
  '/open': component('open'),
  '/closed': component('closed'),
  // A form and a frame called like what holds the browser's functions.
  '/named': FORM.replace('<form', '<form id=browser'),
  '/frame': '<iframe name=browser src=/named style="position:fixed;left:0;top:0;width:600px;height:400px;border:0"></iframe>',
  '/modal': `<dialog style="position:fixed;inset:0;width:600px;height:400px;max-width:none;max-height:none;margin:0;border:0;padding:0">${FORM}</dialog>
    <iframe name=browser hidden></iframe>
    <script>setTimeout(() => document.querySelector('dialog').showModal(), 300)</script>`,
  '/steps': `<form method=post action=/second>${USER_FIELD}<button style="position:fixed;left:60px;top:230px">Next</button></form>`,
  '/second': `<form method=post action=/done>${PW_FIELD}<button style="position:fixed;left:60px;top:230px">Log in</button></form>`,
  '/signup': `<form method=post action=/done>${USER_FIELD}${newField('chosen', 160)}${newField('again', 300)}
    <button style="position:fixed;left:60px;top:230px">Create account</button></form>`,
  '/change': `<form method=post action=/done>${PW_FIELD}${newField('chosen', 300)}${newField('again', 360)}
    <button style="position:fixed;left:60px;top:230px">Change password</button></form>`,
  '/card': `<form><input name=number autocomplete=cc-number style="${styleOf(PLACE.user)};${COLORED}">
    <input name=code autocomplete=cc-csc style="${styleOf(PLACE.pw)}"></form>`,
  '/covered': `${FORM}<div style="position:fixed;inset:0;background:white">Win a prize!</div>`,
  '/ghost': `${FORM}<div style="position:fixed;inset:0;background:white;pointer-events:none;z-index:2147483647">Win a prize!</div>`,
  '/faint': `<div style="opacity:0.01">${FORM}</div>`,
  '/hostile': (port) => ['/covered', '/ghost', '/faint', `https://evil.example:${port}/plain`]
    .map((source, index) => `<iframe src="${source}" style="position:fixed;left:${400 * (index % 2)}px;top:${index < 2 ? 0 : 300}px;width:400px;height:300px;border:0"></iframe>`).join(''),
  '/scripted': `${FORM}<script>
    addEventListener('load', () => setTimeout(() => {
      for (const host of document.documentElement.children) host.dispatchEvent(new MouseEvent('click', { bubbles: true, clientX: ${iconIn(PLACE.pw)[0]}, clientY: ${iconIn(PLACE.pw)[1]} }));
      document.elementFromPoint(${iconIn(PLACE.pw)})?.click();
      document.title = 'tried';
    }, 1500));
  </script>`,
  '/done': 'done',
};

const limit = { timeout: Number(process.env.LIMIT ?? 30000) };
const QUICK = '^Quick access$';
const CRYSTALS = 'html > div[aria-hidden], dialog > div[aria-hidden]';
const stage = makeStage({ pages: PAGES, hosts: ['shop.example', 'evil.example'], secure: true, approved: false });

test('a safe with one login for the site, and a card', limit, async () => {
  await stage.user.createSafe('Personal', PASSWORD, 'the first one');
  await stage.user.addLogin({ title: 'Shop', userName: USER, password: SECRET, url: stage.at('/plain') });
  await stage.user.addItem(CARD, ['My card', '4111111111111111', 'Ana Lind', '09 / 2029', '123']);
});

stage.inEachBrowser((kind) => {
  const tellTheEnd = tellOfToolbar(stage, kind, { path: '/before', crystal: iconIn(PLACE.pw), masterPassword: PASSWORD, password: SECRET });
  let page;

  async function open(path) {
    page ??= await stage.browser.browser.newPage();
    await page.bringToFront();
    await page.goto(stage.at(path));
  }

  const isQuickOpen = () => stage.desktop.isVisible(QUICK);

  const quickHasKeys = () => stage.program.until(async () => (await stage.desktop.activeTitle()) === 'Quick access', 'quick access to have the keys');

  /** Clicks where the crystal of a field is, once there is one, until quick access opens. */
  async function clickIcon(place) {
    await stage.program.until(async () => {
      const drawn = await Promise.all(page.frames().map((frame) => frame.$(CRYSTALS).catch(() => null)));
      return drawn.some(Boolean);
    }, 'the crystals');
    await stage.program.until(async () => {
      await page.mouse.click(...iconIn(place));
      return stage.desktop.comes(QUICK);
    }, 'quick access');
    await quickHasKeys();
  }

  /** Presses the page's button until something is sent: it sends nothing before the fields are filled. */
  async function send() {
    let sent;
    stage.site.nextPost().then((post) => { sent = post; });
    await stage.program.until(async () => {
      await page.mouse.click(80, 240);
      await setTimeout(100);
      return sent !== undefined;
    }, 'the page to send');
    return sent;
  }

  for (const path of ['/plain', '/react', '/open', '/closed', '/frame', '/modal']) {
    test(`the crystal opens quick access, Enter fills: ${path}`, limit, async () => {
      await open(path);
      await clickIcon(PLACE.pw);
      await stage.desktop.press('Return');
      assert.deepEqual(await send(), { path: '/done', fields: FILLED });
      await stage.program.until(async () => !(await isQuickOpen()), 'quick access to close');
    });
  }

  test('a sign-in in two steps', limit, async () => {
    await open('/steps');
    await clickIcon(PLACE.user);
    await stage.desktop.press('Return');
    assert.deepEqual(await send(), { path: '/second', fields: { user: USER } });
    assert.deepEqual(await send(), { path: '/done', fields: { pw: SECRET } });
  });

  /** Presses the keys once the browser's window has the keyboard, which quick access gives back. */
  async function pressInPage(keys) {
    await stage.program.until(async () => !/Glaceron|Quick access/.test(await stage.desktop.activeTitle()), 'the browser to have the keys');
    await stage.desktop.press(keys);
  }

  test('the key fills at once where one login belongs to the page', limit, async () => {
    await open('/plain');
    await pressInPage('alt+shift+l');
    assert.deepEqual(await send(), { path: '/done', fields: FILLED });
    assert.equal(await isQuickOpen(), false);
  });

  /** Where the coloured field is on the screen, once the browser has drawn it. */
  async function fieldOnScreen() {
    let place;
    await stage.program.until(async () => Number.isFinite((place = await stage.desktop.find(FIELD_COLOR)).left), 'the field');
    return place;
  }

  /** Chooses from the extension's part of a field's menu, by the place of the entry. */
  async function choose(entry) {
    const { left, top } = await fieldOnScreen();
    await stage.desktop.click(left + 10, top + 10, 3);
    await setTimeout(500);
    if (process.env.PICTURES) await stage.desktop.picture(`${process.env.PICTURES}/menu-${kind}.png`);
    await stage.desktop.press({ chromium: 'g', firefox: 'Up' }[kind], 'Right', ...Array(entry).fill('Down'), 'Return');
  }

  test('the menu of a field fills its login', limit, async () => {
    await open('/plain');
    await choose(0);
    assert.deepEqual(await send(), { path: '/done', fields: FILLED });
  });

  test('the menu of a field fills a card, chosen in quick access', limit, async () => {
    await open('/card');
    await choose(1);
    await quickHasKeys();
    await stage.desktop.type('my c');
    await stage.desktop.press('Return');
    await page.waitForFunction(() => document.querySelector('[name=code]').value === '123');
    assert.equal(await page.$eval('[name=number]', ({ value }) => value), '4111111111111111');
  });

  test('where a page is shown larger, quick access opens at the field all the same', limit, async () => {
    await open('/plain');
    await pressInPage('ctrl+0');
    await stage.desktop.press('ctrl+plus', 'ctrl+plus', 'ctrl+plus');
    await page.waitForFunction(() => devicePixelRatio > 1.3);
    const field = await fieldOnScreen();
    await clickIcon(PLACE.user);
    const { left, top } = await stage.desktop.placeOf(await stage.user.quickAccess());
    assert.ok(Math.abs(left - field.left) <= 4 && top > field.bottom && top < field.bottom + 12, JSON.stringify([field, left, top]));
    await stage.desktop.press('Escape');
    await pressInPage('ctrl+0');
  });

  for (const [path, other] of [['/signup', 'user'], ['/change', 'pw']]) {
    test(`a generated password goes into both new fields and no other: ${path}`, limit, async () => {
      const values = () => page.$$eval('input', (inputs) => Object.fromEntries(inputs.map(({ name, value }) => [name, value])));
      await open(path);
      await pressInPage('alt+shift+g');
      await quickHasKeys();
      await stage.desktop.press('Return');
      await stage.program.until(async () => (await values()).again !== '', 'the password');
      const { again } = await values();
      assert.equal(again.length, 8);
      assert.deepEqual(await values(), { [other]: '', chosen: again, again });
      await stage.program.until(async () => !(await isQuickOpen()), 'quick access to close');
    });
  }

  test('on a locked safe quick access asks for the password and goes on', limit, async () => {
    await stage.user.lock();
    await open('/plain');
    await clickIcon(PLACE.pw);
    await stage.desktop.type(PASSWORD);
    await stage.desktop.press('Return');
    await stage.program.until(async () => !/^Glaceron/.test(await stage.desktop.activeTitle()) && (await isQuickOpen()), 'the list');
    await stage.program.until(async () => {
      await stage.desktop.press('Return');
      await setTimeout(300);
      return !(await isQuickOpen());
    }, 'quick access to fill');
    assert.deepEqual(await send(), { path: '/done', fields: FILLED });
  });

  test('nothing opens where the user does not see the field, or it is another site\'s', limit, async () => {
    await open('/hostile');
    await setTimeout(1500);
    for (const [left, top] of [[0, 0], [400, 0], [0, 300], [400, 300]]) {
      const [x, y] = iconIn(PLACE.pw);
      await page.mouse.click(left + x, top + y);
      await setTimeout(300);
      assert.equal(await isQuickOpen(), false, `${left} ${top}`);
    }
  });

  test('nothing opens for the clicks of a page\'s script', limit, async () => {
    await open('/scripted');
    await page.waitForFunction(() => document.title === 'tried');
    await setTimeout(300);
    assert.equal(await isQuickOpen(), false);
  });

  tellTheEnd();
}, { connect: false, visible: true, preferences: UNGRANTED });
