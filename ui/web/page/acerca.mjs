// The box "Acerca de".
import { boton, html } from './svg.mjs';

/** @param {string} texto @param {(texto: string) => string} paraVer */
export function acercaDe(texto, paraVer) {
  const dialogo = html('dialog', { class: 'acerca', 'aria-labelledby': 'acercaTitulo' },
    html('h2', { id: 'acercaTitulo' }, 'Acerca de'),
    html('img', { src: 'iconos/icon.svg', alt: '', width: 72, height: 72 }),
    html('p', {}, paraVer(texto)), boton('Aceptar', () => dialogo.close()));
  dialogo.addEventListener('close', () => dialogo.remove());
  document.body.append(dialogo);
  dialogo.showModal();
}
