import { startExtension } from './extension.js';

startExtension({
  api: globalThis.browser ?? globalThis.chrome,
  WebSocket: globalThis.WebSocket,
  timers: {
    setTimeout: (work, milliseconds) => setTimeout(work, milliseconds),
    clearTimeout: (timer) => clearTimeout(timer),
    setInterval: (work, milliseconds) => setInterval(work, milliseconds),
    clearInterval: (timer) => clearInterval(timer),
  },
  now: () => Date.now(),
});
