// The pieces of the drawn table, one function each.
import * as signos from './signos.mjs';
import { svg } from './svg.mjs';

/**
 * @typedef {import('./signos.mjs').Rect} Rect
 * @typedef {{pieza: string, donde: Rect, [campo: string]: any}} Pieza
 * @typedef {[number, boolean]} Tipo
 * @typedef {{letra: number, mide: (texto: string, factor: number, negrita: boolean) => number}}
 *   Pincel
 */

const Fino = 1.2;
const Marcado = 2.6;
const Proporcion = 200 / 308;

/** @param {string} texto */
const unaLinea = (texto) => texto.replace(/\s*[\r\n]+/g, ' ').replace(/\0/g, '');

/**
 * @param {Rect} r @param {number} rx @param {string} fill
 * @param {string} [stroke] @param {number} [grueso]
 */
export function caja([x, y, width, height], rx, fill, stroke = 'none', grueso = 0) {
  const redondeo = Math.min(rx, height / 2, width / 2);
  return svg('rect', { x, y, width, height, rx: redondeo, fill, stroke, 'stroke-width': grueso });
}

/** @param {Rect} r @param {number} cuanto @returns {Rect} */
export const encoge = ([x, y, ancho, alto], cuanto) =>
  [x + cuanto, y + cuanto, ancho - 2 * cuanto, alto - 2 * cuanto];

/**
 * One line of text in the middle of `r`, or at one of its sides.
 * @param {Pincel} p @param {Rect} r @param {string} texto @param {Tipo} tipo
 * @param {string} fill @param {'start' | 'middle' | 'end'} [lado]
 */
function escribe(p, [x, y, ancho, alto], texto, tipo, fill, lado = 'middle') {
  const donde = { start: x, middle: x + ancho / 2, end: x + ancho }[lado];
  return svg('text', { x: donde, y: y + alto / 2, fill, 'text-anchor': lado,
    'font-size': tipo[0] * p.letra, 'font-weight': tipo[1] ? 700 : 400,
    'dominant-baseline': 'central' }, unaLinea(texto));
}

/** The card's shadow. @param {Rect} r @param {number} alto */
function sombra([x, y, ancho, altura], alto) {
  const baja = Math.max(1, alto * 0.012);
  const r = caja([x + baja * 0.4, y + baja, ancho, altura], alto * 0.042, '#000');
  r.setAttribute('class', 'sombra');
  return r;
}

/** @param {Rect} r @param {string} dibujo @param {boolean} girada */
function naipe([x, y, ancho, alto], dibujo, girada) {
  const largo = girada ? ancho : alto;
  const corto = largo * Proporcion;
  const [cx, cy] = [x + ancho / 2, y + alto / 2];
  const imagen = svg('image', { href: `cartas/${dibujo}.svg`, class: 'naipe',
    x: cx - corto / 2, y: cy - largo / 2, width: corto, height: largo });
  if (girada) imagen.setAttribute('transform', `rotate(90 ${cx} ${cy})`);
  return svg('g', {}, sombra([x, y, ancho, alto], largo), imagen);
}

/** @param {Pieza} b @param {number} f @returns {string} */
function puntaDe({ donde: [x, y, ancho, alto], punta, puntaX, puntaY }, f) {
  const solape = 2;
  if (punta === 'abajo') {
    const fondo = y + alto - solape;
    return `M${puntaX - f * 0.6} ${fondo}L${puntaX} ${puntaY}L${puntaX + f * 0.6} ${fondo}`;
  }
  const lado = punta === 'izquierda' ? x + solape : x + ancho - solape;
  return `M${lado} ${puntaY - f * 0.55}L${puntaX} ${puntaY}L${lado} ${puntaY + f * 0.55}`;
}

/** @param {number} pareja */
const colorDe = (pareja) => (pareja === 1 ? 'var(--nuestra)' : 'var(--suya)');

/** @param {number} pareja */
const tizaDe = (pareja) => (pareja === 1 ? 'var(--pizarra-nuestra)' : 'var(--pizarra-suya)');

