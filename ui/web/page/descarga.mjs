// Gives bytes to the player as a file.
import { html } from './svg.mjs';

/** @param {Uint8Array} bytes @param {string} nombre @param {string} type */
export function descarga(bytes, nombre, type) {
  const url = URL.createObjectURL(new Blob([/** @type {BlobPart} */ (bytes)], { type }));
  html('a', { href: url, download: nombre }).click();
  setTimeout(() => URL.revokeObjectURL(url), 60000);
}
