const ADDRESS = 'ws://127.0.0.1:7899';
const PAUSES = [500, 1000, 2000, 4000, 8000, 16000, 30000];
// A background worker is ended after 30 s without a message or an API call.
const BEAT = 20000;
const HELLO_WAIT = 2000;
const OPEN_LIMIT = 10000;
// The program ends a connection that sends more than 8 MiB at once; a page's description alone has 7.
const MOST_BYTES = 7.5 * 1024 * 1024;

/**
 * The one connection to the program. States reported to onState: "connected", "offline" (the program is
 * not running), "busy" (it serves another browser), "approval" (it waits for its user's word about this one) and
 * "version" (it finds this extension too old). Frames reach onFrame only once hello was answered.
 *
 * identity: what every outgoing frame carries; touchBrowser: makes one extension API call;
 * parseFrame: the checked frame of a text, or undefined.
 */
export function createLink({ WebSocket, timers, identity, touchBrowser, parseFrame, onFrame, onState }) {
  let socket;
  let state;
  let failures = 0;
  let retry;

  function setState(next) {
    if (next === state) return;
    state = next;
    onState(state);
  }

  function write(action, payload) {
    const text = JSON.stringify({ action, ...identity, payload });
    if (new TextEncoder().encode(text).length > MOST_BYTES) return false;
    socket.send(text);
    return true;
  }

  /** Opens the connection unless there is one; harmless at any time. */
  function connect() {
    if (socket) return;
    timers.clearTimeout(retry);
    const mine = new WebSocket(ADDRESS);
    socket = mine;
    const openLimit = timers.setTimeout(() => mine.close(), OPEN_LIMIT);
    let greeting;
    let beat;

    mine.onopen = () => {
      timers.clearTimeout(openLimit);
      write('hello');
      greeting = timers.setTimeout(() => setState('busy'), HELLO_WAIT);
      // While it waits for its turn it says hello again: a message all the same.
      beat = timers.setInterval(() => {
        write(state === 'connected' ? 'keepAlive' : 'hello');
        touchBrowser();
      }, BEAT);
    };

    mine.onmessage = ({ data }) => {
      const frame = parseFrame(data);
      if (!frame) return;
      if (frame.action === 'hello') {
        timers.clearTimeout(greeting);
        failures = 0;
        setState('connected');
        return;
      }
      if (state === 'connected') return onFrame(frame);
      if (frame.action === 'state' && frame.payload.refused) {
        timers.clearTimeout(greeting);
        setState(frame.payload.refused);
      }
    };

    mine.onclose = () => {
      timers.clearTimeout(openLimit);
      timers.clearTimeout(greeting);
      timers.clearInterval(beat);
      socket = undefined;
      retry = timers.setTimeout(connect, PAUSES[Math.min(failures, PAUSES.length - 1)]);
      failures += 1;
      setState('offline');
    };
  }

  /** Sends one frame; false when the program is not listening to this browser, or it is too long. */
  function send(action, payload) {
    return state === 'connected' && write(action, payload);
  }

  return { connect, send };
}
