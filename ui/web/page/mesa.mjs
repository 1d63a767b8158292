// The drawn table and the drawn score: their surfaces, and which pieces are drawn anew.
import { mueve } from './movimiento.mjs';
import { caja, encoge, pinta } from './piezas.mjs';
import { svg } from './svg.mjs';

/** @typedef {import('./piezas.mjs').Pieza} Pieza */
/** @typedef {import('./signos.mjs').Rect} Rect */

/** Lines across a surface. @param {string} d @param {string} stroke @param {number} grueso */
const rayas = (d, stroke, grueso) =>
  svg('path', { d, stroke, 'stroke-width': grueso, fill: 'none' });

/** @param {Rect} suelo @param {number} f */
function losas([x, y, ancho, alto], f) {
  const losa = f * 4.2;
  let d = '';
  for (let i = 1; i * losa < alto; i++) d += `M${x} ${Math.round(y + i * losa) + 0.5}h${ancho}`;
  for (let i = 1; i * losa < ancho; i++) d += `M${Math.round(x + i * losa) + 0.5} ${y}v${alto}`;
  return rayas(d, 'var(--junta)', 1);
}

/** @param {Rect} madera @param {number} f */
function vetas([x, y, ancho, alto], f) {
  let d = '';
  for (let i = 1; i * 5 * f < alto - 2 * f; i++) d += `M${x + 6} ${y + i * 5 * f}h${ancho - 12}`;
  return rayas(d, 'var(--veta)', 2);
}

/**
 * Floor, wood and cloth.
 * @param {{suelo: Rect, madera: Rect, pano: Rect, letra: number}} lamina
 */
function superficies({ suelo, madera, pano, letra: f }) {
  const [x, y, ancho, alto] = madera;
  const sombra = caja([x + 1.5, y + 2.5, ancho, alto], f * 2.2, 'none', '#000', 5);
  sombra.setAttribute('class', 'sombra');
  const ribete = caja(encoge(pano, f * 0.5), f * 1.2, 'none', 'var(--pano-linea)', 1.3);
  ribete.setAttribute('opacity', '0.75');
  return svg('g', {}, caja(suelo, 0, 'var(--suelo)'), losas(suelo, f), sombra,
    caja(madera, f * 2.2, 'var(--madera)', 'var(--canto)', 2), vetas(madera, f),
    caja(pano, f * 1.6, 'var(--pano)', 'var(--canto)', 2), ribete);
}

/** A picture made of pieces. What has not changed keeps its element. */
export class Lienzo {
  /**
   * @param {SVGElement} lienzo
   * @param {import('./letra.mjs').Mide} mide
   */
  constructor(lienzo, mide) {
    this.lienzo = lienzo;
    this.mide = mide;
    /** @type {Map<string, SVGElement>} */
    this.dibujadas = new Map();
    /** @type {Pieza[]} */
    this.piezas = [];
    this.medida = '';
  }

  /**
   * Shows the pieces; `vista` is the part of the picture that is seen.
   * @param {any} lamina @param {Rect} vista @param {number} letra
   * @param {boolean} conMovimiento
   */
  muestra(lamina, vista, letra, conMovimiento) {
    const medida = `${vista.join(' ')} ${letra}`;
    const igual = medida === this.medida;
    if (!igual) this.reinicia(lamina, vista, medida);
    const pincel = { letra, mide: this.mide };
    const antes = igual ? this.dibujadas : new Map();
    this.dibujadas = new Map();
    for (const pieza of lamina.piezas) {
      const clave = this.claveDe(pieza);
      this.dibujadas.set(clave, antes.get(clave) ?? pinta(pincel, pieza));
    }
    this.lienzo.replaceChildren(...(this.fondo ? [this.fondo] : []), ...this.dibujadas.values());
    if (conMovimiento && igual) mueve(this.piezas, lamina.piezas, (p) => this.elementoDe(p));
    this.piezas = lamina.piezas;
  }

  /** @param {Pieza} pieza */
  claveDe(pieza) { return JSON.stringify(pieza); }

  /** @param {Pieza} pieza */
  elementoDe(pieza) { return this.dibujadas.get(this.claveDe(pieza)); }

  /** @param {any} lamina @param {Rect} vista @param {string} medida */
  reinicia(lamina, vista, medida) {
    this.medida = medida;
    this.lienzo.setAttribute('viewBox', vista.join(' '));
    this.fondo = lamina.suelo ? superficies(lamina) : null;
  }
}
