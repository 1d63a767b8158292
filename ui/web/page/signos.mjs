// The small drawings: the pareja's sign, the hand, stones, cows, tallies, ornaments.
import { svg } from './svg.mjs';

/** @typedef {[number, number, number, number]} Rect */

/** @param {Rect} r @returns {[number, number]} */
const centroDe = ([x, y, ancho, alto]) => [x + ancho / 2, y + alto / 2];

/**
 * A group whose origin is the middle of a drawing.
 * @param {[number, number]} centro
 * @param {number} escala
 * @param {number} giro in degrees
 * @param {SVGElement[]} trazos
 */
function dentro([x, y], escala, giro, ...trazos) {
  const lugar = `translate(${x} ${y}) scale(${escala}) rotate(${giro})`;
  return svg('g', { transform: lugar, 'stroke-linejoin': 'round', 'stroke-linecap': 'round' },
    ...trazos);
}

/** @param {string} d @param {string} fill @param {string} [stroke] @param {number} [grueso] */
const trazo = (d, fill, stroke = 'none', grueso = 0) =>
  svg('path', { d, fill, stroke, 'stroke-width': grueso });

/** @param {number} cx @param {number} cy @param {number} r @param {string} fill */
const disco = (cx, cy, r, fill) => svg('circle', { cx, cy, r, fill });

/** @param {number} r @param {string} fill @param {string} stroke @param {number} grueso */
const aro = (r, fill, stroke, grueso) =>
  svg('circle', { r, fill, stroke, 'stroke-width': grueso });

/**
 * A disc for pareja 1, a lozenge for pareja 0.
 * @param {number} x @param {number} y @param {number} radio
 * @param {number} pareja @param {string} color
 */
export function pareja(x, y, radio, pareja, color) {
  if (pareja === 1) return svg('circle', { cx: x, cy: y, r: radio, fill: color });
  const r = radio * 1.2;
  return svg('path', { d: `M${x} ${y - r}l${r} ${r}l${-r} ${r}l${-r} ${-r}Z`, fill: color });
}

/** The open hand of the mano. @param {number} x @param {number} y @param {number} alto */
export function mano(x, y, alto) {
  const palma = 'M-7.6 0L7.8 0L7 7C6.4 10.6 3 12 0 12C-3.6 12 -6 10.4 -7 7Z';
  /** @type {[string, number][]} */
  const dedos = [['M-5.6 1L-7 -7.4', 3.6], ['M-1.6 1L-2.2 -10', 3.7], ['M2.4 1L2.8 -9.4', 3.6],
    ['M6 1L7.2 -6', 3.2], ['M-6 6L-10.6 0.6', 3.5]];
  return dentro([x, y], alto / 24, 0,
    trazo(palma, 'none', 'var(--tinta)', 3),
    ...dedos.map(([d, grueso]) => trazo(d, 'none', 'var(--tinta)', grueso + 3)),
    trazo(palma, 'var(--piel)'),
    ...dedos.map(([d, grueso]) => trazo(d, 'none', 'var(--piel)', grueso)));
}

const Piedras = [
  'M-7 1C-7.4 -4 -3 -6.4 1 -6C5.4 -5.6 7.6 -2 7 2C6.4 5.4 2 6.4 -2 6C-5 5.6 -6.8 3.6 -7 1Z',
  'M-6.6 2C-7.4 -2 -4.4 -5.6 -0.4 -6.2C4 -6.8 7.4 -3 7 0.8C6.6 4.6 3 6.2 -0.6 6.2' +
    'C-4 6.2 -6.2 4.4 -6.6 2Z'];

/** @param {Rect} r @param {number} forma */
export function piedra(r, forma) {
  return dentro(centroDe(r), r[2] / 16, ((forma * 47) % 60) - 30,
    trazo(Piedras[forma % 2], 'var(--piedra)', 'var(--piedra-borde)', 1.5),
    trazo('M-3.6 -2.4C-2 -4 0.6 -4.4 2.4 -3.8', 'none', 'var(--piedra-luz)', 1.6));
}

/** The stone that stands for five. @param {Rect} r */
export function amarraco(r) {
  return dentro(centroDe(r), r[2] / 24, 0,
    trazo('M-11 1.6C-11.4 -5.6 -6 -9.6 1 -9.4C7.6 -9.2 11.6 -5 11 1.2C10.4 7 5 9.4 -1 9.2' +
      'C-7 9 -10.8 6.6 -11 1.6Z', 'var(--amarraco)', 'var(--piedra-borde)', 1.6),
    trazo('M3.6 -5L-2.4 -5L-3 -0.6C-2 -1.4 -1 -1.6 0 -1.6C2.4 -1.6 4 0 4 2.2C4 4.6 2.2 6 -0.2 6' +
      'C-1.8 6 -3 5.4 -3.6 4.2', 'none', 'var(--amarraco-texto)', 1.9));
}

const Cara = 'M-6.6 -5.4C-6.6 -8.4 6.6 -8.4 6.6 -5.4L5.4 4C5 8.6 -5 8.6 -5.4 4Z';
const Orejas = 'M-6.4 -4.6C-9 -6.4 -11.4 -5.6 -12 -3.6C-10.2 -1.8 -8 -2 -6 -2.6Z' +
  'M6.4 -4.6C9 -6.4 11.4 -5.6 12 -3.6C10.2 -1.8 8 -2 6 -2.6Z';
