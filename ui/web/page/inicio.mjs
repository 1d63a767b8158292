// The start-up dialog.
import { html, boton } from './svg.mjs';
import { consume } from './teclas.mjs';
import { responde } from './voz.mjs';

/**
 * @typedef {{elige(combo: number, posicion: number): void, marca(cual: number, si: boolean): void,
 *   estilo(cual: number): void, aceptar(nombre: string): void, salir(): void,
 *   reparo(nombre: string): string}} Pasos
 */

/** @param {HTMLElement} campo @param {string} rotulo @param {string} id */
function conRotulo(campo, rotulo, id) {
  campo.id = id;
  return [html('label', { for: id }, rotulo), campo];
}

export class Inicio {
  /**
   * @param {HTMLElement} lugar
   * @param {any} inicio
   * @param {(texto: string) => string} paraVer
   * @param {Pasos} pasos
   * @param {Node} personajes  what stands below the choices
   */
  constructor(lugar, inicio, paraVer, pasos, personajes) {
    this.paraVer = paraVer;
    this.pasos = pasos;
    this.nombre = this.campoDelNombre(inicio.nombre);
    this.combos = inicio.combos.map((/** @type {any} */ uno, /** @type {number} */ i) =>
      this.lista(uno, i, inicio.lista));
    this.historia = html('p', { class: 'hoja historia', role: 'note', 'aria-label': 'Su historia' });
    this.ejemplo = html('p', { class: 'hoja ejemplo', role: 'note', 'aria-label': 'Ejemplo' });
    this.reparo = html('p', { class: 'reparo', role: 'status' });
    this.casillas = inicio.casillas.map((/** @type {any} */ una, /** @type {number} */ i) =>
      this.casilla('checkbox', una.rotulo, `casilla${i}`, (si) => pasos.marca(i, si)));
    this.estilos = inicio.estilo.opciones.map((/** @type {string} */ una,
      /** @type {number} */ i) => this.casilla('radio', una, `estilo${i}`, () => pasos.estilo(i)));
    this.aceptar = html('button', { type: 'submit' }, inicio.botones.aceptar.rotulo);
    this.dialogo = html('dialog', { class: 'inicio', 'aria-label': document.title },
      this.formulario(inicio, personajes));
    this.dialogo.addEventListener('keydown', (e) => this.tecla(e));
    lugar.replaceChildren(this.dialogo);
    lugar.classList.add('tasca');
    this.muestra(inicio);
    this.dialogo.show();
    this.nombre.focus();
  }

  /** @param {any} nombre */
  campoDelNombre({ valor, maximo }) {
    const campo = html('input', { maxlength: maximo, autocomplete: 'off', spellcheck: 'false' });
    campo.value = this.paraVer(valor);
    campo.addEventListener('input', () => {
      this.reparo.textContent = this.pasos.reparo(campo.value);
    });
    return campo;
  }

  /** @param {any} combo @param {number} i @param {any[]} lista */
  lista(combo, i, lista) {
    const opciones = lista.map(({ texto }, valor) =>
      html('option', { value: valor }, this.paraVer(texto)));
    const campo = html('select', {}, ...opciones);
    campo.addEventListener('change', () => {
      this.pasos.elige(i, campo.selectedIndex);
      const { texto, historia } = lista[campo.selectedIndex];
      if (campo.selectedIndex > 0) responde(`${this.paraVer(texto)}. ${this.paraVer(historia)}`);
    });
    return campo;
  }

  /**
   * @param {'checkbox' | 'radio'} type @param {string} rotulo @param {string} id
   * @param {(marcada: boolean) => void} alCambiar
   */
  casilla(type, rotulo, id, alCambiar) {
    const campo = html('input', { type, id, name: type === 'radio' ? 'estilo' : id });
    campo.addEventListener('change', () => alCambiar(campo.checked));
    return { campo, etiqueta: html('label', {}, campo, rotulo) };
  }

  /** @param {any} inicio @param {Node} personajes */
  formulario(inicio, personajes) {
    const fichas = html('div', { class: 'fichas' },
      ...conRotulo(this.nombre, inicio.nombre.rotulo, 'nombre'));
    this.combos.forEach((/** @type {HTMLElement} */ combo, /** @type {number} */ i) =>
      fichas.append(...conRotulo(combo, inicio.combos[i].rotulo, `combo${i}`)));
    const marcas = html('div', { class: 'marcas' },
      ...this.casillas.map((/** @type {any} */ una) => una.etiqueta));
    const estilo = html('fieldset', {}, html('legend', {}, inicio.estilo.rotulo),
      ...this.estilos.map((/** @type {any} */ uno) => uno.etiqueta));
    const pie = html('div', { class: 'pie' }, this.reparo, this.aceptar,
      boton(inicio.botones.salir.rotulo, () => this.pasos.salir()));
    const formulario = html('form', {},
      html('div', { class: 'saludo' },
        html('img', { src: 'iconos/icon.svg', alt: '', width: 88, height: 88 }),
        html('p', { class: 'bienvenida' }, this.paraVer(inicio.bienvenida).trim())),
      html('div', { class: 'elecciones' }, fichas, this.historia),
      html('div', { class: 'elecciones' }, marcas, estilo), this.ejemplo, personajes, pie);
    formulario.addEventListener('submit', (e) => {
      e.preventDefault();
      this.acepta();
    });
    return formulario;
  }

  acepta() {
    const reparo = this.pasos.reparo(this.nombre.value);
    this.reparo.textContent = reparo;
    if (reparo) this.nombre.focus();
    else this.pasos.aceptar(this.nombre.value);
  }

  /** @param {any} inicio */
  muestra(inicio) {
    this.combos.forEach((/** @type {HTMLSelectElement} */ combo, /** @type {number} */ i) => {
      combo.selectedIndex = inicio.combos[i].elegido;
    });
    this.casillas.forEach((/** @type {any} */ { campo }, /** @type {number} */ i) => {
      campo.checked = inicio.casillas[i].marcada;
    });
    this.estilos.forEach((/** @type {any} */ { campo }, /** @type {number} */ i) => {
      campo.checked = inicio.estilo.elegido === i;
    });
    this.historia.textContent = this.paraVer(inicio.historia);
    this.ejemplo.textContent = this.paraVer(inicio.ejemplo);
    this.aceptar.disabled = !inicio.botones.aceptar.activo;
  }

  enfoca() { this.aceptar.focus(); }

  cierra() {
    const lugar = this.dialogo.parentElement;
    this.dialogo.close();
    this.dialogo.remove();
    lugar?.classList.remove('tasca');
  }

  /** @param {KeyboardEvent} e */
  tecla(e) {
    if (e.repeat && (e.key === 'Enter' || e.key === 'Escape')) return consume(e);
    const enLista = e.target instanceof HTMLSelectElement;
    if (e.key === 'Enter' && enLista) {
      consume(e);
      return this.acepta();
    }
    if (e.key !== 'Escape') return;
    consume(e);
    this.pasos.salir();
  }
}