/** @param {Pincel} p @param {Pieza} celda @param {string} color */
function estadoDeCelda(p, celda, color) {
  const f = p.letra;
  const [x, y, ancho] = celda.donde;
  const texto = p.mide(celda.estado, celda.tipo[0], celda.tipo[1]);
  const signo = celda.de === null ? 0 : f * 1.2;
  const izquierda = x + (ancho - texto - signo) / 2;
  const medio = y + f * 2.25;
  const tinta = celda.ordago ? '#FFF' : color;
  const partes = [escribe(p, [izquierda + signo, y + f * 1.6, texto, f * 1.3], celda.estado,
    celda.tipo, tinta, 'start')];
  if (celda.de !== null) {
    const suyo = celda.ordago ? '#FFF' : tizaDe(celda.de);
    partes.push(signos.pareja(izquierda + f * 0.4, medio, f * 0.36, celda.de, suyo));
  }
  return partes;
}

/** @param {Pincel} p @param {Pieza} celda */
function celda(p, celda) {
  const f = p.letra;
  const [x, y, ancho, alto] = celda.donde;
  const grupo = svg('g');
  if (!celda.primera) {
    grupo.append(svg('path', { d: `M${x} ${y + f * 0.6}V${y + alto - f * 0.6}`,
      stroke: 'var(--tiza-tenue)', 'stroke-width': 1, opacity: 0.5 }));
  }
  const hueco = encoge(celda.donde, 2.5);
  if (celda.ordago) grupo.append(caja(hueco, f * 0.3, 'var(--ordago)', 'var(--marca)', Marcado));
  if (celda.marca === 'enJuego' && !celda.ordago) {
    grupo.append(caja(hueco, f * 0.3, 'none', 'var(--marca)', Marcado));
  }
  const marcada = celda.marca !== 'ninguna';
  const tiza = celda.porJugar ? 'var(--tiza-tenue)' : 'var(--tiza)';
  const color = celda.ordago ? '#FFF' : marcada ? 'var(--marca)' : tiza;
  grupo.append(escribe(p, [x, y + f * 0.25, ancho, f * 1.4],
    marcada ? `▸ ${celda.nombre}` : celda.nombre, [1.06, marcada], color));
  grupo.append(...estadoDeCelda(p, celda, tiza));
  return grupo;
}

/** @param {Pincel} p @param {Pieza} placa */
function placa(p, placa) {
  const f = p.letra;
  const [x, y, ancho, alto] = placa.donde;
  const suya = placa.de % 2;
  const linea = placa.leToca ? 'var(--marca)' : 'var(--placa-borde)';
  const grupo = svg('g', {},
    caja(placa.donde, alto / 2, 'var(--placa)', linea, placa.leToca ? 3 : Fino),
    signos.pareja(x + f * 1.05, y + alto / 2, f * 0.42, suya, colorDe(suya)),
    escribe(p, [x + f * 1.8, y, ancho, alto], placa.nombre, placa.tipo, 'var(--placa-texto)',
      'start'));
  if (placa.mano) grupo.append(signos.mano(x + ancho - f * 1.25, y + alto / 2, f * 1.6));
  return grupo;
}

/** @param {Pincel} p @param {Pieza} distintivo */
function distintivo(p, { donde, clase, texto, tipo }) {
  const radio = donde[3] / 2;
  if (clase === 'mano') {
    return svg('g', {}, caja(donde, radio, 'var(--marca)'),
      escribe(p, donde, texto, tipo, 'var(--tinta)'));
  }
  const si = clase === 'si';
  return svg('g', {},
    caja(donde, radio, 'var(--pano-oscuro)', si ? 'var(--pano-linea)' : 'none', si ? Fino : 0),
    escribe(p, donde, texto, tipo, si ? 'var(--si)' : 'var(--no)'));
}

/** @param {Pincel} p @param {Pieza} bocadillo */
function bocadillo(p, bocadillo) {
  const f = p.letra;
  const [x, y, ancho] = bocadillo.donde;
  const linea = bocadillo.ultimo ? 'var(--marca)' : 'var(--placa-borde)';
  const grueso = bocadillo.ultimo ? Marcado : Fino;
  const punta = svg('path', { d: puntaDe(bocadillo, f), fill: 'var(--placa)', stroke: linea,
    'stroke-width': grueso });
  const lineas = bocadillo.lineas.map((/** @type {string} */ texto, /** @type {number} */ i) =>
    escribe(p, [x + f * 0.68, y + f * (0.52 + 1.4 * i), ancho, f * 1.4], texto,
      [bocadillo.letras, false], 'var(--placa-texto)', 'start'));
  return svg('g', {}, caja(bocadillo.donde, f * 0.7, 'var(--placa)', linea, grueso), punta,
    ...lineas);
}

