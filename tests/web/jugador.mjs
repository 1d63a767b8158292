// Plays the page as a player does: by keys, or by taps.
import assert from 'node:assert/strict';
import { espera } from './navegador.mjs';

// What the page shows.
export const estado = (pagina) => pagina.evaluate(() => {
  const caja = document.querySelector('.caja');
  const campo = document.querySelector('#cajaCampo');
  const texto = (id) => document.getElementById(id).value;
  return {
    situacion: document.querySelector('.inicio[open]') ? 'inicio' :
      document.querySelector('#ventana:not([hidden])') ? 'mesa' : 'otra',
    textos: [texto('texto1'), texto('texto2'), texto('texto3')],
    caja: caja && {
      clase: caja.className.replace('caja ', ''),
      titulo: caja.querySelector('h2').textContent,
      texto: caja.querySelector('.dicho')?.textContent ?? '',
      campo: campo && campo.value,
      foco: document.activeElement === campo ? 'campo' : document.activeElement?.textContent,
      botones: [...caja.querySelectorAll('.botones button, .botones4 button')]
        .map((uno) => uno.textContent),
    },
  };
});

// The player's hands: what is pressed for an answer. By keys ...
export class Teclado {
  constructor(pagina) { this.pagina = pagina; }

  async enter() { await this.pagina.keyboard.press('Enter'); }

  async abandona() { await this.pagina.keyboard.press('q'); }

  async verManos() {
    for (const tecla of ['Control', 'Shift']) await this.pagina.keyboard.down(tecla);
    await this.pagina.keyboard.press('Digit0');
    for (const tecla of ['Shift', 'Control']) await this.pagina.keyboard.up(tecla);
  }

  async acepta() { await this.enter(); }

  async siNo(si) { await this.pagina.keyboard.press(si ? 's' : 'n'); }

  async cancela() { await this.pagina.keyboard.press('Escape'); }

  async escribe(texto) {
    await this.pagina.$eval('#cajaCampo', (campo) => { campo.value = ''; });
    await this.pagina.keyboard.type(texto);
    await this.enter();
  }

  async envida(indice) {
    const letra = await this.pagina.$eval(`.hueco${indice}`, (b) => b.getAttribute('aria-keyshortcuts'));
    await this.pagina.keyboard.press(letra.toLowerCase());
  }
}

// ... or by taps.
export class Dedo {
  constructor(pagina) { this.pagina = pagina; }

  async toca(selector) { await this.pagina.tap(selector); }

  async enter() { await this.toca('#mesa'); }

  async abandona() {
    await this.toca('#menus button');
    await this.toca('#menus [role="menu"] button:nth-child(6)');
  }

  async acepta() { await this.toca('.caja .botones button'); }

  async siNo(si) { await this.toca(`.caja .botones button:nth-child(${si ? 1 : 2})`); }

  async cancela() { await this.toca('.caja .botones button:nth-child(2)'); }

  // By the helpers beside the field, as far as they go.
  async escribe(texto) {
    const cartas = await this.pagina.$$('.ayudas .naipe');
    if (cartas.length > 0 && /^[1-4]*$/.test(texto)) await this.escogeCartas(texto);
    else await this.pagina.$eval('#cajaCampo', (campo, valor) => { campo.value = valor; }, texto);
    await this.acepta();
  }

  async escogeCartas(cifras) {
    for (let hueco = 1; hueco <= 4; hueco++) {
      const puesta = await this.pagina.$eval('#cajaCampo',
        (campo, cifra) => campo.value.includes(cifra), String(hueco));
      if (puesta !== cifras.includes(hueco)) await this.toca(`.ayudas button[aria-label^="Carta ${hueco}"]`);
    }
  }

  async envida(indice) { await this.toca(`.hueco${indice}`); }
}

// Fills in the start-up dialog as a line of a recorded game says, and accepts.
export async function empieza(pagina, { combos, name, checks = [], option }) {
  for (const [i, posicion] of combos.entries()) await pagina.select(`#combo${i}`, String(posicion));
  for (const [i, marcada] of checks.entries()) {
    const puesta = await pagina.$eval(`#casilla${i}`, (c) => c.checked);
    if (puesta !== marcada) await pagina.click(`#casilla${i}`);
  }
  if (option !== undefined) await pagina.click(`#estilo${option}`);
  if (name !== undefined) await pagina.$eval('#nombre', (c, valor) => { c.value = valor; }, name);
  await pagina.focus('#nombre');
  await pagina.keyboard.press('Enter');
}

// A text of the game as the page must show it.
export const comoSeVe = (texto) => texto.replace(/\r\n?/g, '\n').replaceAll('\0', '');

async function mira(pagina, suceso) {
  const visto = await estado(pagina);
  const textos = suceso.texts ?? [suceso.Text1, suceso.Text2, suceso.Text3];
  if (textos.some((uno) => uno !== '')) assert.deepEqual(visto.textos, textos.map(comoSeVe));
  if (suceso.event === 'state') return assert.equal(visto.caja, null);
  assert.equal(visto.caja?.titulo, comoSeVe(suceso.title) || 'La tasca del tío Zarandel');
  assert.equal(visto.caja.texto, comoSeVe(suceso.text ?? ''));
  if (suceso.event === 'inputbox') assert.equal(visto.caja.campo, suceso.default);
  if (suceso.default === 'yes') assert.equal(visto.caja.foco, 'Sí');
  if (suceso.default === 'no') assert.equal(visto.caja.foco, 'No');
}

async function contesta(manos, suceso, linea) {
  if (suceso.buttons === 'yesno') return manos.siNo(linea.button === 'yes');
  if (suceso.event === 'dialog') return manos.envida(linea.result);
  if (linea.button === 'cancel') return manos.cancela();
  return manos.escribe(linea.text);
}

async function pulsa(manos, { key, shift }) {
  if (key === 13) return manos.enter();
  if (key === 81) return manos.abandona();
  if (key === 48 && shift === 3) return manos.verManos();
  throw new Error(`key ${key} ${shift}`);
}

// Plays a recorded game and compares all that the page shows with its events. The page ends the
// sounds itself. Returns the number of events that have been compared.
export async function representa(pagina, manos, entrada, sucesos) {
  const lineas = entrada.filter((linea) => linea.sound === undefined);
  
  let vistos = 0;
  await empieza(pagina, lineas.shift().start);
  for (const suceso of sucesos) {
    if (suceso.event === 'sound' || suceso.event === 'soundstop') continue;
    if (suceso.event === 'end') {
      await espera(pagina, () => document.querySelector('#final:not([hidden])') !== null);
      continue;
    }
    await mira(pagina, suceso);
    vistos += 1;
    if (suceso.buttons === 'ok') await manos.acepta();
    else if (suceso.event !== 'state') await contesta(manos, suceso, lineas.shift());
    else if (lineas[0]?.key !== undefined) await pulsa(manos, lineas.shift());
  }
  assert.equal(lineas.length, 0);
  return vistos;
}
