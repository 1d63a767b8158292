// The character file can be brought in and taken out; a bad one is refused with its faults.
import assert from 'node:assert/strict';
import { mkdtemp, readFile, readdir, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { abre, abreNavegador, espera, sinFaltas } from './navegador.mjs';
import { Sitio, sirveElSitio } from './sitio.mjs';

let navegador;
let sitio;
let carpeta;
before(async () => {
  [navegador, sitio, carpeta] = await Promise.all([abreNavegador(), sirveElSitio(),
    mkdtemp(join(tmpdir(), 'tasca-personajes-'))]);
});
after(async () => {
  await navegador.close();
  await sitio.cierra();
  await rm(carpeta, { recursive: true });
});

const mensaje = (pagina) => pagina.$eval('.faltas', (uno) => (uno.hidden ? '' : uno.textContent));

async function trae(pagina, contenido) {
  const archivo = join(carpeta, 'otros.dat');
  await writeFile(archivo, contenido);
  await pagina.$eval('details', (uno) => { uno.open = true; });
  const campo = await pagina.$('input[type="file"]');
  await campo.uploadFile(archivo);
  await espera(pagina, () => document.querySelector('.faltas:not([hidden])') !== null);
}

const personajes = (pagina) => pagina.$$eval('#combo0 option',
  (todas) => todas.map((una) => una.textContent));

const buenos = () => readFile(join(Sitio, 'datos/Jugadores.dat'));

test('a good file is taken, kept, and used', async () => {
  const todo = await abre(navegador, sitio.url);
  const { pagina } = todo;
  const original = (await buenos()).toString('latin1');
  assert.ok((await personajes(pagina)).includes('La boticaria'));
  await trae(pagina, Buffer.from(original.replaceAll('La boticaria', 'La farmacia!'), 'latin1'));
  assert.notEqual(await mensaje(pagina), '');
  assert.ok((await personajes(pagina)).includes('La farmacia!'));
  await pagina.reload();
  await espera(pagina, () => document.querySelector('.inicio[open]') !== null);
  assert.ok((await personajes(pagina)).includes('La farmacia!'));
  await sinFaltas(todo);
  await todo.contexto.close();
});

for (const [nombre, contenido] of [['empty', ''], ['noise', Buffer.from([0, 255, 7, 13, 10, 0])],
  ['no characters', 'Datos>\r\nnadie\r\n'], ['half a file', null]]) {
  test(`a bad file is refused: ${nombre}`, async () => {
    const todo = await abre(navegador, sitio.url);
    const antes = await personajes(todo.pagina);
    await trae(todo.pagina, contenido ?? (await buenos()).subarray(0, 3000));
    assert.match(await mensaje(todo.pagina), /no sirve para jugar\.\n.+/);
    assert.deepEqual(await personajes(todo.pagina), antes);
    await sinFaltas(todo);
    await todo.contexto.close();
  });
}

test('a huge file is refused before it is read', async () => {
  const todo = await abre(navegador, sitio.url);
  const { pagina } = todo;
  await pagina.evaluate(() => {
    Object.defineProperty(File.prototype, 'size', { get: () => 2 ** 30 });
    File.prototype.arrayBuffer = () => { throw new Error('it must not be read'); };
  });
  await trae(pagina, 'x');
  assert.match(await mensaje(pagina), /demasiado grande/);
  await sinFaltas(todo);
  await todo.contexto.close();
});

test('the file that is taken out has the same bytes', async () => {
  const todo = await abre(navegador, sitio.url);
  const { pagina } = todo;
  const cliente = await pagina.createCDPSession();
  const destino = await mkdtemp(join(carpeta, 'descargas-'));
  await cliente.send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: destino,
    browserContextId: todo.contexto.id, eventsEnabled: true });
  const hecha = new Promise((cumple) => {
    cliente.on('Browser.downloadProgress', ({ state }) => { if (state === 'completed') cumple(); });
  });
  await pagina.$eval('details', (uno) => { uno.open = true; });
  await pagina.click('details .botones button:nth-child(2)');
  await hecha;
  assert.deepEqual(await readdir(destino), ['Jugadores.dat']);
  assert.deepEqual(await readFile(join(destino, 'Jugadores.dat')), await buenos());
  await sinFaltas(todo);
  await todo.contexto.close();
});
