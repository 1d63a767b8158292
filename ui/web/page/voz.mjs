// What screen readers say: each new line once, and what is asked for.
import { html, porId } from './svg.mjs';

const Recordadas = 40;

/** Adds the new lines of the transcript to the log. @param {string[]} dichos */
export function dice(dichos) {
  const voz = porId('voz');
  voz.append(...dichos.map((dicho) => html('p', {}, dicho)));
  while (voz.children.length > Recordadas) voz.firstElementChild?.remove();
}

/** Says what has been asked for; the same again, too. @param {string} texto */
export function responde(texto) {
  porId('oido').replaceChildren(html('p', {}, texto));
}

/** One line for the player, seen and said. @param {string} texto */
export function avisa(texto) {
  porId('aviso').append(html('div', {}, texto));
}

/** The lines of `avisa` have been read. */
export function callaAvisos() {
  porId('aviso').replaceChildren();
}
