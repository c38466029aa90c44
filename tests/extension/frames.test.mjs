import assert from 'node:assert/strict';
import { test } from 'node:test';
import { parseFrame } from '../../extension/src/frames.js';

const element = { opid: '1:0:x:1', gpmid: 'g', value: '' };
const request = { reason: 'login', itemid: 'i', timestamp: '17', url: 'https://a.de', openmode: 'current' };
const frame = (action, payload, more) => JSON.stringify({ action, payload, ...more });

const ACCEPTED = [
  frame('hello', undefined, { callerId: '{1}' }),
  frame('getDocumentData', request),
  frame('getDocumentData', { reason: 'placepwd', openmode: 'currentNoReload', request_id: 5 }),
  frame('findLoginPage', { ...request, openmode: 'getLoginPageData' }),
  frame('fillForm', { formUid: 'none', elements: [element], reason: 'login', submit: true }),
  frame('state', { locked: false, safe: 'Personal', url: 'https://a.de', logins: 2, request_id: 'r' }),
  frame('state', { refused: 'approval' }),
];

const IGNORED = [
  undefined, new ArrayBuffer(2), '', '{', 'null', '[]', '5', '"hello"', '{}',
  frame('hello'), frame('hello', undefined, { callerId: 5 }), frame('constructor', {}), frame(['fillForm'], {}), frame('other', {}),
  frame('getDocumentData'), frame('getDocumentData', [request]),
  ...[{ reason: 5 }, { reason: undefined }, { itemid: 5 }, { timestamp: 17 }, { timestamp: '1x' }, { url: {} }, { openmode: 'popup' }]
    .map((wrong) => frame('getDocumentData', { ...request, ...wrong })),
  frame('findLoginPage', { ...request, url: undefined }),
  ...[{ refused: 'no' }, { locked: 1 }, { safe: {} }, { logins: -1 }, { logins: '2' }].map((wrong) => frame('state', wrong)),
  ...[{ elements: [] }, { elements: element }, { elements: [null] }, { elements: [element, { ...element, value: 5 }] },
    { elements: [{ ...element, opid: undefined }] }, { formUid: 7 }, { submit: 'yes' }]
    .map((wrong) => frame('fillForm', { formUid: 'none', elements: [element], ...wrong })),
];

test('frames of the agreed shape are read', () => {
  for (const text of ACCEPTED) assert.equal(parseFrame(text)?.action, JSON.parse(text).action, text);
});

test('any other frame is ignored', () => {
  for (const text of IGNORED) assert.equal(parseFrame(text), undefined, String(text));
});
