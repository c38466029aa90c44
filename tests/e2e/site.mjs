import { execFileSync } from 'node:child_process';
import { EventEmitter, once } from 'node:events';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { createServer } from 'node:http';
import { createServer as createSecureServer } from 'node:https';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

const KEY_KIND = ['-newkey', 'ec', '-pkeyopt', 'ec_paramgen_curve:prime256v1', '-nodes', '-days', '2', '-subj', '/CN=site'];

// A certificate that nobody trusts but the browsers of the tests.
function makeCertificate() {
  const folder = mkdtempSync(join(tmpdir(), 'glaceron-site-'));
  const [key, cert] = ['key', 'cert'].map((name) => join(folder, name));
  execFileSync('openssl', ['req', '-x509', ...KEY_KIND, '-keyout', key, '-out', cert], { stdio: 'ignore' });
  const certificate = { key: readFileSync(key), cert: readFileSync(cert) };
  rmSync(folder, { recursive: true });
  return certificate;
}

/** Serves pages (path → text, or a function of the server's port), encrypted or not, and keeps what is posted to it. */
export async function startSite(pages, { secure = false } = {}) {
  const arrivals = new EventEmitter();
  const posts = [];

  async function answer(request, response) {
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
  }

  const server = secure ? createSecureServer(makeCertificate(), answer) : createServer(answer);
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
