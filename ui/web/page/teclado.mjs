// The keys of the window, wherever the focus is.
import { consume, contesta, esDeLectura, esVerManos, esLetra, sola } from './teclas.mjs';

/**
 * @typedef {{partida: import('./partida.mjs').Partida, menus: import('./menus.mjs').Menus,
 *   mandos: Record<string, () => void>}} Todo
 */

const hayVentanaEncima = () => document.querySelector('dialog:modal') !== null;

/** Keys that work everywhere, also in boxes. True if it was one. */
function mando(/** @type {KeyboardEvent} */ e, /** @type {Todo} */ { partida, menus, mandos }) {
  if (e.ctrlKey && e.altKey && e.key.toLowerCase() === 'q') {
    consume(e);
    if (!e.repeat) partida.salir();
    return true;
  }
  const conControl = e.ctrlKey && !e.altKey ? mandos[`Control${e.key}`] : undefined;
  const hace = sola(e) ? mandos[e.key] : conControl;
  if (hace) {
    consume(e);
    if (!e.repeat || conControl) hace();
    return true;
  }
  const deMenu = e.altKey && !e.ctrlKey && !partida.caja && /^[joy]$/i.test(e.key);
  if (deMenu && menus.abrePorLetra(e.key)) {
    consume(e);
    return true;
  }
  return false;
}

/** A key at the table. */
function juega(/** @type {KeyboardEvent} */ e, /** @type {Todo} */ { partida }) {
  const { texto1, texto2 } = partida.ventana;
  if ((e.key === 'PageUp' || e.key === 'PageDown') && document.activeElement === texto1) {
    consume(e);
    texto2.scrollBy(0, (e.key === 'PageUp' ? -0.9 : 0.9) * texto2.clientHeight);
    return;
  }
  if (esVerManos(e)) {
    consume(e);
    if (!e.repeat) partida.verManos();
    return;
  }
  if (esDeLectura(e)) return;
  texto1.focus({ preventScroll: true });
  const esQ = esLetra(e) && e.key.toLowerCase() === 'q';
  if (e.key !== 'Enter' && !esQ) return;
  consume(e);
  if (e.repeat) return;
  if (esQ) partida.abandona();
  else partida.enter();
}

/** @param {Todo} todo */
export function atiendeElTeclado(todo) {
  const { partida, menus } = todo;
  document.addEventListener('keydown', (e) => {
    if (hayVentanaEncima() || mando(e, todo) || menus.tieneElFoco) return;
    const { caja } = partida;
    if (caja) {
      if (caja.tieneElFoco) return;
      if (e.key !== 'Tab' || contesta(e)) consume(e);
      caja.enfoca();
      return;
    }
    const esBoton = document.activeElement instanceof HTMLButtonElement;
    if (partida.situacion === 'mesa' && !esBoton) juega(e, todo);
    if (esBoton && e.repeat && e.key === 'Enter') consume(e);
  }, true);
}

/** A tap on the table, or a click on the key cap, is Enter. @param {Todo} todo */
export function atiendeElRaton({ partida }) {
  const mesa = /** @type {Element} */ (document.getElementById('mesa'));
  mesa.addEventListener('click', (e) => {
    const deDedo = /** @type {PointerEvent} */ (e).pointerType === 'touch';
    if (deDedo && partida.ventana.lamina?.toca === 'enter') partida.enter();
  });
  partida.ventana.continuar.addEventListener('click', () => partida.enter());
}
