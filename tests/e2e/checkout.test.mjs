// A card and a person of the safe, filled into the pages of a shop from the program's window.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { makeStage } from './stage.mjs';

const NUMBER = '4111111111111111';
// Their places in the menu of new items.
const CARD = 2;
const IDENTITY = 4;
const numbers = (from, to) => Array.from({ length: to - from + 1 }, (_, index) => `<option>${from + index}`).join('');

const PAGES = {
  '/joined': `<h1>Payment</h1><form>
    <label>Name on card<input name=holder autocomplete=cc-name></label>
    <label>Card number<input name=number inputmode=numeric placeholder="0000 0000 0000 0000"></label>
    <label>Expires<input name=expiry placeholder="MM / YY"></label>
    <label>Security code<input name=code type=password maxlength=4></label>
    <label>Gift card number<input name=gift></label><button type=button>Pay</button></form>`,
  '/split': `<h1>Payment</h1><form><p>Card number</p>
    <input name=a maxlength=4><input name=b maxlength=4><input name=c maxlength=4><input name=d maxlength=4>
    <p>Expiry date</p><select name=month><option value="">Month</option>${['January', 'February', 'March', 'April', 'May', 'June', 'July',
      'August', 'September', 'October', 'November', 'December'].map((name, index) => `<option value=${index}>${name}`).join('')}</select>
    <select name=year><option value="">Year</option>${numbers(26, 35)}</select>
    <label>CVC<input name=code maxlength=3></label></form>`,
  '/address': `<h1>Shipping address</h1><form>
    <label>Title<select name=title><option value="">-<option value=1>Mr<option value=2>Ms</select></label>
    <label>First name<input name=first></label><label>Last name<input name=last></label>
    <label>Street<input name=street></label><label>House number<input name=house></label>
    <label>ZIP<input name=zip maxlength=5></label><label>City<input name=city value=Bonn></label>
    <label>Country<select name=country><option value="">-<option value=FRA>Frankreich<option value=DEU>Deutschland</select></label>
    <p>Date of birth (DD/MM/YYYY)</p><input name=day maxlength=2>/<input name=bm maxlength=2>/<input name=by maxlength=4>
    <label>Email<input name=email type=email></label><input name=website style="position:absolute;left:-9999px" tabindex=-1>
    </form><form><label>Search<input name=q></label></form>`,
};

const limit = { timeout: 90000 };
const stage = makeStage({ pages: PAGES, hosts: ['shop.example'], secure: true });
const shot = (name) => process.env.PICTURES && stage.desktop.picture(`${process.env.PICTURES}/${name}.png`);

/** Uses the item with the title on the page; what the page's named fields hold once its first is filled. */
async function fill(path, title, last) {
  const page = await stage.browser.browser.newPage();
  await page.goto(stage.at(path));
  await page.bringToFront();
  await stage.user.logIn(title);
  await page.waitForFunction((name) => document.getElementsByName(name)[0].value !== '', {}, last);
  const values = await page.$$eval('[name]', (fields) => Object.fromEntries(fields.map(({ name, value, selectedOptions }) => [name, selectedOptions ? selectedOptions[0].text : value])));
  await page.close();
  return values;
}

test('a card and a person are added', limit, async () => {
  await stage.user.createSafe('Personal', 'first Master 1!', 'the first one');
  await stage.user.addItem(CARD, ['My card', NUMBER, 'Ana Lind', '09 / 2029', '123']);
  await stage.user.addItem(IDENTITY, ['Myself', 'Ana', 'Lind', '1990-02-01', '', 'ana@example.org', '', '', 'Lange Gasse 12 b', 'Kassel', '34117', 'Germany']);
  await shot('items');
});

stage.inEachBrowser(() => {
  test('a card in one field each, without the gift card', limit, async () => {
    assert.deepEqual(await fill('/joined', 'My card', 'code'), {
      holder: 'Ana Lind', number: '4111 1111 1111 1111', expiry: '09/29', code: '123', gift: '',
    });
  });

  test('a card in four fields and two lists', limit, async () => {
    assert.deepEqual(await fill('/split', 'My card', 'code'), {
      a: '4111', b: '1111', c: '1111', d: '1111', month: 'September', year: '29', code: '123',
    });
  });

  test('a person, but not what is typed, hidden or no part of the address', limit, async () => {
    assert.deepEqual(await fill('/address', 'Myself', 'email'), {
      title: '-', first: 'Ana', last: 'Lind', street: 'Lange Gasse', house: '12 b', zip: '34117', city: 'Bonn', country: 'Deutschland',
      day: '01', bm: '02', by: '1990', email: 'ana@example.org', website: '', q: '',
    });
  });
});
