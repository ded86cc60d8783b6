import { createReadStream } from 'node:fs';
import { stat } from 'node:fs/promises';
import { createServer } from 'node:http';
import path from 'node:path';

const TYPES = {
  '.html': 'text/html', '.js': 'text/javascript', '.jpg': 'image/jpeg', '.png': 'image/png',
  '.css': 'text/css', '.svg': 'image/svg+xml', '.mp3': 'audio/mpeg', '.swf': 'application/x-shockwave-flash',
  '.wasm': 'application/wasm',
};

/**
 * Serves a folder on 127.0.0.1 and notes every request.
 * @returns {{address: string, requests: {path: string, status: number}[], close: () => Promise<void>}}
 */
export async function serve(folder) {
  const requests = [];
  const server = createServer(async (request, response) => {
    const name = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
    const file = path.join(folder, path.normalize(name === '/' ? '/index.html' : name));
    const found = await stat(file).then((entry) => entry.isFile(), () => false);
    const status = found ? 200 : 404;
    requests.push({ path: name, status });
    response.writeHead(status, { 'Content-Type': TYPES[path.extname(file)] ?? 'application/octet-stream' });
    if (found) createReadStream(file).pipe(response);
    else response.end();
  });
  await new Promise((resolve) => { server.listen(0, '127.0.0.1', resolve); });
  return {
    address: `http://127.0.0.1:${server.address().port}/`,
    requests,
    close: () => new Promise((resolve) => {
      server.close(resolve);
      server.closeAllConnections();
    }),
  };
}
