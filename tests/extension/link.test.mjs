import assert from 'node:assert/strict';
import { test } from 'node:test';
import { createLink } from '../../extension/src/link.js';
import { parseFrame } from '../../extension/src/frames.js';
import { createClock } from './clock.mjs';

function setUp() {
  const clock = createClock();
  const log = { sockets: [], states: [], frames: [], touched: 0 };
  class FakeSocket {
    sent = [];
    constructor(address) {
      this.address = address;
      log.sockets.push(this);
    }
    send(text) { this.sent.push(JSON.parse(text)); }
    close() { this.onclose(); }
    receive(frame) { this.onmessage({ data: JSON.stringify(frame) }); }
    actions() { return this.sent.map(({ action }) => action); }
  }
  const link = createLink({
    WebSocket: FakeSocket,
    timers: clock.timers,
    identity: { version: '1.1.32', bundleId: 'glaceron.chrome' },
    touchBrowser: () => { log.touched += 1; },
    parseFrame,
    onFrame: (frame) => log.frames.push(frame),
    onState: (state) => log.states.push(state),
  });
  link.connect();
  return { clock, link, log, newest: () => log.sockets.at(-1) };
}

const HELLO = { action: 'hello', callerId: '{1}' };
const REQUEST = { action: 'getDocumentData', payload: { reason: 'placepwd', openmode: 'currentNoReload' } };

test('says hello with its version and name, and is connected when that is answered', () => {
  const { link, log, newest } = setUp();
  assert.equal(newest().address, 'ws://127.0.0.1:7899');
  newest().onopen();
  assert.deepEqual(newest().sent, [{ action: 'hello', version: '1.1.32', bundleId: 'glaceron.chrome' }]);
  newest().receive(REQUEST);
  assert.equal(link.send('showWindow', {}), false);
  assert.deepEqual([log.frames, log.states], [[], []]);

  newest().receive(HELLO);
  newest().receive(REQUEST);
  assert.equal(link.send('showWindow', { url: 'u' }), true);
  assert.deepEqual(newest().sent.at(-1), { action: 'showWindow', version: '1.1.32', bundleId: 'glaceron.chrome', payload: { url: 'u' } });
  assert.deepEqual([log.frames, log.states], [[REQUEST], ['connected']]);

  const before = newest().sent.length;
  assert.equal(link.send('loginSubmitted', { value: 'ж'.repeat(4 * 1024 * 1024) }), false); // the program would hang up
  assert.equal(newest().sent.length, before);
});

test('stays alive by one message and one API call every 20 s', async () => {
  const { clock, log, newest } = setUp();
  newest().onopen();
  newest().receive(HELLO);
  await clock.advance(3600000);
  assert.deepEqual(newest().actions(), ['hello', ...Array(180).fill('keepAlive')]);
  assert.equal(log.touched, 180);
});

test('comes back with growing pauses, which start small again after a hello', async () => {
  const { clock, log, newest } = setUp();
  const pauses = [500, 1000, 2000, 4000, 8000, 16000, 30000, 30000];
  for (const pause of pauses) {
    newest().onclose();
    const before = log.sockets.length;
    await clock.advance(pause - 1);
    assert.equal(log.sockets.length, before, `too early, pause ${pause}`);
    await clock.advance(1);
    assert.equal(log.sockets.length, before + 1, `too late, pause ${pause}`);
  }
  newest().onopen();
  newest().receive(HELLO);
  newest().close();
  const before = log.sockets.length;
  await clock.advance(500);
  assert.equal(log.sockets.length, before + 1);
  assert.deepEqual(log.states, ['offline', 'connected', 'offline']);
  assert.deepEqual(log.sockets[before - 1].actions(), ['hello'], 'a closed socket is written to');
});

test('an alarm connects at once during a pause, and never a second time', async () => {
  const { clock, link, log, newest } = setUp();
  newest().onclose();
  link.connect();
  link.connect();
  await clock.advance(5000);
  assert.equal(log.sockets.length, 2);
});

test('waits for its turn while another browser is served, and takes it', async () => {
  const { clock, link, log, newest } = setUp();
  newest().onopen();
  await clock.advance(1999);
  assert.deepEqual(log.states, []);
  await clock.advance(1);
  assert.deepEqual(log.states, ['busy']);
  await clock.advance(38000);
  assert.equal(link.send('showWindow', {}), false);
  assert.deepEqual(new Set(newest().actions()), new Set(['hello']));
  assert.equal(log.touched, 2);
  newest().receive(HELLO);
  const helloes = newest().sent.length;
  await clock.advance(20000);
  assert.deepEqual(newest().actions().slice(helloes), ['keepAlive']);
  assert.deepEqual([log.states, log.sockets.length], [['busy', 'connected'], 1]);
});

test('without the user\'s approval nothing reaches it but that it lacks', async () => {
  const { clock, log, newest } = setUp();
  newest().onopen();
  newest().receive({ action: 'state', payload: { refused: 'approval' } });
  newest().receive(REQUEST);
  await clock.advance(40000);
  assert.deepEqual([log.states, log.frames, newest().actions()], [['approval'], [], ['hello', 'hello', 'hello']]);
  newest().receive(HELLO);
  assert.deepEqual(log.states, ['approval', 'connected']);
});

test('gives up a connection that never opens', async () => {
  const { clock, log } = setUp();
  await clock.advance(10500);
  assert.equal(log.sockets.length, 2);
  assert.deepEqual(log.states, ['offline']);
});
