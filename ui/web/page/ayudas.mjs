// What helps to fill in a field without a keyboard: the cards to click, and the steps.
import { html, boton } from './svg.mjs';
import { consume } from './teclas.mjs';

/** A button that leaves the focus in the field. @param {HTMLButtonElement} uno */
function alLadoDelCampo(uno) {
  uno.tabIndex = -1;
  uno.addEventListener('pointerdown', (e) => e.preventDefault());
  uno.addEventListener('mousedown', (e) => e.preventDefault());
  return uno;
}

/** @param {HTMLInputElement} campo @param {string} valor */
function pon(campo, valor) {
  campo.value = valor;
  campo.dispatchEvent(new Event('input'));
}

/**
 * @param {{hueco: number, dibujo: string, nombre: string}} carta
 * @param {HTMLInputElement} campo
 */
function cartaParaPulsar({ hueco, dibujo, nombre }, campo) {
  const cifra = String(hueco);
  const alterna = () => pon(campo, campo.value.includes(cifra) ?
    campo.value.replaceAll(cifra, '') : campo.value + cifra);
  const uno = alLadoDelCampo(boton(cifra, alterna, { 'aria-label': `Carta ${cifra}: ${nombre}` }));
  uno.prepend(html('img', { class: 'naipe', src: `cartas/${dibujo}.svg`, alt: '', width: 200,
    height: 308 }));
  const marca = () => uno.setAttribute('aria-pressed', String(campo.value.includes(cifra)));
  marca();
  campo.addEventListener('input', marca);
  return uno;
}

/** @param {any} pregunta @param {HTMLInputElement} campo */
function pasos({ minimo, maximo }, campo) {
  const da = (/** @type {number} */ cuanto) => {
    const antes = Number.parseInt(campo.value, 10) || 0;
    pon(campo, String(Math.min(maximo, Math.max(minimo, antes + cuanto))));
  };
  campo.addEventListener('keydown', (e) => {
    if (e.key !== 'ArrowUp' && e.key !== 'ArrowDown') return;
    consume(e);
    da(e.key === 'ArrowUp' ? 1 : -1);
  });
  return [alLadoDelCampo(boton('−', () => da(-1), { 'aria-label': 'Una menos' })),
    alLadoDelCampo(boton('+', () => da(1), { 'aria-label': 'Una más' }))];
}

/** On a touch screen the keyboard only opens when the field itself is tapped. */
function sinTecladoEnPantalla(/** @type {HTMLInputElement} */ campo) {
  if (!matchMedia('(pointer: coarse)').matches) return;
  campo.inputMode = 'none';
  campo.addEventListener('pointerdown', () => { campo.inputMode = 'numeric'; });
}

/**
 * The row of helpers of an input box; none if it needs none.
 * @param {any} pregunta @param {HTMLInputElement} campo
 */
export function ayudasPara(pregunta, campo) {
  campo.inputMode = 'numeric';
  const fila = html('div', { class: 'ayudas' });
  if (pregunta.cartas) {
    fila.append(...pregunta.cartas.map((/** @type {any} */ una) => cartaParaPulsar(una, campo)));
  }
  if (pregunta.minimo !== undefined) fila.append(...pasos(pregunta, campo));
  if (fila.children.length === 0) return [];
  sinTecladoEnPantalla(campo);
  return [fila];
}
