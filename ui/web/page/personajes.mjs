// Bringing a character file in, and taking it out.
import { descarga } from './descarga.mjs';
import { boton, html } from './svg.mjs';

const Nombre = 'Jugadores.dat';
/** A character file is read whole: larger ones are refused before that. */
const Maximo = 16 * 1024 * 1024;

export class Personajes {
  /**
   * @param {any} tasca @param {(texto: string) => string} paraVer
   * @param {import('./almacen.mjs').AlmacenDePagina} almacen
   * @param {() => void} alCambiar  opens the start-up dialog again
   */
  constructor(tasca, paraVer, almacen, alCambiar) {
    this.tasca = tasca;
    this.paraVer = paraVer;
    this.almacen = almacen;
    this.alCambiar = alCambiar;
    this.dicho = '';
  }

  /** What the start-up dialog shows. */
  elemento() {
    const archivo = html('input', { type: 'file', hidden: '', 'aria-label': 'Archivo de personajes' });
    this.mensaje = html('p', { class: 'faltas hoja', role: 'status', tabindex: 0 });
    this.di(this.dicho);
    archivo.addEventListener('change', () => {
      const elegido = archivo.files?.[0];
      archivo.value = '';
      if (elegido) this.trae(elegido);
    });
    const partes = html('details', {}, html('summary', {}, 'Los personajes'),
      html('div', { class: 'botones' },
        boton('Traer de un archivo...', () => archivo.click()),
        boton('Llevárselos en un archivo', () => this.lleva()), archivo), this.mensaje);
    partes.open = this.dicho !== '';
    this.dicho = '';
    return partes;
  }

  /** @param {string} texto */
  di(texto) {
    if (!this.mensaje) return;
    this.mensaje.textContent = texto;
    this.mensaje.hidden = texto === '';
  }

  lleva() {
    const bytes = this.tasca.archivo(Nombre);
    if (bytes) descarga(bytes, Nombre, 'application/octet-stream');
    else this.di('No hay personajes que llevarse.');
  }

  /** @param {File} archivo */
  async trae(archivo) {
    if (archivo.size > Maximo) {
      return this.di(`${archivo.name} es demasiado grande para ser un archivo de personajes.`);
    }
    try {
      this.pon(new Uint8Array(await archivo.arrayBuffer()));
    } catch {
      this.di(`No se ha podido leer ${archivo.name}.`);
    }
  }

  /** @param {Uint8Array} bytes */
  pon(bytes) {
    const { faltas, resumen, sirve } = this.tasca.revisar(bytes);
    const dicho = this.paraVer([...faltas, resumen].filter(Boolean).join('\n'));
    if (!sirve) return this.di(`Este archivo no sirve para jugar.\n${dicho}`);
    this.tasca.ponArchivo(Nombre, bytes);
    const archivos = { ...this.almacen.registro.archivos, [Nombre]: bytes };
    this.almacen.pon({ archivos });
    this.dicho = dicho;
    this.alCambiar();
  }
}