const Cuernos = 'M-5 -7C-6.6 -8 -7 -10 -6.4 -11.4M5 -7C6.6 -8 7 -10 6.4 -11.4';

function vacaGanada() {
  const borde = 'var(--piedra-borde)';
  return [
    trazo(Cuernos, 'none', 'var(--texto)', 2),
    trazo(Orejas, 'var(--castano)', borde, 1.4),
    trazo(Cara, 'var(--papel)', borde, 1.5),
    trazo('M0 -7.4C4 -7.6 6.4 -7 6.5 -5.4L6 -1C3 -1 0.6 -3 0 -7.4Z', 'var(--castano)'),
    trazo('M-5.4 2.6C-3 0.8 3 0.8 5.4 2.6L5.3 4C5 8.4 -5 8.4 -5.3 4Z', 'var(--piel)', borde, 1.2),
    ...[-2.9, 2.9].map((x) => disco(x, -2.4, 1.1, borde)),
    ...[-2, 2].map((x) => disco(x, 4.4, 0.8, borde))];
}

function vacaPorGanar() {
  const tenue = 'var(--texto-tenue)';
  return [trazo(Orejas, 'none', tenue, 1.3), trazo(Cara, 'none', tenue, 1.3),
    trazo(Cuernos, 'none', tenue, 1.5)];
}

/** @param {Rect} r @param {boolean} ganada */
export function vaca(r, ganada) {
  const [x, y] = centroDe(r);
  return dentro([x, y + r[2] / 18], r[2] / 26, 0, ...(ganada ? vacaGanada() : vacaPorGanar()));
}

/** The place of a juego. @param {Rect} r @param {boolean} ganado */
export function juego(r, ganado) {
  const caja = svg('rect', { x: -6.8, y: -9, width: 13.6, height: 18, rx: 3,
    fill: ganado ? 'var(--pizarra)' : 'none', stroke: 'var(--texto-tenue)', 'stroke-width': 1.3 });
  const raya = ganado ? [trazo('M1.6 -5.6L-1.6 5.6', 'none', 'var(--tiza)', 2.6)] : [];
  return dentro(centroDe(r), r[2] / 15, 0, caja, ...raya);
}

/** The arrow of the Enter key. @param {number} x @param {number} y @param {number} alto */
export function retorno(x, y, alto) {
  return dentro([x, y], alto, 0,
    trazo('M0.2 -0.22L0.2 0.08L-0.2 0.08M-0.05 -0.08L-0.22 0.08L-0.05 0.24', 'none',
      'var(--placa-texto)', 0.075));
}

/** @param {Rect} r */
export function vaso(r) {
  const sombra = svg('circle', { cx: 0.08, cy: 0.12, r: 1, fill: '#000', opacity: 0.22 });
  const [x1, y1] = [0.52 * Math.cos(1.658), -0.52 * Math.sin(1.658)];
  const [x2, y2] = [0.52 * Math.cos(2.793), -0.52 * Math.sin(2.793)];
  return dentro(centroDe(r), r[2] / 2, 0, sombra,
    aro(1, '#CFE0DA', 'var(--piedra-borde)', 0.09),
    aro(0.76, '#7A1F2B', 'var(--piedra-borde)', 0.07),
    trazo(`M${x1} ${y1}A0.52 0.52 0 0 0 ${x2} ${y2}`, 'none', '#D98A93', 0.1));
}

/** @param {Rect} r */
export function aceitunas(r) {
  const sombra = svg('circle', { cx: 0.06, cy: 0.1, r: 1, fill: '#000', opacity: 0.22 });
  const sitios = [[-0.3, -0.28, 20], [0.2, -0.36, -30], [0.38, 0.1, 60], [-0.02, 0.06, 0],
    [-0.38, 0.22, -50], [0.12, 0.42, 15]];
  const una = (/** @type {number[]} */ [x, y, giro]) => dentro([x, y], 1 / 30, giro,
    svg('ellipse', { rx: 6.4, ry: 4.8, fill: '#7E9A3B', stroke: 'var(--piedra-borde)',
      'stroke-width': 1.6 }),
    disco(4, 0, 1.5, '#BF2F2B'));
  return dentro(centroDe(r), r[2] / 2, 0, sombra,
    aro(1, 'var(--papel)', 'var(--piedra-borde)', 0.07),
    aro(0.76, 'none', '#2C6DB2', 0.06), ...sitios.map(una));
}

/** @param {number} radio @param {number} hueco @returns {string} */
function puntas(radio, hueco) {
  const todas = Array.from({ length: 16 }, (_, i) => {
    const r = i % 2 === 0 ? radio : hueco;
    const giro = (i * Math.PI) / 8;
    return `${(r * Math.sin(giro)).toFixed(2)} ${(-r * Math.cos(giro)).toFixed(2)}`;
  });
  return `M${todas.join('L')}Z`;
}

/** The inlay of the cloth. @param {Rect} r */
export function estrella(r) {
  const k = r[2] / 208;
  const linea = trazo(puntas(103, 78.8), 'none', 'var(--pano-linea)', 1.3 / k);
  linea.setAttribute('opacity', '0.3');
  return dentro(centroDe(r), k, 0, trazo(puntas(92, 70), 'var(--pano-oscuro)'),
    trazo(puntas(52, 22), 'var(--pano)'), linea);
}
