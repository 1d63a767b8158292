// axe-core finds nothing to complain about on any screen, light or dark, wide or narrow.
import assert from 'node:assert/strict';
import { readFile } from 'node:fs/promises';
import { createRequire } from 'node:module';
import { after, before, test } from 'node:test';
import { Teclado, estado } from './jugador.mjs';
import { abre, abreNavegador, espera, sinFaltas } from './navegador.mjs';
import { sirveElSitio } from './sitio.mjs';

const axe = await readFile(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

let navegador;
let sitio;
before(async () => { [navegador, sitio] = await Promise.all([abreNavegador(), sirveElSitio()]); });
after(async () => {
  await navegador.close();
  await sitio.cierra();
});

async function revisa(pagina, pantalla) {
  await pagina.evaluate(axe);
  const { violations } = await pagina.evaluate(() => globalThis.axe.run(document));
  const faltas = violations.map(({ id, nodes }) => `${id}: ${nodes.map((n) => n.html).join(' ')}`);
  assert.deepEqual(faltas, [], pantalla);
}

// The answer that leads to the most kinds of boxes.
async function contesta(manos, { clase, titulo }, vistas) {
  if (clase === 'aviso') return manos.acepta();
  if (clase === 'texto') return manos.enter();
  if (clase === 'envite') return manos.envida(vistas.has('texto pasos') ? 0 : 2);
  return titulo === '¿mus?' ? manos.siNo(!vistas.has('texto cartas')) : manos.enter();
}

async function nombreDeCaja(pagina, { clase }) {
  if (clase !== 'texto') return clase;
  return (await pagina.$('.ayudas .naipe')) ? 'texto cartas' : 'texto pasos';
}

// Plays on until every kind of box has been open, and checks each the first time.
async function revisaLasCajas(pagina, faltan) {
  const manos = new Teclado(pagina);
  const vistas = new Set();
  for (let paso = 0; paso < 400 && faltan.some((una) => !vistas.has(una)); paso++) {
    const { caja } = await estado(pagina);
    if (!caja) {
      await manos.enter();
      continue;
    }
    const nombre = await nombreDeCaja(pagina, caja);
    if (!vistas.has(nombre)) await revisa(pagina, `caja ${nombre}`);
    vistas.add(nombre);
    await contesta(manos, caja, vistas);
  }
  assert.deepEqual(faltan.filter((una) => !vistas.has(una)), []);
}

async function revisaTodo(opciones) {
  const todo = await abre(navegador, sitio.url, opciones);
  const { pagina } = todo;
  const { keyboard } = pagina;
  await revisa(pagina, 'inicio');
  await keyboard.press('Enter');
  await revisa(pagina, 'mesa');
  await revisaLasCajas(pagina, ['siNo', 'envite', 'texto cartas', 'texto pasos', 'aviso']);
  for (const [tecla, pantalla] of [['F1', 'manual'], ['F6', 'crónica']]) {
    await keyboard.press(tecla);
    await espera(pagina, () => document.querySelector('dialog:modal') !== null);
    await revisa(pagina, pantalla);
    await keyboard.press('Escape');
  }
  await pagina.click('#menus button');
  await revisa(pagina, 'menú');
  await keyboard.press('Escape');
  for (const tecla of ['Control', 'Alt']) await keyboard.down(tecla);
  await keyboard.press('q');
  for (const tecla of ['Control', 'Alt']) await keyboard.up(tecla);
  await espera(pagina, () => document.querySelector('#final:not([hidden])') !== null);
  await revisa(pagina, 'final');
  await sinFaltas(todo);
  await todo.contexto.close();
}

test('wide and light', () => revisaTodo({}));
test('wide and dark', () => revisaTodo({ oscuro: true }));
test('narrow and light', () => revisaTodo({ ancho: 360, alto: 640, tactil: true }));
test('narrow and dark', () => revisaTodo({ ancho: 360, alto: 640, tactil: true, oscuro: true }));
