import assert from 'node:assert/strict';
import { test } from 'node:test';
import { createDocuments } from '../../extension/src/documents.js';

const LIMIT = 8 * 1024 * 1024; // the program's, for one message
const origin = 'https://shop.example';

const runtime = { onMessage: { addListener() {}, removeListener() {} } };

/** How a page of one document with these fields is described. */
async function describe(elements) {
  const report = { title: '', url: origin, language: '', forms: [{ formUid: 'f', fields: elements }], elements: [], origin, token: 't' };
  const executeScript = async ({ args }) => [{ frameId: 0, documentId: 'd', result: args ? report : { origin, around: [] } }];
  const { docinfo } = await createDocuments({ api: { scripting: { executeScript }, runtime }, timers: globalThis }).describe(1);
  assert.ok(Buffer.byteLength(JSON.stringify(docinfo)) < LIMIT);
  return docinfo.forms.flatMap(({ fields }) => fields);
}

test('long lists find room in a description together', async () => {
  const text = '語'.repeat(60);
  const field = { opid: '1', type: 'select-one', options: Array(300).fill({ text, value: text }) };
  const counts = (await describe(Array(500).fill(field))).map(({ options }) => options.length);
  assert.deepEqual(counts, [...Array(16).fill(300), ...Array(484).fill(0)]);
});

test('a description that the program would not admit goes without its fields', async () => {
  const field = (length) => ({ opid: '1', type: 'text', label: '語'.repeat(length) });
  assert.equal((await describe(Array(500).fill(field(4000)))).length, 500);
  assert.deepEqual(await describe(Array(500).fill(field(6000))), []);
});

test('of a page with thousands of frames some are looked at, the top one among them', async () => {
  const all = Array.from({ length: 5000 }, (_, index) => ({ frameId: 5000 - index, result: { origin, around: [origin] } }));
  const executeScript = async ({ target }) => (target.allFrames ? all : [{ frameId: 0, result: { origin, around: [] } }]);
  const frames = await createDocuments({ api: { scripting: { executeScript }, runtime }, timers: globalThis }).list(1);
  assert.deepEqual([frames.length, frames[0].frameId, frames[99].frameId], [100, 0, 99]);
});
