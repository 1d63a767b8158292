// The player's settings, and the menus and keys that change them and do the rest.
import { acercaDe } from './acerca.mjs';
import { responde } from './voz.mjs';

/** @typedef {import('./menus.mjs').Menu} Menu */

const DeOrigen = { sonido: true, mesa: true, movimiento: true, letra: 1 };

/** The stored settings; what is not one keeps its original value. @param {any} guardados */
function leidos(guardados) {
  return Object.fromEntries(Object.entries(DeOrigen).map(([nombre, deOrigen]) =>
    [nombre, typeof guardados[nombre] === typeof deOrigen ? guardados[nombre] : deOrigen]));
}

/** What can be changed, each with what else follows from it. */
class Cambios {
  /** @param {any} ajustes @param {any} almacen @param {any} letra @param {any} piezas */
  constructor(ajustes, almacen, letra, piezas) {
    this.ajustes = ajustes;
    this.almacen = almacen;
    this.letra = letra;
    this.piezas = piezas;
  }

  /** @param {string} cual */
  alterna(cual) {
    this.ajustes[cual] = !this.ajustes[cual];
    this.guarda();
  }

  sonido() {
    const { sonido, partida } = this.piezas;
    this.alterna('sonido');
    sonido.pon(this.ajustes.sonido);
    responde(this.ajustes.sonido ? 'Con sonido.' : 'Sin sonido.');
    partida.muestraAyuda();
  }

  mesa() {
    this.alterna('mesa');
    this.redibuja();
  }

  movimiento() { this.alterna('movimiento'); }

  /** @param {'mayor' | 'menor' | 'normal'} como */
  pasoDeLetra(como) {
    this.letra[como]();
    this.ajustes.letra = this.letra.aumento;
    this.guarda();
    this.redibuja();
  }

  redibuja() {
    this.piezas.partida.ventana.redibuja();
    this.piezas.partida.colocaCaja();
  }

  guarda() { this.almacen.pon({ ajustes: { ...this.ajustes } }); }
}

/** @param {any} piezas @returns {Menu} */
function menuJuego({ partida, cronica }) {
  const enMesa = () => partida.situacion === 'mesa';
  return { rotulo: 'Juego', letra: 'J', entradas: [
    { rotulo: 'Crónica', atajo: 'F6', hace: () => cronica.abre() },
    { rotulo: 'Repetir lo último', atajo: 'F2', hace: () => partida.escucha('ultimo'),
      vale: enMesa },
    { rotulo: 'Decir sus cartas', atajo: 'F3', hace: () => partida.escucha('mano'), vale: enMesa },
    { rotulo: 'Decir el tanteo y los envites', atajo: 'F4',
      hace: () => partida.escucha('tanteo'), vale: enMesa },
    { rotulo: 'Decir quién es mano', atajo: 'F5', hace: () => partida.escucha('quienEsMano'),
      vale: enMesa },
    { rotulo: 'Abandonar la mano', atajo: 'Q', hace: () => partida.abandona(),
      vale: () => partida.enLaMesa },
    { rotulo: 'Salir del juego', atajo: 'Ctrl+Alt+Q', hace: () => partida.salir() }] };
}

/** @param {Cambios} cambios @returns {Menu} */
function menuOpciones(cambios) {
  const { ajustes } = cambios;
  return { rotulo: 'Opciones', letra: 'O', entradas: [
    { rotulo: 'Sonido', atajo: 'F9', hace: () => cambios.sonido(),
      marcada: () => ajustes.sonido },
    { rotulo: 'Mesa dibujada', hace: () => cambios.mesa(), marcada: () => ajustes.mesa },
    { rotulo: 'Movimiento', hace: () => cambios.movimiento(),
      marcada: () => ajustes.movimiento },
    { rotulo: 'Letra mayor', atajo: 'Ctrl++', hace: () => cambios.pasoDeLetra('mayor') },
    { rotulo: 'Letra menor', atajo: 'Ctrl+-', hace: () => cambios.pasoDeLetra('menor') },
    { rotulo: 'Letra normal', hace: () => cambios.pasoDeLetra('normal') }] };
}

/** @param {any} piezas @returns {Menu} */
function menuAyuda({ manual, partida }) {
  return { rotulo: 'Ayuda', letra: 'Y', entradas: [
    { rotulo: 'Manual', atajo: 'F1', hace: () => manual.abre(partida.asunto) },
    { rotulo: 'Acerca de', hace: () => acercaDe(partida.tasca.acercaDe(), partida.paraVer) }] };
}

/** @param {any} piezas @param {Cambios} cambios @returns {Record<string, () => void>} */
function mandosDe({ partida, manual, cronica }, cambios) {
  return {
    F1: () => manual.abre(partida.asunto),
    F2: () => partida.escucha('ultimo'),
    F3: () => partida.escucha('mano'),
    F4: () => partida.escucha('tanteo'),
    F5: () => partida.escucha('quienEsMano'),
    F6: () => cronica.abre(),
    F9: () => cambios.sonido(),
    'Control+': () => cambios.pasoDeLetra('mayor'),
    'Control-': () => cambios.pasoDeLetra('menor'),
  };
}

/**
 * @param {import('./almacen.mjs').AlmacenDePagina} almacen
 * @param {import('./letra.mjs').Letra} letra
 */
export function hazOpciones(almacen, letra) {
  const ajustes = /** @type {any} */ (leidos(almacen.registro.ajustes));
  letra.pon(ajustes.letra);
  const menus = (/** @type {any} */ piezas) => {
    piezas.sonido.pon(ajustes.sonido);
    const cambios = new Cambios(ajustes, almacen, letra, piezas);
    return { menus: [menuJuego(piezas), menuOpciones(cambios), menuAyuda(piezas)],
      mandos: mandosDe(piezas, cambios) };
  };
  return { ajustes, menus };
}
