// The parts of the window: where each lies, and what it shows.
import { Lienzo } from './mesa.mjs';
import { html, porId } from './svg.mjs';

/** @typedef {import('./signos.mjs').Rect} Rect */

const SinMovimiento = matchMedia('(prefers-reduced-motion: reduce)');
/** Letters smaller than this are not drawn on a small screen. */
const LetraMenor = 9.5;
const Partes = ['texto1', 'texto2', 'texto3', 'rotuloTexto1', 'rotuloTexto3', 'mesa', 'tanteo',
  'ayuda'];

/** @param {HTMLElement | SVGElement} parte @param {Rect} donde */
function coloca(parte, [x, y, ancho, alto]) {
  parte.toggleAttribute('hidden', ancho <= 0 || alto <= 0);
  Object.assign(parte.style, { left: `${x}px`, top: `${y}px`, width: `${ancho}px`,
    height: `${alto}px` });
}

/** How high a text box is with all its lines. @param {HTMLTextAreaElement} texto */
function altoCompleto(texto) {
  const antes = texto.style.height;
  texto.style.height = '0';
  const alto = texto.scrollHeight + 2;
  texto.style.height = antes;
  return alto;
}

export class Ventana {
  /**
   * @param {any} tasca
   * @param {(texto: string) => string} paraVer
   * @param {import('./letra.mjs').Letra} letra
   * @param {{mesa: boolean, movimiento: boolean}} ajustes
   */
  constructor(tasca, paraVer, letra, ajustes) {
    this.tasca = tasca;
    this.paraVer = paraVer;
    this.letra = letra;
    this.ajustes = ajustes;
    this.ventana = porId('ventana');
    this.texto1 = /** @type {HTMLTextAreaElement} */ (porId('texto1'));
    this.texto2 = /** @type {HTMLTextAreaElement} */ (porId('texto2'));
    this.texto3 = /** @type {HTMLInputElement} */ (porId('texto3'));
    this.ayuda = porId('ayuda');
    this.continuar = porId('continuar');
    this.mesa = new Lienzo(/** @type {any} */ (document.getElementById('mesa')), letra.mide);
    this.tanteo = new Lienzo(/** @type {any} */ (document.getElementById('tanteo')), letra.mide);
    /** The size of the letters in the picture. */
    this.letraMesa = 0;
    /** @type {any} */
    this.lamina = null;
    /** @type {any} */
    this.partes = null;
    new ResizeObserver(() => this.redibuja()).observe(this.ventana);
  }

  get abierta() { return !this.ventana.hidden; }

  abre() { this.ventana.hidden = false; }

  cierra() { this.ventana.hidden = true; }

  /** @param {string[]} textos */
  muestraTextos([texto1, texto2, texto3]) {
    this.texto1.value = this.paraVer(texto1);
    const dicho = this.paraVer(texto2);
    const cambia = this.texto2.value !== dicho;
    this.texto2.value = dicho;
    this.texto3.value = this.paraVer(texto3);
    this.dibuja(true);
    if (cambia) this.texto2.scrollTop = this.texto2.scrollHeight;
  }

  /** @param {string} texto */
  muestraAyuda(texto) { this.ayuda.textContent = texto; }

  redibuja() {
    if (this.abierta && this.partes) this.dibuja(false);
  }

  /** @param {boolean} conMovimiento */
  dibuja(conMovimiento) {
    this.reparte();
    const mueve = conMovimiento && this.ajustes.movimiento && !SinMovimiento.matches;
    if (this.dibujaMesa) this.pintaMesa(mueve);
    else this.lamina = null;
    this.colocaContinuar();
    this.cuentaLaMesa();
  }

  get dibujaMesa() { return this.partes.mesa[2] > 0; }

