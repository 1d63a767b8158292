// The menus "Juego", "Opciones" and "Ayuda".
import { html, boton } from './svg.mjs';
import { consume } from './teclas.mjs';

/**
 * @typedef {{rotulo: string, atajo?: string, hace: () => void, marcada?: () => boolean,
 *   vale?: () => boolean}} Entrada
 * @typedef {{rotulo: string, letra: string, entradas: Entrada[]}} Menu
 */

export class Menus {
  /**
   * @param {HTMLElement} lugar @param {Menu[]} menus
   * @param {() => void} alCerrar  gives the focus back
   */
  constructor(lugar, menus, alCerrar) {
    this.lugar = lugar;
    this.alCerrar = alCerrar;
    this.abierto = -1;
    this.menus = menus;
    this.botones = menus.map((menu, i) => boton(menu.rotulo, () => this.alterna(i),
      { 'aria-haspopup': 'menu', 'aria-expanded': 'false', 'aria-keyshortcuts': `Alt+${menu.letra}` }));
    lugar.replaceChildren(...this.botones.map((uno) => html('div', {}, uno)));
    lugar.addEventListener('keydown', (e) => this.tecla(e));
    document.addEventListener('pointerdown', (e) => {
      if (!lugar.contains(/** @type {Node} */ (e.target))) this.cierra();
    });
  }

  /** Opens the menu of that letter; false if there is none. @param {string} letra */
  abrePorLetra(letra) {
    const cual = this.menus.findIndex((menu) => menu.letra === letra.toUpperCase());
    if (cual >= 0) this.abre(cual);
    return cual >= 0;
  }

  get tieneElFoco() { return this.lugar.contains(document.activeElement); }

  /** @param {number} cual */
  alterna(cual) {
    if (this.abierto === cual) this.acaba();
    else this.abre(cual);
  }

  /** @param {number} cual */
  abre(cual) {
    this.cierra();
    this.abierto = cual;
    this.botones[cual].setAttribute('aria-expanded', 'true');
    const lista = html('div', { role: 'menu', 'aria-label': this.menus[cual].rotulo },
      ...this.menus[cual].entradas.map((una) => this.entrada(una)));
    this.botones[cual].after(lista);
    /** @type {HTMLElement | null} */ (lista.querySelector('button:not(:disabled)'))?.focus();
  }

  /** @param {Entrada} una */
  entrada({ rotulo, atajo, hace, marcada, vale }) {
    const uno = boton(rotulo, () => {
      this.acaba();
      hace();
    }, { role: marcada ? 'menuitemcheckbox' : 'menuitem', tabindex: -1 });
    if (marcada) uno.setAttribute('aria-checked', String(marcada()));
    if (atajo) uno.append(html('span', { class: 'atajo', 'aria-hidden': 'true' }, atajo));
    uno.disabled = vale ? !vale() : false;
    return uno;
  }

  /** Closes the open menu. False if none was open. */
  cierra() {
    if (this.abierto < 0) return false;
    this.botones[this.abierto].setAttribute('aria-expanded', 'false');
    this.lugar.querySelector('[role="menu"]')?.remove();
    this.abierto = -1;
    return true;
  }

  acaba() {
    this.cierra();
    this.alCerrar();
  }

  /** @param {KeyboardEvent} e */
  tecla(e) {
    const paso = { ArrowLeft: -1, ArrowRight: 1 }[e.key];
    if (paso) return this.alOtro(e, paso);
    if (this.abierto < 0) return;
    if (e.key === 'Escape' || e.key === 'Tab') {
      consume(e);
      return this.acaba();
    }
    this.muevePorLaLista(e);
  }

  /** @param {KeyboardEvent} e @param {number} paso */
  alOtro(e, paso) {
    consume(e);
    const suyo = this.botones.findIndex((uno) => uno === document.activeElement);
    const ahora = this.abierto >= 0 ? this.abierto : suyo;
    const otro = (ahora + paso + this.botones.length) % this.botones.length;
    if (this.abierto >= 0) this.abre(otro);
    else this.botones[otro].focus();
  }

  /** @param {KeyboardEvent} e */
  muevePorLaLista(e) {
    const todas = /** @type {HTMLElement[]} */ (
      [...this.lugar.querySelectorAll('[role="menu"] button:not(:disabled)')]);
    const ahora = todas.findIndex((una) => una === document.activeElement);
    const sitios = { ArrowDown: ahora + 1, ArrowUp: ahora - 1, Home: 0, End: -1 };
    if (!(e.key in sitios)) return;
    consume(e);
    const sitio = sitios[/** @type {keyof sitios} */ (e.key)];
    todas.at(sitio % todas.length)?.focus();
  }
}
