import { EventEmitter, once } from 'node:events';
import { createServer } from 'node:http';

/** Serves pages (path → text, or a function of the server's port) and keeps what is posted to it. */
export async function startSite(pages) {
  const arrivals = new EventEmitter();
  const posts = [];

  const server = createServer(async (request, response) => {
    const { pathname } = new URL(request.url, 'http://site');
    if (request.method === 'POST') {
      let body = '';
      for await (const part of request) body += part;
      posts.push({ path: pathname, fields: Object.fromEntries(new URLSearchParams(body)) });
      arrivals.emit('post');
    }
    const page = pages[pathname];
    const text = typeof page === 'function' ? page(server.address().port) : page;
    const type = pathname.endsWith('.js') ? 'text/javascript' : 'text/html';
    response.writeHead(text === undefined ? 404 : 200, { 'Content-Type': `${type}; charset=utf-8` }).end(text);
  });
  server.listen(0);
  await once(server, 'listening');

  return {
    port: server.address().port,
    /** The next thing posted: {path, fields}. */
    async nextPost() {
      while (posts.length === 0) await once(arrivals, 'post');
      return posts.shift();
    },
    close() {
      server.closeAllConnections();
      server.close();
    },
  };
}
