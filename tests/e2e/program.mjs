import { EventEmitter, once } from 'node:events';
import { WebSocketServer } from 'ws';

const PORT = 7899;

/** Stands in for the program on its port. Fails to start when the port is taken. */
export async function startProgram() {
  const arrivals = new EventEmitter();
  const connections = [];
  let frames = [];
  let server;
  let socket;

  async function listen() {
    server = new WebSocketServer({ host: '127.0.0.1', port: PORT });
    server.on('connection', accept);
    await once(server, 'listening').catch((error) => {
      throw new Error(`Port ${PORT} is taken; close Glaceron Password Manager and run the test again (${error.code}).`);
    });
  }

  function accept(connection, request) {
    socket = connection;
    connections.push({ origin: request.headers.origin });
    connection.on('message', (data) => {
      const frame = JSON.parse(data);
      if (frame.action === 'hello') send('hello', undefined, { callerId: `{${connections.length}}` });
      frames.push(frame);
      arrivals.emit('frame');
    });
  }

  function send(action, payload, more) {
    socket.send(JSON.stringify({ action, payload, ...more }));
  }

  /** The next frame with the action; those before it are dropped. */
  async function next(action) {
    for (;;) {
      const index = frames.findIndex((frame) => frame.action === action);
      if (index >= 0) {
        const frame = frames[index];
        frames = frames.slice(index + 1);
        return frame;
      }
      await once(arrivals, 'frame');
    }
  }

  async function stop() {
    for (const client of server.clients) client.terminate();
    await new Promise((resolve) => server.close(resolve));
  }

  await listen();
  return { connections, listen, next, send, stop };
}
