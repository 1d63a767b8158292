// What a key means.

/** Keys that only move the focus or the text. */
const DeLectura = new Set(['ArrowUp', 'ArrowDown', 'ArrowLeft', 'ArrowRight', 'Home', 'End',
  'PageUp', 'PageDown', 'Tab', 'Shift', 'Control', 'Alt', 'AltGraph', 'Meta', 'CapsLock']);

const Mueven = new Set(['ArrowUp', 'ArrowDown', 'ArrowLeft', 'ArrowRight', 'PageUp', 'PageDown',
  'Tab']);

/** @param {KeyboardEvent} e */
export const sola = (e) => !e.ctrlKey && !e.altKey && !e.metaKey && !e.shiftKey;

/** Alone or with Shift. @param {KeyboardEvent} e */
export const esLetra = (e) => !e.ctrlKey && !e.altKey && !e.metaKey;

/** @param {KeyboardEvent} e */
export const esDeLectura = (e) => DeLectura.has(e.key) ||
  (e.ctrlKey && ['c', 'a'].includes(e.key.toLowerCase()));

/** @param {KeyboardEvent} e */
export const esVerManos = (e) => e.ctrlKey && e.shiftKey && !e.altKey && e.code === 'Digit0';

/** @param {EventTarget | null} donde */
export const seEscribeEn = (donde) => donde instanceof HTMLInputElement && !donde.readOnly &&
  ['text', 'search'].includes(donde.type);

/**
 * Whether a repeated key could answer a question or close a box.
 * @param {KeyboardEvent} e
 */
export function contesta(e) {
  if (e.key === 'Enter' || e.key === 'Escape') return true;
  return !Mueven.has(e.key) && !seEscribeEn(e.target);
}

/** @param {Event} e */
export function consume(e) {
  e.preventDefault();
  e.stopPropagation();
}
