// The keys of the boxes: the default button has the focus, letters answer at once, a held key
// answers once, Esc closes only what may be closed.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { Teclado, estado } from './jugador.mjs';
import { abre, abreNavegador, espera, sinFaltas } from './navegador.mjs';
import { sirveElSitio } from './sitio.mjs';

let navegador;
let sitio;
before(async () => { [navegador, sitio] = await Promise.all([abreNavegador(), sirveElSitio()]); });
after(async () => {
  await navegador.close();
  await sitio.cierra();
});

// Plays until a box of that kind is open, declining mus unless `conMus`.
async function hasta(pagina, clase, conMus = false) {
  const manos = new Teclado(pagina);
  for (let paso = 0; paso < 200; paso++) {
    const { caja } = await estado(pagina);
    if (caja?.clase === clase) return caja;
    if (caja?.titulo === '¿mus?') await manos.siNo(conMus);
    else await manos.enter();
  }
  throw new Error(`no ${clase}`);
}

async function enLaMesa(opciones) {
  const todo = await abre(navegador, sitio.url, opciones);
  await todo.pagina.keyboard.press('Enter');
  assert.equal((await estado(todo.pagina)).situacion, 'mesa');
  return todo;
}

async function acaba(todo) {
  await sinFaltas(todo);
  await todo.contexto.close();
}

// Key presses of a key that is held down.
const repite = (pagina, key) => pagina.evaluate((tecla) => {
  for (let i = 0; i < 20; i++) {
    document.activeElement.dispatchEvent(new KeyboardEvent('keydown',
      { key: tecla, repeat: true, bubbles: true, cancelable: true }));
  }
}, key);

test('a Yes/No box: the default has the focus, Esc does nothing, S answers at once', async () => {
  const todo = await enLaMesa();
  const { pagina } = todo;
  const caja = await hasta(pagina, 'siNo');
  assert.deepEqual(caja.botones, ['Sí', 'No']);
  assert.equal(caja.foco, 'Sí');
  await pagina.keyboard.press('Escape');
  assert.equal((await estado(pagina)).caja?.clase, 'siNo');
  await pagina.keyboard.press('ArrowRight');
  assert.equal((await estado(pagina)).caja.foco, 'No');
  await pagina.keyboard.press('n');
  assert.match((await estado(pagina)).textos[1], /(No quiero mus|No hay mus)/);
  await acaba(todo);
});

test('a held Enter takes one step and answers nothing', async () => {
  const todo = await enLaMesa();
  const { pagina } = todo;
  await hasta(pagina, 'siNo');
  const antes = await estado(pagina);
  await repite(pagina, 'Enter');
  await repite(pagina, 's');
  await repite(pagina, 'n');
  assert.deepEqual(await estado(pagina), antes);
  await pagina.keyboard.press('n');
  const enMesa = await estado(pagina);
  assert.equal(enMesa.caja, null);
  await repite(pagina, 'Enter');
  await repite(pagina, 'q');
  assert.deepEqual(await estado(pagina), enMesa);
  await acaba(todo);
});

test('the bidding dialog: two rows of two, letters, arrows, no Esc', async () => {
  const todo = await enLaMesa();
  const { pagina } = todo;
  const caja = await hasta(pagina, 'envite');
  assert.equal(caja.foco, caja.botones[0]);
  await pagina.keyboard.press('Escape');
  assert.equal((await estado(pagina)).caja?.clase, 'envite');
  await pagina.keyboard.press('ArrowDown');
  assert.equal((await estado(pagina)).caja.foco, 'Envido Más');
  await pagina.keyboard.press('ArrowRight');
  assert.equal((await estado(pagina)).caja.foco, 'Órdago');
  await pagina.keyboard.press('ArrowUp');
  assert.equal((await estado(pagina)).caja.foco, caja.botones[1]);
  await pagina.keyboard.down('Shift');
  await pagina.keyboard.press('p');
  await pagina.keyboard.up('Shift');
  const despues = await estado(pagina);
  assert.notEqual(despues.caja?.foco, caja.botones[1]);
  assert.match(despues.textos[1], /(Paso|No quiero)/);
  await acaba(todo);
});

test('an input box: the field has the focus, digits toggle cards, arrows change the stones', async () => {
  const todo = await enLaMesa();
  const { pagina } = todo;
  const manos = new Teclado(pagina);
  await hasta(pagina, 'envite');
  await manos.envida(2);
  const caja = await hasta(pagina, 'texto');
  assert.equal(caja.foco, 'campo');
  const antes = Number(caja.campo);
  await pagina.keyboard.press('ArrowUp');
  await pagina.keyboard.press('ArrowUp');
  assert.equal((await estado(pagina)).caja.campo, String(antes + 2));
  for (let i = 0; i < antes + 5; i++) await pagina.keyboard.press('ArrowDown');
  assert.equal((await estado(pagina)).caja.campo, '1');
  await pagina.keyboard.press('Escape');
  assert.notEqual((await estado(pagina)).caja?.clase, 'texto');
  await acaba(todo);
});

test('no key reaches a box that has lost the focus', async () => {
  const todo = await enLaMesa();
  const { pagina } = todo;
  await hasta(pagina, 'siNo');
  await pagina.evaluate(() => document.activeElement.blur());
  await pagina.keyboard.press('Enter');
  const { caja } = await estado(pagina);
  assert.equal(caja?.clase, 'siNo');
  assert.equal(caja.foco, 'Sí');
  await acaba(todo);
});

test('F1 opens the manual at the subject, Esc closes it and the question stays', async () => {
  const todo = await enLaMesa();
  const { pagina } = todo;
  await hasta(pagina, 'siNo');
  await pagina.keyboard.press('F1');
  await espera(pagina, () => document.querySelector('.manual:modal') !== null);
  const aLaVista = await pagina.evaluate(() => {
    const hoja = document.querySelector('.manual .hoja');
    const arriba = hoja.getBoundingClientRect().top;
    return [...hoja.querySelectorAll('h3, h4')].find((uno) =>
      uno.getBoundingClientRect().top >= arriba - 2)?.textContent;
  });
  assert.match(aLaVista, /mus/i);
  await pagina.keyboard.press('Escape');
  await espera(pagina, () => document.querySelector('dialog:modal') === null);
  assert.equal((await estado(pagina)).caja?.foco, 'Sí');
  await acaba(todo);
});

test('the manual is searched without accents, and its links stay inside', async () => {
  const todo = await abre(navegador, sitio.url);
  const { pagina } = todo;
  await pagina.keyboard.press('F1');
  await pagina.type('.manual input[type="search"]', 'duplex');
  await pagina.keyboard.press('Enter');
  assert.match(await pagina.evaluate(() => String(getSelection())), /^dúplex$/i);
  await pagina.$eval('.manual input[type="search"]', (campo) => { campo.value = 'zzzz'; });
  await pagina.keyboard.press('Enter');
  assert.equal(await pagina.$eval('.manual .busca [role="status"]', (uno) => uno.textContent),
    'No se encuentra.');
  const fuera = await pagina.$$eval('.manual a',
    (todas) => todas.filter((una) => !document.getElementById(decodeURIComponent(una.hash.slice(1))))
      .map((una) => una.href));
  assert.deepEqual(fuera, []);
  await acaba(todo);
});
