// Recorded games, played in the page by keys and by taps.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { Dedo, Teclado, representa } from './jugador.mjs';
import { abre, abreNavegador, sinFaltas } from './navegador.mjs';
import { juego, sirveElSitioDe } from './sitio.mjs';

let navegador;
before(async () => { navegador = await abreNavegador(); });
after(() => navegador.close());

async function juega(nombre, Manos, opciones) {
  const { entrada, sucesos } = await juego(nombre);
  const sitio = await sirveElSitioDe(nombre);
  const { start } = entrada[0];
  const todo = await abre(navegador, sitio.url, { ...opciones, reloj: start.clock });
  const vistos = await representa(todo.pagina, new Manos(todo.pagina), entrada, sucesos);
  assert.ok(vistos > 30, `${vistos} events compared`);
  await sinFaltas(todo);
  await todo.contexto.close();
  await sitio.cierra();
}

test('every-lance-1 by keys, with cards and stones that move', () =>
  juega('every-lance-1', Teclado, { movimiento: true }));
for (const nombre of ['match-lost', 'a-vaca-each', 'mus-and-juego-by-numbers']) {
  test(`${nombre} by keys`, () => juega(nombre, Teclado, {}));
}
test('match-lost by taps on a small screen', () =>
  juega('match-lost', Dedo, { ancho: 360, alto: 640, tactil: true }));
test('mus-and-juego-by-numbers by taps on its side', () =>
  juega('mus-and-juego-by-numbers', Dedo, { ancho: 640, alto: 360, tactil: true }));