  /** @param {boolean} mueve */
  pintaMesa(mueve) {
    const { mesa, tanteo } = this.partes;
    this.letra.deLaMesa = this.letraMesa;
    const orla = this.orla();
    const [ancho, alto] = [mesa[2] + 2 * orla, mesa[3] + 2 * orla];
    this.lamina = this.tasca.lamina(ancho, alto, this.letraMesa);
    const enReposo = mueve && this.lamina.toca === 'enter';
    this.mesa.muestra(this.lamina, [orla, orla, mesa[2], mesa[3]], this.letraMesa, enReposo);
    if (tanteo[2] <= 0) return;
    const marcador = this.tasca.marcador(tanteo[2], tanteo[3], this.letraMesa);
    this.tanteo.muestra(marcador, [0, 0, tanteo[2], tanteo[3]], this.letraMesa, enReposo);
  }

  /** On a small screen the outermost of the picture, only floor, is cut off. */
  orla() { return this.partes.modo === 'estrecho' ? Math.round(0.7 * this.letraMesa) : 0; }

  /** A rectangle of the picture in the window. @param {number[]} r @returns {Rect} */
  enLaVentana([x, y, ancho, alto]) {
    const [dx, dy] = this.partes.mesa;
    return [x + dx - this.orla(), y + dy - this.orla(), ancho, alto];
  }

  /** Decides the arrangement and puts every part in its place. */
  reparte() {
    const { clientWidth: ancho, clientHeight: alto } = this.ventana;
    this.ventana.classList.remove('estrecho');
    this.letraMesa = this.letra.pixeles;
    this.partes = this.repartoAncho(ancho, alto);
    if (this.partes.modo === 'soloTexto' && this.ajustes.mesa && Math.min(ancho, alto) >= 250) {
      this.ventana.classList.add('estrecho');
      this.partes = ancho > alto ? this.tumbado(ancho, alto) : this.dePie(ancho, alto);
    }
    this.ventana.classList.toggle('soloTexto', !this.dibujaMesa);
    for (const parte of Partes) {
      coloca(/** @type {any} */ (document.getElementById(parte)), this.partes[parte]);
    }
  }

  /** @param {number} ancho @param {number} alto */
  repartoAncho(ancho, alto) {
    const linea = parseFloat(getComputedStyle(this.texto1).lineHeight);
    const estilo = getComputedStyle(this.texto1);
    const letra = this.letra.pixeles;
    const medidas = { ancho, alto, letra, quiereMesa: this.ajustes.mesa,
      altoTanteo: Math.round(letra * 2.2), anchoRotulo: Math.round(letra * 16),
      altoRotulo: Math.round(letra * 1.3), altoLinea: linea,
      altoAyuda: Math.round(letra * (ancho < 52 * letra ? 2.5 : 1.3)),
      margenTexto: parseFloat(estilo.paddingTop) + parseFloat(estilo.paddingBottom) + 2,
      altoTexto1: 3 * linea };
    const primero = this.tasca.reparto(medidas);
    this.texto1.style.width = `${primero.texto1[2]}px`;
    this.texto1.hidden = false;
    return this.tasca.reparto({ ...medidas, altoTexto1: altoCompleto(this.texto1) });
  }

  /** A small screen, upright. @param {number} ancho @param {number} alto */
  dePie(ancho, alto) {
    const f = this.letra.pixeles;
    const m = 4;
    const lado = ancho - 2 * m;
    const altoTexto3 = Math.round(1.7 * f);
    this.texto1.style.width = `${lado}px`;
    const altoTexto1 = Math.min(altoCompleto(this.texto1), Math.round(4.4 * f));
    const cabe = alto - altoTexto3 - altoTexto1 - 4 * m;
    const altoMesa = Math.round(Math.min(Math.max(cabe - 7 * f, 0.66 * cabe), 1.3 * ancho));
    this.letraMesa = Math.min(f, Math.max(LetraMenor, Math.min(ancho, altoMesa) / 34));
    const mesa = [0, altoTexto3 + 2 * m, ancho, altoMesa];
    const y2 = mesa[1] + altoMesa + m;
    const y1 = alto - altoTexto1 - m;
    return this.pequeno({ mesa, texto3: [m, m, lado, altoTexto3],
      texto2: [m, y2, lado, y1 - y2 - m], texto1: [m, y1, lado, altoTexto1] });
  }

