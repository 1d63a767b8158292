// What the page keeps: a match goes on after the tab has been killed, two tabs do not disturb each
// other, a refused or damaged storage does not stop the game.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { Teclado, estado } from './jugador.mjs';
import { abre, abreNavegador, espera, nuevaPagina, sinFaltas } from './navegador.mjs';
import { sirveElSitio } from './sitio.mjs';

let navegador;
let sitio;
before(async () => { [navegador, sitio] = await Promise.all([abreNavegador(), sirveElSitio()]); });
after(async () => {
  await navegador.close();
  await sitio.cierra();
});

const aviso = (pagina) => pagina.$eval('#aviso', (uno) => uno.textContent);

// Waits until the kept match is the one that is shown, or until nothing is kept.
const guardado = (pagina) => espera(pagina, async () => {
  const { hecha } = globalThis;
  const base = await hecha(indexedDB.open('tasca', 1));
  const registro = await hecha(base.transaction('registros').objectStore('registros').get('tasca'));
  base.close();
  return registro?.partida instanceof Uint8Array;
});

// Lets the page's functions await a request of IndexedDB.
const preparaLectura = (pagina) => pagina.evaluateOnNewDocument(() => {
  globalThis.hecha = (peticion) => new Promise((cumple, falla) => {
    peticion.onsuccess = () => cumple(peticion.result);
    peticion.onerror = () => falla(peticion.error);
  });
});

async function unPaso(manos, { caja }) {
  if (!caja) return manos.enter();
  if (caja.clase === 'siNo') return manos.siNo(caja.titulo !== '¿mus?');
  if (caja.clase === 'envite') return manos.envida(0);
  return manos.enter();
}

// Kills the tab and opens the page anew; the match goes on where it stood.
async function mataYSigue(todo) {
  const antes = await estado(todo.pagina);
  await guardado(todo.pagina);
  const { contexto } = todo;
  const cliente = await todo.pagina.createCDPSession();
  const muerta = new Promise((cumple) => { todo.pagina.once('error', cumple); });
  cliente.send('Page.crash').catch(() => {});
  await muerta;
  const nueva = await nuevaPagina(navegador, sitio.url, { contexto });
  await preparaLectura(nueva.pagina);
  await nueva.pagina.goto(sitio.url);
  await espera(nueva.pagina, () => document.querySelector('#ventana:not([hidden])') !== null);
  assert.deepEqual(await estado(nueva.pagina), antes);
  await todo.pagina.close().catch(() => {});
  return nueva;
}

test('a killed tab goes on where it stood', async () => {
  let todo = await nuevaPagina(navegador, sitio.url);
  await preparaLectura(todo.pagina);
  await todo.pagina.goto(sitio.url);
  await espera(todo.pagina, () => document.querySelector('.inicio[open]') !== null);
  await todo.pagina.keyboard.press('Enter');
  for (const pasos of [1, 2, 7, 11, 5]) {
    for (let i = 0; i < pasos; i++) {
      await unPaso(new Teclado(todo.pagina), await estado(todo.pagina));
    }
    todo = await mataYSigue(todo);
  }
  await sinFaltas(todo);
  await todo.contexto.close();
});

test('a second tab plays without keeping, and says so', async () => {
  const primera = await abre(navegador, sitio.url);
  await primera.pagina.keyboard.press('Enter');
  const segunda = await abre(navegador, sitio.url, { contexto: primera.contexto });
  assert.match(await aviso(segunda.pagina), /otra pestaña/);
  assert.equal(await aviso(primera.pagina), '');
  await segunda.pagina.keyboard.press('Enter');
  assert.equal((await estado(segunda.pagina)).situacion, 'mesa');
  await sinFaltas(primera);
  await sinFaltas(segunda);
  await primera.contexto.close();
});

test('storage refused: plays on and says it once', async () => {
  const todo = await nuevaPagina(navegador, sitio.url);
  await todo.pagina.evaluateOnNewDocument(() => {
    IDBFactory.prototype.open = () => { throw new DOMException('no', 'SecurityError'); };
  });
  await todo.pagina.goto(sitio.url);
  await espera(todo.pagina, () => document.querySelector('.inicio[open]') !== null);
  const manos = new Teclado(todo.pagina);
  for (let i = 0; i < 6; i++) await unPaso(manos, await estado(todo.pagina));
  assert.equal((await estado(todo.pagina)).situacion, 'mesa');
  assert.equal((await aviso(todo.pagina)).match(/no deja guardar/g)?.length, 1);
  await sinFaltas(todo);
  await todo.contexto.close();
});

