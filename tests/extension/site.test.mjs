import assert from 'node:assert/strict';
import { test } from 'node:test';
import { describeFrame } from '../../extension/src/frame.js';
import { belongsTo, iconIn, losesEncryption, sameDocument, sameSite } from '../../extension/src/site.js';
import { shippedList, suffixList } from '../../scripts/refresh-suffixes.mjs';

const PAIRS = [
  ['https://www.example.com/a', 'http://login.example.com:8080/b', true],
  ['https://example.co.uk', 'https://other.co.uk', false],
  ['https://alice.github.io', 'https://bob.github.io', false],
  ['https://github.io', 'https://bob.github.io', false],
  ['https://alice.replit.app', 'https://mallory.replit.app', false],
  ['https://me.hf.space', 'https://evil.hf.space', false],
  ['https://me.deno.net', 'https://www.me.deno.net', true],
  ['https://example.com', 'https://notexample.com', false],
  ['https://example.com', 'https://example.com.evil.net', false],
  ['https://xn--85x722f.xn--55qx5d.cn', 'https://食狮.公司.cn/', true],
  ['http://127.0.0.1:8000/a', 'http://127.0.0.1:8000/b', true],
  ['http://127.0.0.1:8000', 'http://127.0.0.1:9000', false],
  ['http://127.0.0.1', 'http://10.20.0.1', false],
  ['http://0x7f.1/', 'http://127.0.0.1/', true],
  ['http://[::1]:80/', 'http://[::1]/', true],
  ['http://[::1]/', 'http://[::2]/', false],
  ['http://localhost:3000', 'http://localhost:3000/x', true],
  ['http://localhost:3000', 'http://localhost:3001', false],
  ['http://localhost', 'https://localhost', false],
  ['http://app.localhost:1', 'http://app.localhost:2', false],
  ['http://intranet', 'http://intranet:8080', false],
  ['null', 'null', false],
  ['about:blank', 'about:blank', false],
  ['file:///etc', 'file:///etc', false],
  ['', undefined, false],
];

for (const [one, other, expected] of PAIRS) {
  test(`${one} and ${other} are ${expected ? 'one site' : 'two sites'}`, () => {
    assert.equal(sameSite(one, other), expected);
    assert.equal(sameSite(other, one), expected);
  });
}

test('an encrypted connection is given up only from https to something else', () => {
  assert.deepEqual(
    [['https://a.de', 'http://a.de'], ['https://a.de', 'https://b.de'], ['http://a.de', 'https://a.de'], ['http://a.de', 'http://a.de']]
      .map(([from, to]) => losesEncryption(from, to)),
    [true, false, false, false],
  );
});

test('the same document differs at most in what follows the #', () => {
  assert.equal(sameDocument('https://a.de', 'https://a.de/#top'), true);
  assert.equal(sameDocument('https://a.de/?a', 'https://a.de/?b'), false);
  assert.equal(sameDocument('chrome://newtab/', 'chrome://newtab/'), false);
});

test('the program tells sites apart by the same list', () => {
  assert.ok(shippedList() === suffixList(), 'run scripts/refresh-suffixes.mjs');
});

const STANDS = [
  [['https://shop.example'], false, ['https://shop.example']],
  [[], true, []],
  [undefined, true, []],
  [undefined, false, ['null']],
];

test('a frame whose surroundings the browser does not tell is one of no site', () => {
  for (const [ancestorOrigins, isTop, expected] of STANDS) {
    const top = {};
    const self = isTop ? top : {};
    const { around } = new Function('location', 'self', 'top', `return (${describeFrame})()`)({ ancestorOrigins }, self, top);
    assert.deepEqual(around, expected);
    assert.equal(belongsTo('https://shop.example/', around), !around.includes('null'));
  }
});

test('an icon is fetched from an address, not from a picture', () => {
  const icon = 'https://shop.example/i.png';
  assert.equal(iconIn('data:image/png;base64,AA==', icon), icon);
  assert.equal(iconIn('https://shop.example/i.svg?v=1', icon), icon);
  assert.equal(iconIn(undefined, `${icon}?${'x'.repeat(2048)}`), undefined);
});