  /** A small screen on its side. @param {number} ancho @param {number} alto */
  tumbado(ancho, alto) {
    const f = this.letra.pixeles;
    const m = 4;
    const anchoMesa = Math.round(Math.min(ancho * 0.64, 1.45 * alto));
    const lado = ancho - anchoMesa - 2 * m;
    const altoTexto3 = Math.round(1.7 * f);
    this.texto1.style.width = `${lado}px`;
    const altoTexto1 = Math.min(altoCompleto(this.texto1), Math.round(0.4 * alto));
    this.letraMesa = Math.min(f, Math.max(LetraMenor, Math.min(anchoMesa / 40, alto / 28)));
    const x = anchoMesa + m;
    const y2 = altoTexto3 + 2 * m;
    const y1 = alto - altoTexto1 - m;
    return this.pequeno({ mesa: [0, 0, anchoMesa, alto], texto3: [x, m, lado, altoTexto3],
      texto2: [x, y2, lado, y1 - y2 - m], texto1: [x, y1, lado, altoTexto1] });
  }

  /** @param {Record<string, number[]>} partes */
  pequeno(partes) {
    const nada = [0, 0, 0, 0];
    return { modo: 'estrecho', tanteo: nada, rotuloTexto1: nada, rotuloTexto3: nada, ayuda: nada,
      ...partes };
  }

  /** The key cap as a real button. */
  colocaContinuar() {
    const { texto1 } = this.partes;
    const tapa = this.lamina?.toca === 'enter' ? this.lamina.enter : [0, 0, 0, 0];
    const ancho = 10 * this.letra.pixeles;
    const alto = 2.2 * this.letra.pixeles;
    const bajo = [texto1[0] + texto1[2] - ancho - 4, texto1[1] - alto - 4, ancho, alto];
    coloca(this.continuar, this.lamina ? this.enLaVentana(tapa) : /** @type {Rect} */ (bajo));
  }

  /** The table in sentences, for who reads it with a screen reader. */
  cuentaLaMesa() {
    const lista = porId('mesaHablada').querySelector('ul');
    lista?.replaceChildren(...this.tasca.mesaHablada().map(
      (/** @type {any} */ frase) => html('li', {}, this.paraVer(frase.texto))));
  }

  /** The place for a box of that size. @param {number} ancho @param {number} alto */
  sitioDeCaja(ancho, alto) {
    const { clientWidth, clientHeight } = this.ventana;
    const ventana = [0, 0, clientWidth, clientHeight];
    const nunca = [this.ultimaLinea()];
    if (!this.lamina) {
      return this.tasca.sitioDeCaja(ancho, alto, ventana, [0, 0, 0, 0],
        [...nunca, this.partes.texto1], []);
    }
    const alli = (/** @type {number[]} */ r) => this.enLaVentana(r);
    nunca.push(alli(this.lamina.mano));
    if (this.lamina.pizarra[2] > 0) nunca.push(alli(this.lamina.pizarra));
    const seLeen = ['bocadillo', 'placa', 'distintivo'];
    const mejorNo = this.lamina.piezas.filter((/** @type {any} */ p) => seLeen.includes(p.pieza))
      .map((/** @type {any} */ p) => alli(p.donde));
    return this.tasca.sitioDeCaja(ancho, alto, ventana, alli(this.lamina.libre), nunca, mejorNo);
  }

  /** Where the last line of the transcript stands. @returns {number[]} */
  ultimaLinea() {
    const [x, y, ancho, alto] = this.partes.texto2;
    const linea = parseFloat(getComputedStyle(this.texto2).lineHeight);
    const fondo = Math.min(altoCompleto(this.texto2), alto);
    return [x, y + fondo - linea - 6, ancho, linea];
  }
}
