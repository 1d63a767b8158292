// The manual's window.
import { Lectura } from './lectura.mjs';
import { capitulo } from './marcado.mjs';
import { boton, html } from './svg.mjs';

export class Manual {
  /** @param {any} tasca */
  constructor(tasca) {
    this.tasca = tasca;
    /** @type {Lectura | null} */
    this.lectura = null;
    /** @type {number[]} */
    this.atras = [];
    /** @type {number[]} */
    this.adelante = [];
  }

  /** @param {string} ancla */
  abre(ancla) {
    this.lectura ??= this.escribe();
    this.lectura.abre();
    this.ve(ancla);
  }

  escribe() {
    const { capitulos, titulos } = this.tasca.manual();
    this.texto = html('div', { class: 'hoja', tabindex: 0, role: 'document', 'aria-label': 'Manual' });
    const quedan = [...titulos];
    for (const uno of capitulos) this.texto.append(...capitulo(uno, quedan));
    const indice = html('nav', { class: 'indice', 'aria-label': 'Índice' },
      ...titulos.map((/** @type {any} */ { nivel, titulo, ancla }) =>
        html('a', { href: `#manual-${ancla}`, class: `nivel${nivel}` }, titulo)));
    const cuerpo = html('div', { class: 'cuerpo' }, indice, this.texto);
    const lectura = new Lectura('Manual de la tasca', 'manual', 'Buscar en el manual',
      [boton('◀', () => this.vuelve(this.atras, this.adelante), { 'aria-label': 'Atrás' }),
        boton('▶', () => this.vuelve(this.adelante, this.atras), { 'aria-label': 'Adelante' })],
      this.texto, cuerpo);
    lectura.dialogo.addEventListener('click', (e) => this.pulsa(e));
    lectura.dialogo.addEventListener('keydown', (e) => this.tecla(e));
    return lectura;
  }

  /** Links lead to headings of the manual only. @param {Event} e */
  pulsa(e) {
    const enlace = /** @type {Element} */ (e.target).closest('a');
    if (!enlace) return;
    e.preventDefault();
    this.recuerda();
    this.ve(decodeURIComponent(enlace.hash).replace('#manual-', ''));
  }

  /** @param {KeyboardEvent} e */
  tecla(e) {
    if (!e.altKey || (e.key !== 'ArrowLeft' && e.key !== 'ArrowRight')) return;
    e.preventDefault();
    if (e.key === 'ArrowLeft') this.vuelve(this.atras, this.adelante);
    else this.vuelve(this.adelante, this.atras);
  }

  recuerda() {
    this.atras.push(this.texto?.scrollTop ?? 0);
    this.adelante = [];
  }

  /** @param {number[]} de @param {number[]} a */
  vuelve(de, a) {
    const sitio = de.pop();
    if (sitio === undefined || !this.texto) return;
    a.push(this.texto.scrollTop);
    this.texto.scrollTop = sitio;
  }

  /** @param {string} ancla */
  ve(ancla) {
    const titulo = ancla ? document.getElementById(`manual-${ancla}`) : null;
    if (titulo) titulo.scrollIntoView({ block: 'start' });
    else if (this.texto) this.texto.scrollTop = 0;
    this.texto?.focus({ preventScroll: true });
  }
}
