// Serves a folder on this machine alone: serve.mjs FOLDER [PORT].
import { createReadStream, statSync } from 'node:fs';
import { createServer } from 'node:http';
import { extname, join, resolve, sep } from 'node:path';
import { pathToFileURL } from 'node:url';

const types = {
  '.html': 'text/html; charset=utf-8',
  '.js': 'text/javascript; charset=utf-8',
  '.css': 'text/css; charset=utf-8',
  '.svg': 'image/svg+xml',
  '.png': 'image/png',
  '.woff2': 'font/woff2',
  '.webmanifest': 'application/manifest+json',
};

/** The file that a request asks for; undefined where there is none in the folder. */
function fileOf(folder, request) {
  try {
    const path = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
    const file = join(folder, path.endsWith('/') ? `${path}index.html` : path);
    return file.startsWith(folder + sep) && statSync(file).isFile() ? file : undefined;
  } catch {
    return undefined;
  }
}

/** The server and its address; port 0 takes any that is free. */
export async function serve(target, port = 0) {
  const folder = resolve(target);
  const server = createServer((request, response) => {
    const file = fileOf(folder, request);
    if (!file) return response.writeHead(404).end();
    const type = types[extname(file)] ?? 'application/octet-stream';
    response.writeHead(200, { 'content-type': type });
    return createReadStream(file).pipe(response);
  });
  await new Promise((done, refuse) => {
    server.once('error', refuse).listen(port, '127.0.0.1', done);
  });
  return { url: `http://127.0.0.1:${server.address().port}/`, server };
}

if (import.meta.url === pathToFileURL(process.argv[1]).href) {
  const [folder, port = '8080'] = process.argv.slice(2);
  try {
    const { url } = await serve(folder, Number(port));
    console.log(`calvex: the page is at ${url} until Ctrl+C`);
  } catch (failure) {
    console.error(
      failure.code === 'EADDRINUSE'
        ? `calvex: port ${port} is taken; choose another: ./calvex page --serve ${Number(port) + 1}`
        : `calvex: ${failure.message}`,
    );
    process.exitCode = 1;
  }
}
