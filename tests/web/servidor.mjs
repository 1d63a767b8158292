// Serves a folder on this machine, as a plain web server does.
import { createReadStream } from 'node:fs';
import { stat } from 'node:fs/promises';
import { createServer } from 'node:http';
import { extname, join, normalize } from 'node:path';

const Tipos = { '.html': 'text/html; charset=utf-8', '.css': 'text/css', '.js': 'text/javascript',
  '.mjs': 'text/javascript', '.wasm': 'application/wasm', '.svg': 'image/svg+xml',
  '.webmanifest': 'application/manifest+json', '.mp3': 'audio/mpeg', '.wav': 'audio/wav' };

async function responde(carpeta, peticion, respuesta) {
  const { pathname } = new URL(peticion.url, 'http://x');
  const ruta = normalize(decodeURIComponent(pathname));
  const archivo = join(carpeta, ruta.endsWith('/') ? `${ruta}index.html` : ruta);
  try {
    if (!(await stat(archivo)).isFile()) throw new Error('no file');
    respuesta.writeHead(200, { 'Content-Type': Tipos[extname(archivo)] ?? 'application/octet-stream',
      'Cache-Control': 'no-cache' });
    createReadStream(archivo).pipe(respuesta);
  } catch {
    respuesta.writeHead(404).end();
  }
}

// Starts a server; it has a port of its own. `cierra` ends it and all its connections.
export async function sirve(carpeta) {
  const servidor = createServer((peticion, respuesta) => responde(carpeta, peticion, respuesta));
  await new Promise((cumple) => servidor.listen(0, '127.0.0.1', cumple));
  return {
    url: `http://127.0.0.1:${servidor.address().port}/`,
    cierra: () => new Promise((cumple) => {
      servidor.close(cumple);
      servidor.closeAllConnections();
    }),
  };
}
