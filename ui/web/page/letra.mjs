// The size of the letters, and how wide texts are.

/** @typedef {(texto: string, factor: number, negrita: boolean) => number} Mide */

const Familia = '"Noto Sans", "DejaVu Sans", system-ui, sans-serif';
const Menor = 0.6;
const Mayor = 2.5;
const Paso = 0.1;
/** Percent of the browser's own size: fingers need larger letters. */
const Normal = matchMedia('(pointer: coarse)').matches ? 94 : 86;
const lapiz = /** @type {CanvasRenderingContext2D} */ (
  document.createElement('canvas').getContext('2d'));

/** The letters of the page: their size follows the browser's and the player's wish. */
export class Letra {
  constructor() {
    this.aumento = 1;
    /** The size of the letters of the picture that is being laid out. */
    this.deLaMesa = 16;
    /** @type {Map<string, number>} */
    this.anchos = new Map();
    /** @type {Mide} */
    this.mide = (texto, factor, negrita) => this.ancho(texto, factor, negrita);
  }

  /** Pixels of a letter of normal size. */
  get pixeles() {
    return parseFloat(getComputedStyle(document.documentElement).fontSize);
  }

  /** @param {number} aumento */
  pon(aumento) {
    const cabe = Math.min(Mayor, Math.max(Menor, Math.round(aumento * 10) / 10));
    this.aumento = Number.isFinite(cabe) ? cabe : 1;
    document.documentElement.style.fontSize = `${this.aumento * Normal}%`;
    this.anchos.clear();
  }

  mayor() { this.pon(this.aumento + Paso); }

  menor() { this.pon(this.aumento - Paso); }

  normal() { this.pon(1); }

  /** @type {Mide} */
  ancho(texto, factor, negrita) {
    const fuente = `${negrita ? 700 : 400} ${factor * this.deLaMesa}px ${Familia}`;
    const clave = `${fuente}|${texto}`;
    const conocido = this.anchos.get(clave);
    if (conocido !== undefined) return conocido;
    lapiz.font = fuente;
    const ancho = lapiz.measureText(texto).width;
    if (this.anchos.size > 2000) this.anchos.clear();
    this.anchos.set(clave, ancho);
    return ancho;
  }
}
