// The manual's Markdown as elements. Everything is inserted as text.
import { html } from './svg.mjs';

/** Bold, code, links to headings, pictures of cards, line breaks. */
const EnLinea =
  /\*\*(.+?)\*\*|`(.+?)`|!\[([^\]]*)\]\(carta:([a-z-]+)\)|\[([^\]]+)\]\(#([^)]+)\)|<br\s*\/?>/g;

/** @param {RegExpMatchArray} hallado @returns {Node} */
function trozo([, negrita, codigo, nombre, dibujo, enlace, ancla]) {
  if (negrita) return html('strong', {}, ...lineas(negrita));
  if (codigo) return html('code', {}, codigo);
  if (dibujo) {
    return html('img', { class: 'naipe', src: `cartas/${dibujo}.svg`, alt: nombre, width: 200,
      height: 308, loading: 'lazy' });
  }
  if (enlace) return html('a', { href: `#manual-${ancla}` }, ...lineas(enlace));
  return html('br');
}

/** @param {string} texto @returns {(Node | string)[]} */
function lineas(texto) {
  const partes = [];
  let desde = 0;
  for (const hallado of texto.matchAll(EnLinea)) {
    partes.push(texto.slice(desde, hallado.index), trozo(hallado));
    desde = hallado.index + hallado[0].length;
  }
  return [...partes, texto.slice(desde)];
}

/** @param {string} fila */
const celdas = (fila) => fila.trim().replace(/^\||\|$/g, '').split('|').map((c) => c.trim());

/** @param {string[]} renglones */
function tabla([cabeza, , ...filas]) {
  const fila = (/** @type {string} */ una, /** @type {'th' | 'td'} */ clase) =>
    html('tr', {}, ...celdas(una).map((c) => html(clase, {}, ...lineas(c))));
  return html('table', {}, html('thead', {}, fila(cabeza, 'th')),
    html('tbody', {}, ...filas.map((una) => fila(una, 'td'))));
}

/** @param {string[]} renglones */
function lista(renglones) {
  const numerada = /^\d/.test(renglones[0]);
  /** @type {string[]} */
  const entradas = [];
  for (const uno of renglones) {
    if (/^(- |\d+\. )/.test(uno)) entradas.push(uno.replace(/^(- |\d+\. )/, ''));
    else entradas[entradas.length - 1] += ` ${uno.trim()}`;
  }
  return html(numerada ? 'ol' : 'ul', {},
    ...entradas.map((una) => html('li', {}, ...lineas(una))));
}

/**
 * @param {string} renglon
 * @param {{nivel: number, titulo: string, ancla: string}[]} quedan
 */
function titulo(renglon, quedan) {
  const nivel = renglon.startsWith('## ') ? 'h4' : 'h3';
  const suyo = quedan.shift();
  return html(nivel, suyo ? { id: `manual-${suyo.ancla}` } : {},
    ...lineas(renglon.replace(/^#+ /, '')));
}

/** @param {string[]} renglones @param {any[]} quedan @returns {Node} */
function bloque(renglones, quedan) {
  const [primero] = renglones;
  if (/^##? /.test(primero)) return titulo(primero, quedan);
  if (primero.startsWith('```')) return html('pre', {}, renglones.slice(1, -1).join('\n'));
  if (primero.startsWith('|')) return tabla(renglones);
  if (/^(- |\d+\. )/.test(primero)) return lista(renglones);
  if (primero.startsWith('>')) {
    const dentro = renglones.map((uno) => uno.replace(/^>\s?/, '')).join(' ');
    return html('blockquote', {}, html('p', {}, ...lineas(dentro)));
  }
  return html('p', {}, ...lineas(renglones.join(' ')));
}

/** The blocks of a text: parted by empty lines, except in code. @param {string} texto */
function bloques(texto) {
  /** @type {string[][]} */
  const todos = [];
  let abierto = false;
  let enCodigo = false;
  for (const renglon of texto.split(/\r?\n/)) {
    const vacio = renglon.trim() === '' && !enCodigo;
    if (!vacio && !abierto) todos.push([]);
    if (!vacio) todos[todos.length - 1].push(renglon);
    if (renglon.startsWith('```')) enCodigo = !enCodigo;
    abierto = !vacio && (enCodigo || !/^(##? |```)/.test(renglon));
  }
  return todos;
}

/**
 * A chapter as elements. Its headings take their anchors from `quedan`, in order.
 * @param {string} texto
 * @param {{nivel: number, titulo: string, ancla: string}[]} quedan
 */
export const capitulo = (texto, quedan) => bloques(texto).map((uno) => bloque(uno, quedan));
