// A window to read in: a title, a bar, a text that can be searched.
import { boton, html } from './svg.mjs';
import { consume } from './teclas.mjs';

/** Plain letters, for a search that ignores accents and capitals. @param {string} texto */
const llano = (texto) => [...texto].map((letra) =>
  letra.normalize('NFD')[0].toLowerCase().padEnd(letra.length)).join('');

/** The text of an element, with the nodes that it is made of. @param {Node} donde */
function trozosDe(donde) {
  const camino = document.createTreeWalker(donde, NodeFilter.SHOW_TEXT);
  const trozos = [];
  let largo = 0;
  for (let nodo = camino.nextNode(); nodo; nodo = camino.nextNode()) {
    trozos.push({ nodo: /** @type {Text} */ (nodo), desde: largo });
    largo += nodo.textContent?.length ?? 0;
  }
  return trozos;
}

/** @param {{nodo: Text, desde: number}[]} trozos @param {number} sitio @returns {[Text, number]} */
function puntoEn(trozos, sitio) {
  const suyo = trozos.findLast(({ desde }) => desde <= sitio) ?? trozos[0];
  return [suyo.nodo, Math.min(sitio - suyo.desde, suyo.nodo.length)];
}

/** Selects what lies between the two places of the text. */
function senala(/** @type {{nodo: Text, desde: number}[]} */ trozos,
  /** @type {number} */ desde, /** @type {number} */ hasta) {
  const [nodo, sitio] = puntoEn(trozos, desde);
  const [otro, suSitio] = puntoEn(trozos, hasta);
  getSelection()?.setBaseAndExtent(nodo, sitio, otro, suSitio);
  nodo.parentElement?.scrollIntoView({ block: 'center' });
}

export class Lectura {
  /**
   * @param {string} titulo @param {string} clase @param {string} rotuloDeBusqueda
   * @param {Node[]} barra @param {HTMLElement} texto  what is read and searched
   * @param {Node} cuerpo  the text with what stands beside it
   */
  constructor(titulo, clase, rotuloDeBusqueda, barra, texto, cuerpo) {
    this.texto = texto;
    /** Where the next search begins. */
    this.sitio = 0;
    this.buscado = html('input', { type: 'search', placeholder: 'Buscar',
      'aria-label': rotuloDeBusqueda, autocomplete: 'off' });
    this.aviso = html('span', { role: 'status' });
    this.dialogo = html('dialog', { class: `lectura ${clase}`, 'aria-label': titulo },
      html('div', { class: 'titulo' }, html('h2', {}, titulo),
        boton('Cerrar', () => this.cierra())),
      html('div', { class: 'barra' }, ...barra, html('span', { class: 'busca' }, this.aviso,
        this.buscado, boton('▲', () => this.busca(true), { 'aria-label': 'Buscar la anterior' }),
        boton('▼', () => this.busca(false), { 'aria-label': 'Buscar la siguiente' }))),
      cuerpo);
    this.buscado.addEventListener('input', () => { this.aviso.textContent = ''; });
    this.dialogo.addEventListener('keydown', (e) => this.tecla(e));
    document.body.append(this.dialogo);
  }

  get abierta() { return this.dialogo.open; }

  abre() {
    if (!this.abierta) this.dialogo.showModal();
    this.texto.focus();
  }

  cierra() { this.dialogo.close(); }

  /** @param {KeyboardEvent} e */
  tecla(e) {
    const deBuscar = e.ctrlKey && e.key.toLowerCase() === 'f';
    const buscaYa = e.key === 'F3' || (e.key === 'Enter' && e.target === this.buscado);
    if (!deBuscar && !buscaYa) return;
    consume(e);
    if (buscaYa) return this.busca(e.shiftKey);
    this.buscado.focus();
    this.buscado.select();
  }

  /** Shows the next place of what is searched, round and round. @param {boolean} haciaAtras */
  busca(haciaAtras) {
    const que = llano(this.buscado.value);
    if (!que) return this.buscado.focus();
    const trozos = trozosDe(this.texto);
    const todo = llano(trozos.map(({ nodo }) => nodo.data).join(''));
    const sitio = haciaAtras ? this.anterior(todo, que) : this.siguiente(todo, que);
    this.aviso.textContent = sitio < 0 ? 'No se encuentra.' : '';
    if (sitio < 0) return;
    this.sitio = sitio + 1;
    senala(trozos, sitio, sitio + que.length);
  }

  /** @param {string} todo @param {string} que */
  siguiente(todo, que) {
    const delante = todo.indexOf(que, this.sitio);
    return delante >= 0 ? delante : todo.indexOf(que);
  }

  /** @param {string} todo @param {string} que */
  anterior(todo, que) {
    const hasta = this.sitio - 2;
    const detras = hasta < 0 ? -1 : todo.lastIndexOf(que, hasta);
    return detras >= 0 ? detras : todo.lastIndexOf(que);
  }
}