test('storage that fills up while playing: plays on and says it once', async () => {
  const todo = await abre(navegador, sitio.url);
  await todo.pagina.evaluate(() => {
    IDBObjectStore.prototype.put = () => { throw new DOMException('full', 'QuotaExceededError'); };
  });
  await todo.pagina.keyboard.press('Enter');
  const manos = new Teclado(todo.pagina);
  for (let i = 0; i < 4; i++) await unPaso(manos, await estado(todo.pagina));
  await espera(todo.pagina, () => document.querySelector('#aviso').textContent !== '');
  assert.equal((await aviso(todo.pagina)).match(/no deja guardar/g)?.length, 1);
  assert.equal((await estado(todo.pagina)).situacion, 'mesa');
  await sinFaltas(todo);
  await todo.contexto.close();
});

const dañados = {
  'no record': () => 'basura',
  'another version': () => ({ version: 2, archivos: {}, partida: null, ajustes: {} }),
  'files that are no bytes': () =>
    ({ version: 1, archivos: { 'mus.ini': 'texto' }, partida: null, ajustes: {} }),
};
for (const [nombre, hazlo] of Object.entries(dañados)) {
  test(`a damaged record is set aside: ${nombre}`, async () => {
    const todo = await nuevaPagina(navegador, sitio.url);
    await preparaLectura(todo.pagina);
    await todo.pagina.goto(sitio.url);
    await espera(todo.pagina, () => document.querySelector('.inicio[open]') !== null);
    await todo.pagina.evaluate(async (registro) => {
      const base = await globalThis.hecha(indexedDB.open('tasca', 1));
      await globalThis.hecha(base.transaction('registros', 'readwrite').objectStore('registros')
        .put(registro, 'tasca'));
      base.close();
    }, hazlo());
    await todo.pagina.reload();
    await espera(todo.pagina, () => document.querySelector('.inicio[open]') !== null);
    assert.match(await aviso(todo.pagina), /dejado aparte/);
    const apartado = await todo.pagina.evaluate(async () => {
      const base = await globalThis.hecha(indexedDB.open('tasca', 1));
      const almacen = base.transaction('registros').objectStore('registros');
      const claves = await globalThis.hecha(almacen.getAllKeys());
      const suya = claves.find((una) => una.startsWith('apartado'));
      return globalThis.hecha(almacen.get(suya));
    });
    assert.deepEqual(apartado, hazlo());
    await sinFaltas(todo);
    await todo.contexto.close();
  });
}

test('the settings are kept', async () => {
  const todo = await abre(navegador, sitio.url);
  await todo.pagina.keyboard.press('Enter');
  await todo.pagina.keyboard.press('F9');
  assert.match(await todo.pagina.$eval('#ayuda', (uno) => uno.textContent), /poner el sonido/);
  await todo.pagina.reload();
  await espera(todo.pagina, () => document.querySelector('#ventana:not([hidden])') !== null);
  assert.match(await todo.pagina.$eval('#ayuda', (uno) => uno.textContent), /poner el sonido/);
  await sinFaltas(todo);
  await todo.contexto.close();
});

test('leaving keeps the match: it goes on, or another begins', async () => {
  const todo = await abre(navegador, sitio.url);
  const { pagina } = todo;
  const { keyboard } = pagina;
  await keyboard.press('Enter');
  const antes = await estado(pagina);
  for (const [boton, situacion] of [['Seguir con la partida', 'mesa'], ['Empezar otra', 'inicio']]) {
    for (const tecla of ['Control', 'Alt']) await keyboard.down(tecla);
    await keyboard.press('q');
    for (const tecla of ['Control', 'Alt']) await keyboard.up(tecla);
    await espera(pagina, () => document.querySelector('#final:not([hidden])') !== null);
    await pagina.locator(`#final ::-p-text(${boton})`).click();
    const visto = await estado(pagina);
    assert.equal(visto.situacion, situacion);
    if (situacion === 'mesa') assert.deepEqual(visto, antes);
  }
  await sinFaltas(todo);
  await todo.contexto.close();
});
