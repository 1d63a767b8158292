// After the first visit the page opens without a network; a new version replaces the old one whole.
import assert from 'node:assert/strict';
import { appendFile, cp, mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { estado } from './jugador.mjs';
import { abre, abreNavegador, espera, nuevaPagina, sinFaltas } from './navegador.mjs';
import { sirve } from './servidor.mjs';
import { Sitio, sirveElSitio } from './sitio.mjs';

let navegador;
before(async () => { navegador = await abreNavegador(); });
after(() => navegador.close());

const atendida = (pagina) => espera(pagina, () => navigator.serviceWorker.controller !== null);

test('the second visit needs no network', async () => {
  const sitio = await sirveElSitio();
  const todo = await abre(navegador, sitio.url);
  await atendida(todo.pagina);
  await sinFaltas(todo);
  await sitio.cierra();
  const otra = await nuevaPagina(navegador, sitio.url, { contexto: todo.contexto });
  await todo.pagina.close();
  await otra.pagina.goto(sitio.url);
  await espera(otra.pagina, () => document.querySelector('.inicio[open]') !== null);
  await otra.pagina.keyboard.press('Enter');
  assert.equal((await estado(otra.pagina)).situacion, 'mesa');
  const sinDibujo = await otra.pagina.evaluate(async () => {
    const cartas = [...document.querySelectorAll('#mesa image')].map((una) => una.getAttribute('href'));
    const respuestas = await Promise.all(cartas.map((una) => fetch(una)));
    return { cuantas: cartas.length, malas: respuestas.filter((r) => !r.ok).length };
  });
  assert.ok(sinDibujo.cuantas >= 16);
  assert.equal(sinDibujo.malas, 0);
  await sinFaltas(otra);
  await todo.contexto.close();
});

test('a new version removes the old one', async () => {
  const copia = await mkdtemp(join(tmpdir(), 'tasca-version-'));
  await cp(Sitio, copia, { recursive: true });
  const sitio = await sirve(copia);
  const todo = await abre(navegador, sitio.url);
  await atendida(todo.pagina);
  const antes = await todo.pagina.evaluate(() => caches.keys());
  assert.equal(antes.length, 1);
  await appendFile(join(copia, 'estilo.css'), '/* new */\n');
  await writeFile(join(copia, 'version.js'),
    "self.VERSION = 'nueva';\nself.ARCHIVOS = ['./', 'index.html', 'estilo.css'];\n");
  await todo.pagina.goto('about:blank');
  const otra = await nuevaPagina(navegador, sitio.url, { contexto: todo.contexto });
  await otra.pagina.goto(sitio.url);
  await otra.pagina.evaluate(() => navigator.serviceWorker.ready.then((r) => r.update()));
  await otra.pagina.goto('about:blank');
  await otra.pagina.goto(sitio.url);
  await espera(otra.pagina, () => caches.keys().then((nombres) =>
    nombres.length === 1 && nombres[0] === 'tasca nueva'));
  await todo.contexto.close();
  await sitio.cierra();
  await rm(copia, { recursive: true });
});
