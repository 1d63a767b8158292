// The chronicle's window.
import { Lectura } from './lectura.mjs';
import { descarga } from './descarga.mjs';
import { boton, html } from './svg.mjs';
import { responde } from './voz.mjs';

const Vacia = 'Todavía no se ha dicho nada en la mesa.';

export class Cronica {
  /** @param {any} tasca @param {(texto: string) => string} paraVer */
  constructor(tasca, paraVer) {
    this.tasca = tasca;
    this.paraVer = paraVer;
    this.texto = html('div', { class: 'hoja', tabindex: 0, role: 'document',
      'aria-label': 'Crónica' });
    this.lectura = new Lectura('Crónica de la partida', 'cronica', 'Buscar en la crónica',
      [boton('Copiar', () => this.copia()), boton('Guardar como...', () => this.guarda())],
      this.texto, this.texto);
  }

  abre() {
    this.texto.textContent = this.paraVer(this.tasca.cronica()) || Vacia;
    this.lectura.abre();
    this.texto.scrollTop = this.texto.scrollHeight;
  }

  /** Copies what is selected, or everything. */
  async copia() {
    const senalado = String(getSelection() ?? '');
    try {
      await navigator.clipboard.writeText(senalado || (this.texto.textContent ?? ''));
      responde('Copiado.');
      this.lectura.aviso.textContent = 'Copiado.';
    } catch {
      this.lectura.aviso.textContent = 'El navegador no deja copiar.';
    }
  }

  guarda() {
    descarga(new TextEncoder().encode(this.texto.textContent ?? ''), 'cronica.txt', 'text/plain');
  }
}