/** @param {Pincel} p @param {Pieza} tecla */
function tecla(p, { donde: [x, y, ancho, alto], texto }) {
  const f = p.letra;
  /** @type {Rect} */
  const tapa = [x, y, ancho, alto - f * 0.22];
  const largo = p.mide(texto, 1.15, true);
  const flecha = f * 1.5;
  const izquierda = x + (ancho - largo - flecha) / 2;
  return svg('g', { class: 'tecla' }, caja([x, y, ancho, alto], f * 0.6, 'var(--canto)'),
    caja(tapa, f * 0.6, 'var(--placa)', 'var(--placa-borde)', Fino),
    escribe(p, [izquierda, y, largo, tapa[3]], texto, [1.15, true], 'var(--placa-texto)'),
    signos.retorno(izquierda + largo + flecha * 0.62, y + tapa[3] / 2, f * 2.4));
}

/** @param {Pincel} p @param {Pieza} turno */
function turno(p, { donde, texto }) {
  const f = p.letra;
  const [x, y, , alto] = donde;
  const medio = y + alto / 2;
  const punta = `M${x - f * 0.55} ${medio}L${x + f * 0.3} ${medio - f * 0.55}V${medio + f * 0.55}Z`;
  return svg('g', {}, caja(donde, alto / 2, 'var(--marca)'),
    svg('path', { d: punta, fill: 'var(--marca)' }),
    escribe(p, donde, texto, [1, true], 'var(--tinta)'));
}

/** @param {Pincel} p @param {Pieza} monton */
function monton(p, { donde: [x, y, ancho, alto], rotulo, grosor, texto }) {
  const cartas = Array.from({ length: grosor }, (_, i) =>
    naipe([x - alto * 0.012 * i, y - alto * 0.016 * i, ancho, alto], 'dorso', false));
  return svg('g', {}, ...cartas, escribe(p, rotulo, texto, [0.9, false], 'var(--pano-texto)'));
}

/** @param {Pincel} _ @param {Pieza} ficha */
function ficha(_, { donde, clase, forma }) {
  const [x, y, ancho, alto] = donde;
  const [cx, cy] = [x + ancho / 2, y + alto / 2];
  switch (clase) {
    case 'piedra': return signos.piedra(donde, forma);
    case 'amarraco': return signos.amarraco(donde);
    case 'vista':
      return caja(encoge(donde, 0.5), ancho / 2, 'var(--piedra-luz)', 'var(--piedra-borde)', 1);
    case 'nuestra': return signos.pareja(cx, cy, ancho * 0.46, 1, tizaDe(1));
    default: return signos.pareja(cx, cy, ancho * 0.44, 0, tizaDe(0));
  }
}

/** @param {Pincel} _ @param {Pieza} adorno */
function adorno(_, { donde, clase }) {
  const { estrella, vaso, aceitunas } = signos;
  const dibuja = { estrella, vaso, aceitunas }[/** @type {'vaso'} */ (clase)];
  return svg('g', { class: 'adorno' }, dibuja(donde));
}

/** @type {Record<string, (p: Pincel, pieza: Pieza) => SVGElement>} */
const Pinta = {
  adorno, monton, celda, ficha, placa, distintivo, bocadillo, tecla, turno,
  carta: (_, { donde, dibujo, girada }) => naipe(donde, dibujo, girada),
  pizarra: (p, { donde }) => svg('g', {}, caja(donde, p.letra * 0.5, 'var(--canto)'),
    caja(encoge(donde, 3), p.letra * 0.35, 'var(--pizarra)')),
  texto: (p, { donde, texto, tipo, tenue, derecha }) => escribe(p, donde, texto, tipo,
    tenue ? 'var(--texto-tenue)' : 'var(--texto)', derecha ? 'end' : 'start'),
  signo: (_, { donde: [x, y, ancho, alto], de }) =>
    signos.pareja(x + ancho / 2, y + alto / 2, ancho / 2, de, colorDe(de)),
  casilla: (_, { donde, vaca, ganada }) =>
    (vaca ? signos.vaca(donde, ganada) : signos.juego(donde, ganada)),
};

/**
 * The drawing of a piece.
 * @param {Pincel} pincel @param {Pieza} pieza
 */
export const pinta = (pincel, pieza) =>
  svg('g', { class: 'pieza' }, Pinta[pieza.pieza](pincel, pieza));
