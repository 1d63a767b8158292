// The boxes: messages, Yes/No, input, bidding. One is open at most.
import { ayudasPara } from './ayudas.mjs';
import { html, boton } from './svg.mjs';
import { consume, contesta, esLetra } from './teclas.mjs';

/**
 * @typedef {{indice: number, rotulo: string, letra: string}} Boton
 * @typedef {{clase: 'aviso' | 'siNo' | 'texto' | 'envite', sobre: string, titulo: string,
 *   texto: string, hablado: string, botones: Boton[], foco: number, [campo: string]: any}} Pregunta
 * @typedef {(respuesta: any) => void} Contesta
 */

/** What each button answers. @param {Pregunta} pregunta @param {Boton} cual */
function respuestaDe(pregunta, cual) {
  if (pregunta.clase === 'siNo') return cual.letra === 'S';
  if (pregunta.clase === 'envite') return cual.indice;
  return null;
}

/** The text, once for the eyes and once without padding. @param {Pregunta} pregunta */
function textoDe({ texto, hablado, icono }, /** @type {(t: string) => string} */ paraVer) {
  const partes = [];
  if (hablado) {
    partes.push(html('p', { id: 'cajaHablada', class: 'soloVoz' }, paraVer(hablado)));
  }
  const visible = [];
  if (icono) visible.push(html('span', { class: 'icono', 'aria-hidden': 'true' }, '?'));
  if (texto) visible.push(html('p', { class: 'dicho', 'aria-hidden': 'true' }, paraVer(texto)));
  if (visible.length > 0) partes.push(html('div', { class: 'conIcono' }, ...visible));
  return partes;
}

/** An open box. */
export class Caja {
  /**
   * @param {HTMLElement} lugar
   * @param {Pregunta} pregunta
   * @param {(texto: string) => string} paraVer
   * @param {Contesta} alContestar
   */
  constructor(lugar, pregunta, paraVer, alContestar) {
    this.pregunta = pregunta;
    this.alContestar = alContestar;
    this.respondida = false;
    this.botones = this.hazBotones();
    this.campo = pregunta.clase === 'texto' ? this.hazCampo(paraVer(pregunta.porDefecto)) : null;
    this.dialogo = html('dialog', { class: `caja ${pregunta.clase}`,
      'aria-labelledby': 'cajaTitulo' });
    if (pregunta.hablado) this.dialogo.setAttribute('aria-describedby', 'cajaHablada');
    this.dialogo.append(html('h2', { id: 'cajaTitulo' }, paraVer(pregunta.titulo)),
      this.contenido(paraVer));
    this.dialogo.addEventListener('keydown', (e) => this.tecla(e));
    lugar.append(this.dialogo);
    this.dialogo.show();
    this.enfoca();
  }

  hazBotones() {
    return new Map(this.pregunta.botones.map((uno) => [uno.indice, boton(uno.rotulo,
      () => this.pulsa(uno), uno.letra ? { 'aria-keyshortcuts': uno.letra } : {})]));
  }

  /** @param {string} valor */
  hazCampo(valor) {
    const campo = html('input', { id: 'cajaCampo', 'aria-labelledby': 'cajaTitulo',
      autocomplete: 'off', enterkeyhint: 'done' });
    campo.value = valor;
    if (this.pregunta.hablado) campo.setAttribute('aria-describedby', 'cajaHablada');
    return campo;
  }

  /** @param {(texto: string) => string} paraVer */
  contenido(paraVer) {
    const partes = textoDe(this.pregunta, paraVer);
    const clase = this.pregunta.clase === 'envite' ? 'botones4' : 'botones';
    const pie = html('div', { class: clase }, ...this.botones.values());
    if (clase === 'botones4') {
      for (const [i, uno] of this.botones) uno.classList.add(`hueco${i}`);
      return html('div', {}, ...partes, pie);
    }
    const medio = this.campo ? [...ayudasPara(this.pregunta, this.campo), this.campo] : [];
    return html('div', { class: 'contenido' }, ...partes, ...medio, pie);
  }

  /** What has the focus when the box opens. */
  get inicial() { return this.campo ?? this.botones.get(this.pregunta.foco) ?? this.dialogo; }

  enfoca() {
    this.inicial.focus();
    this.campo?.select();
  }

  get tieneElFoco() { return this.dialogo.contains(document.activeElement); }

  /** @param {Boton} cual */
  pulsa(cual) {
    const acepta = this.campo && cual.indice === this.pregunta.botones[0].indice;
    this.contesta(acepta ? this.campo?.value : respuestaDe(this.pregunta, cual));
  }

  /** @param {any} respuesta */
  contesta(respuesta) {
    if (this.respondida) return;
    this.respondida = true;
    this.alContestar(respuesta);
  }

  cierra() {
    this.dialogo.close();
    this.dialogo.remove();
  }

  /** @param {KeyboardEvent} e */
  tecla(e) {
    if (e.repeat && contesta(e)) return consume(e);
    if (e.key === 'Escape') return this.escape(e);
    if (e.key === 'Tab') return this.tabulador(e);
    if (e.key === 'Enter' && e.target === this.campo) return this.aceptaCampo(e);
    if (this.campo !== null || !esLetra(e)) return;
    const suyo = this.pregunta.botones.find((uno) => uno.letra === e.key.toUpperCase());
    if (suyo) {
      consume(e);
      return this.pulsa(suyo);
    }
    this.flecha(e);
  }

  /** @param {KeyboardEvent} e */
  aceptaCampo(e) {
    consume(e);
    const cual = this.pregunta.botones.find((uno) => uno.indice === this.pregunta.foco);
    if (cual) this.pulsa(cual);
  }

  /** @param {KeyboardEvent} e */
  escape(e) {
    consume(e);
    if (this.pregunta.clase === 'aviso' || this.pregunta.clase === 'texto') this.contesta(null);
  }

  /** Keeps the focus in the box. @param {KeyboardEvent} e */
  tabulador(e) {
    const todos = [...(this.campo ? [this.campo] : []), ...this.botones.values()];
    const ahora = todos.findIndex((uno) => uno === document.activeElement);
    const paso = e.shiftKey ? -1 : 1;
    consume(e);
    todos[(ahora + paso + todos.length) % todos.length].focus();
  }

  /** The arrow keys move between the buttons. @param {KeyboardEvent} e */
  flecha(e) {
    const horizontal = e.key === 'ArrowLeft' || e.key === 'ArrowRight';
    if (!horizontal && e.key !== 'ArrowUp' && e.key !== 'ArrowDown') return;
    const [ahora] = [...this.botones].find(([, uno]) => uno === document.activeElement) ?? [0];
    const deCuatro = this.pregunta.clase === 'envite' && !horizontal;
    this.botones.get(ahora ^ (deCuatro ? 2 : 1))?.focus();
    consume(e);
  }
}
