// Opens the tasca: the kept record, the module, and everything that a player can press.
import { AlmacenDePagina, consigueElCerrojo } from './almacen.mjs';
import { Cronica } from './cronica.mjs';
import { Letra } from './letra.mjs';
import { Manual } from './manual.mjs';
import { Menus } from './menus.mjs';
import { hazOpciones } from './opciones.mjs';
import { Partida } from './partida.mjs';
import { Personajes } from './personajes.mjs';
import { Sonido } from './sonido.mjs';
import { porId } from './svg.mjs';
import { atiendeElRaton, atiendeElTeclado } from './teclado.mjs';
import { Ventana } from './ventana.mjs';
import { avisa } from './voz.mjs';

/** Lies beside this file in the built site. @type {string} */
const Modulo = './tasca.mjs';
const SinAlmacen = 'El navegador no deja guardar: al cerrar la página se perderán la partida, ' +
  'su nombre y los ajustes.';
const OtraPestana = 'La tasca ya está abierta en otra pestaña: aquí se puede jugar, pero no se ' +
  'guarda nada.';
const Apartado = 'Lo que había guardado está dañado o es de otra versión: se ha dejado aparte, y ' +
  'se empieza de nuevo.';

/** @returns {Promise<AlmacenDePagina>} */
async function abreAlmacen() {
  const esLaPrimera = await consigueElCerrojo();
  const almacen = new AlmacenDePagina(esLaPrimera, () => avisa(SinAlmacen));
  if (!esLaPrimera) avisa(OtraPestana);
  if (await almacen.abre() === 'apartado') avisa(Apartado);
  if (!esLaPrimera) almacen.registro.partida = null;
  return almacen;
}

/** The bytes of a shipped file, or nothing. @param {string} nombre */
async function deLaCasa(nombre) {
  const respuesta = await fetch(`datos/${nombre}`);
  return respuesta.ok ? new Uint8Array(await respuesta.arrayBuffer()) : null;
}

/** The stored files of the game, else the shipped ones. @param {AlmacenDePagina} almacen */
async function archivosDelJuego(almacen) {
  /** @type {Record<string, Uint8Array>} */
  const archivos = {};
  await Promise.all(['Jugadores.dat', 'mus.ini'].map(async (nombre) => {
    const bytes = almacen.registro.archivos[nombre] ?? await deLaCasa(nombre);
    if (bytes) archivos[nombre] = bytes;
  }));
  return archivos;
}

/** The game can be opened without a network from the second visit on. */
function instala() {
  navigator.serviceWorker?.register('servicio.js').catch(() => {});
}

async function abre() {
  const letra = new Letra();
  const [{ abrirTasca, paraVer }, almacen] = await Promise.all([import(Modulo),
    abreAlmacen()]);
  const archivos = await archivosDelJuego(almacen);
  const tasca = await abrirTasca({ archivos, mide: letra.mide });
  const { ajustes, menus: hazMenus } = hazOpciones(almacen, letra);
  const ventana = new Ventana(tasca, paraVer, letra, ajustes);
  const sonido = new Sonido(() => partida.finDeSonido());
  const personajes = new Personajes(tasca, paraVer, almacen, () => partida.abre());
  const partida = new Partida(tasca, paraVer, almacen, ventana, sonido, () => personajes.elemento());
  const manual = new Manual(tasca);
  const cronica = new Cronica(tasca, paraVer);
  const { menus, mandos } = hazMenus({ partida, manual, cronica, sonido });
  const barra = new Menus(porId('menus'), menus, () => partida.enfoca());
  atiendeElTeclado({ partida, menus: barra, mandos });
  atiendeElRaton({ partida, menus: barra, mandos });
  porId('carga').remove();
  partida.abre();
  instala();
}

if (typeof WebAssembly === 'object') {
  abre().catch((error) => {
    console.error(error);
    porId('carga').textContent = 'No se ha podido abrir el juego. Compruebe la conexión y ' +
      'vuelva a cargar la página.';
  });
} else {
  porId('carga').textContent = 'Este navegador no puede abrir la tasca: le falta WebAssembly.';
}
