// Where the game cannot be opened, one line says so.
import assert from 'node:assert/strict';
import { cp, mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { abreNavegador, espera, nuevaPagina } from './navegador.mjs';
import { sirve } from './servidor.mjs';
import { Sitio, sirveElSitio } from './sitio.mjs';

let navegador;
before(async () => { navegador = await abreNavegador(); });
after(() => navegador.close());

async function loQueDice(url, prepara) {
  const { pagina, contexto } = await nuevaPagina(navegador, url);
  if (prepara) await pagina.evaluateOnNewDocument(prepara);
  await pagina.goto(url);
  await espera(pagina, () => !document.querySelector('#carga')?.textContent.startsWith('Abriendo'));
  const dicho = await pagina.$eval('#carga', (uno) => uno.textContent);
  await contexto.close();
  return dicho;
}

test('a browser without WebAssembly', async () => {
  const sitio = await sirveElSitio();
  assert.match(await loQueDice(sitio.url, () => { delete globalThis.WebAssembly; }),
    /le falta WebAssembly/);
  await sitio.cierra();
});

for (const [nombre, estropea] of [
  ['missing', (carpeta) => rm(join(carpeta, 'modulo.wasm'))],
  ['damaged', (carpeta) => writeFile(join(carpeta, 'modulo.wasm'), 'no es un módulo')]]) {
  test(`a module that is ${nombre}`, async () => {
    const copia = await mkdtemp(join(tmpdir(), 'tasca-fallo-'));
    await cp(Sitio, copia, { recursive: true });
    await estropea(copia);
    const sitio = await sirve(copia);
    assert.match(await loQueDice(sitio.url), /No se ha podido abrir el juego/);
    await sitio.cierra();
    await rm(copia, { recursive: true });
  });
}
