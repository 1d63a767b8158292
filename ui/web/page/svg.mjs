// Making elements, of SVG and of HTML.

const SVG = 'http://www.w3.org/2000/svg';

/**
 * @param {Element} elemento
 * @param {Record<string, string | number>} atributos
 * @param {(Node | string)[]} hijos
 */
function llena(elemento, atributos, hijos) {
  for (const [nombre, valor] of Object.entries(atributos)) {
    elemento.setAttribute(nombre, String(valor));
  }
  elemento.append(...hijos);
}

/**
 * An SVG element. Strings among the children become text.
 * @param {string} nombre
 * @param {Record<string, string | number>} [atributos]
 * @param {(Node | string)[]} hijos
 * @returns {SVGElement}
 */
export function svg(nombre, atributos = {}, ...hijos) {
  const elemento = document.createElementNS(SVG, nombre);
  llena(elemento, atributos, hijos);
  return elemento;
}

/**
 * An HTML element. Strings among the children become text.
 * @template {keyof HTMLElementTagNameMap} N
 * @param {N} nombre
 * @param {Record<string, string | number>} [atributos]
 * @param {(Node | string)[]} hijos
 * @returns {HTMLElementTagNameMap[N]}
 */
export function html(nombre, atributos = {}, ...hijos) {
  const elemento = document.createElement(nombre);
  llena(elemento, atributos, hijos);
  return elemento;
}

/**
 * A button that calls `alPulsar`.
 * @param {string} rotulo
 * @param {() => void} alPulsar
 * @param {Record<string, string | number>} [atributos]
 */
export function boton(rotulo, alPulsar, atributos = {}) {
  const nuevo = html('button', { type: 'button', ...atributos }, rotulo);
  nuevo.addEventListener('click', alPulsar);
  return nuevo;
}

/**
 * The element of the page with that id. Throws if there is none.
 * @param {string} id
 * @returns {HTMLElement}
 */
export function porId(id) {
  const elemento = document.getElementById(id);
  if (!elemento) throw new Error(`No element "${id}"`);
  return elemento;
}
