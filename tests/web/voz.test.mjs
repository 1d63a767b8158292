// What is said is said once: every new line of the transcript comes into the log, in order.
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

// Records what the module gives to be said, and what the log announces.
function escucha() {
  const { dados, oidos } = Object.assign(globalThis, { dados: [], oidos: [] });
  const lee = JSON.parse;
  JSON.parse = (texto) => {
    const leido = lee(texto);
    dados.push(...(leido?.dichos ?? []));
    return leido;
  };
  addEventListener('DOMContentLoaded', () => new MutationObserver((cambios) => {
    for (const { addedNodes } of cambios) {
      oidos.push(...[...addedNodes].map((uno) => uno.textContent));
    }
  }).observe(document.getElementById('voz'), { childList: true }));
}

async function unPaso(manos, { caja }) {
  if (!caja) return manos.enter();
  if (caja.clase === 'siNo') return manos.siNo(caja.titulo !== '¿mus?');
  if (caja.clase === 'envite') return manos.envida(0);
  return manos.enter();
}

test('each new line is announced once, in order', async () => {
  const todo = await nuevaPagina(navegador, sitio.url);
  const { pagina } = todo;
  await pagina.evaluateOnNewDocument(escucha);
  await pagina.goto(sitio.url);
  await espera(pagina, () => document.querySelector('.inicio[open]') !== null);
  await pagina.keyboard.press('Enter');
  const manos = new Teclado(pagina);
  for (let paso = 0; paso < 80; paso++) await unPaso(manos, await estado(pagina));
  const { dados, oidos } = await pagina.evaluate(() => ({ dados: globalThis.dados,
    oidos: globalThis.oidos }));
  assert.deepEqual(oidos, dados);
  assert.ok(dados.length > 60, `${dados.length} lines`);
  await sinFaltas(todo);
  await todo.contexto.close();
});

test('F2 to F5 say what is asked for, also while a box is open', async () => {
  const todo = await abre(navegador, sitio.url);
  const { pagina } = todo;
  await pagina.keyboard.press('Enter');
  await pagina.keyboard.press('Enter');
  assert.notEqual((await estado(pagina)).caja, null);
  for (const [tecla, patron] of [['F3', / de (oros|copas|espadas|bastos)/], ['F4', /pareja/i],
    ['F5', /mano/]]) {
    await pagina.keyboard.press(tecla);
    assert.match(await pagina.$eval('#oido', (uno) => uno.textContent), patron);
    assert.match(await pagina.$eval('#ayuda', (uno) => uno.textContent), patron);
  }
  assert.notEqual((await estado(pagina)).caja, null);
  await sinFaltas(todo);
  await todo.contexto.close();
});
