import { EventEmitter, once } from 'node:events';
import { WebSocketServer } from 'ws';

const PORT = 7899;

/** Stands in for the program on its port, for several browsers at once. Fails to start when the port is taken. */
export async function startProgram() {
  const arrivals = new EventEmitter();
  arrivals.setMaxListeners(0);
  const lines = new Map(); // bundle id → {connections, frames, socket}
  let server;

  function lineOf(bundleId) {
    if (!lines.has(bundleId)) lines.set(bundleId, { connections: [], frames: [] });
    return lines.get(bundleId);
  }

  async function listen() {
    server = new WebSocketServer({ host: '127.0.0.1', port: PORT });
    server.on('connection', accept);
    await once(server, 'listening').catch((error) => {
      throw new Error(`Port ${PORT} is taken; close Glaceron Password Manager and run the test again (${error.code}).`);
    });
  }

  function accept(socket, request) {
    socket.on('message', (data) => {
      const frame = JSON.parse(data);
      const line = lineOf(frame.bundleId);
      if (frame.action === 'hello') {
        line.connections.push({ origin: request.headers.origin });
        line.socket = socket;
        socket.send(JSON.stringify({ action: 'hello', callerId: `{${line.connections.length}}` }));
      }
      line.frames.push(frame);
      arrivals.emit('frame');
    });
  }

  /** The link to one browser. */
  function linkTo(bundleId) {
    const line = lineOf(bundleId);
    return {
      connections: line.connections,
      send: (action, payload) => line.socket.send(JSON.stringify({ action, payload })),
      /** The next frame with the action; those before it are dropped. */
      async next(action) {
        for (;;) {
          const index = line.frames.findIndex((frame) => frame.action === action);
          if (index >= 0) return line.frames.splice(0, index + 1).at(-1);
          await once(arrivals, 'frame');
        }
      },
    };
  }

  async function stop() {
    for (const client of server.clients) client.terminate();
    await new Promise((resolve) => server.close(resolve));
  }

  await listen();
  return { listen, linkTo, stop };
}
