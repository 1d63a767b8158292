// Keeps the whole page for the times without a network. What belongs to it, and its version, are
// computed when the site is built (version.js).
/* global self, VERSION, ARCHIVOS */
self.importScripts('version.js');

const Nombre = `tasca ${VERSION}`;

self.addEventListener('install', (suceso) => {
  suceso.waitUntil(caches.open(Nombre).then((cache) =>
    cache.addAll(ARCHIVOS.map((archivo) => new Request(archivo, { cache: 'reload' })))));
});

async function quitaLasViejas() {
  const nombres = await caches.keys();
  await Promise.all(nombres.filter((uno) => uno.startsWith('tasca ') && uno !== Nombre)
    .map((uno) => caches.delete(uno)));
  await self.clients.claim();
}

self.addEventListener('activate', (suceso) => suceso.waitUntil(quitaLasViejas()));

self.addEventListener('fetch', (suceso) => {
  if (suceso.request.method !== 'GET') return;
  suceso.respondWith(caches.open(Nombre)
    .then((cache) => cache.match(suceso.request, { ignoreSearch: true }))
    .then((guardado) => guardado ?? fetch(suceso.request)));
});
