// tasca.mjs and the module of WebAssembly under node: node --test tests/web/binding.test.mjs (after ./web --build).
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';

import { Partida, abrirPagina, esperado, juegos } from './recorded.mjs';

const datos = new URL('../../data/', import.meta.url);
const archivos = {
  'Jugadores.dat': readFileSync(new URL('Jugadores.dat', datos)),
  'mus.ini': readFileSync(new URL('mus.ini', datos)),
};
const nueva = () => abrirPagina(archivos, [21, 4, 37]);

async function enLaMesa() {
  const pagina = await nueva();
  pagina.abrir(null);
  pagina.aceptar('Ana');
  return pagina;
}

test('there are recorded games', () => assert.ok(juegos().length > 40));

for (const juego of juegos()) {
  test(`${juego} is told as in the trace`, async () => {
    assert.deepEqual((await new Partida(false).juega(juego)).eventos, esperado(juego));
  });
}

// Each page is a new module, so only some games.
for (const juego of ['match-lost', 'mus-rounds', 'raised-by-both', 'start-refused']) {
  test(`${juego} goes on in another page after every view`, async () => {
    const partida = await new Partida(true).juega(juego);
    assert.deepEqual(partida.eventos, esperado(juego));
    assert.ok(partida.cerradas > 3);
  });
}

test('a match that is not whole gives one line and a new start', async () => {
  const pagina = await enLaMesa();
  const guardada = pagina.guardada();
  const danada = guardada.slice();
  danada[danada.length >> 1] ^= 1;
  for (const bytes of [danada, guardada.slice(0, -1), new TextEncoder().encode('otra cosa')]) {
    const vista = pagina.abrir(bytes);
    assert.equal(vista.situacion, 'inicio');
    assert.match(vista.aviso, /^La partida que se guardó está dañada .*\.$/);
    assert.equal(pagina.guardada(), null);
  }
  assert.equal(pagina.abrir(guardada).situacion, 'mesa');
});

test('the name is written to mus.ini, and read by the next page', async () => {
  const pagina = await nueva();
  pagina.abrir(null);
  assert.deepEqual(pagina.aceptar('Íñigo').archivos, ['mus.ini']);
  const otra = await abrirPagina({ ...archivos, 'mus.ini': pagina.archivo('mus.ini') }, [0, 0, 0]);
  assert.equal(otra.abrir(null).inicio.nombre.valor, 'Íñigo');
});

test('a character file goes out as it came in', async () => {
  const pagina = await nueva();
  assert.deepEqual(Buffer.from(pagina.archivo('Jugadores.dat')), archivos['Jugadores.dat']);
  assert.deepEqual(pagina.revisar(archivos['Jugadores.dat']).faltas, []);
  assert.equal(pagina.revisar(Buffer.from('hola')).sirve, false);
  assert.throws(() => pagina.ponArchivo('otro', new Uint8Array()));
});

test('the table is laid out by the measures of the page', async () => {
  const pagina = await enLaMesa();
  const { piezas, toca } = pagina.lamina(900, 600, 16);
  assert.equal(toca, 'enter');
  assert.equal(piezas.filter(({ pieza, de }) => pieza === 'carta' && de === 1).length, 4);
  assert.equal(piezas.filter(({ dibujo }) => dibujo === 'dorso').length, 12);
  const ancha = await abrirPagina(archivos, [21, 4, 37]);
  assert.ok(pagina.marcador(300, 200, 16).piezas.length > 0);
  assert.equal(ancha.abrir(null).textos[0], '');
});

test('the parts of the window and the place of a box come from the same rules', async () => {
  const pagina = await nueva();
  const medidas = {
    ancho: 1200, alto: 800, letra: 16, quiereMesa: true, altoTanteo: 24, anchoRotulo: 200,
    altoRotulo: 20, altoAyuda: 20, altoLinea: 22, margenTexto: 16, altoTexto1: 60,
  };
  assert.equal(pagina.reparto(medidas).modo, 'alLado');
  assert.equal(pagina.reparto({ ...medidas, quiereMesa: false }).modo, 'soloTexto');
  const caja = pagina.sitioDeCaja(100, 50, [0, 0, 800, 600], [200, 200, 300, 300], [], []);
  assert.deepEqual(caja, [300, 325, 100, 50]);
});

test('an answer that the question does not offer changes nothing', async () => {
  const pagina = await enLaMesa();
  assert.throws(() => pagina.responde(true));
  let vista = pagina.enter();
  while (!vista.pregunta) vista = pagina.enter();
  const antes = pagina.guardada();
  assert.throws(() => pagina.responde(2));
  assert.throws(() => pagina.enter());
  assert.deepEqual(pagina.guardada(), antes);
  assert.equal(pagina.responde(false).situacion, 'mesa');
});

test('all that can be listened to and read is text', async () => {
  const pagina = await enLaMesa();
  assert.match(pagina.escucha('mano'), /^\S.*\.$/);
  assert.match(pagina.escucha('tanteo'), /\.$/);
  assert.match(pagina.escucha('quienEsMano'), /\.$/);
  assert.match(pagina.escucha('ultimo'), /Pulse enter para empezar/);
  assert.match(pagina.cronica(), /Mano 1/);
  assert.ok(pagina.mesaHablada().length >= 8);
  assert.ok(pagina.manual().capitulos.length > 10);
  assert.match(pagina.acercaDe(), /versión \d/);
});
