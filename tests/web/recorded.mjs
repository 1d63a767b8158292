// The recorded games of tests/traces, played through tasca.mjs: it tells what the trace tells. Of a state
// only the three texts can be seen from a page.
import { existsSync, readFileSync, readdirSync, statSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';

const raiz = join(fileURLToPath(import.meta.url), '../../..');
const sitio = join(raiz, 'build/web/site');
const trazas = join(raiz, 'tests/traces');
const { abrirTasca } = await import(join(sitio, 'tasca.mjs'));
const wasm = readFileSync(join(sitio, 'modulo.wasm'));

// One of these games has a folder in place of a file, which a page cannot have.
export function juegos() {
  return readdirSync(trazas).filter((juego) => existsSync(join(trazas, juego, 'in.jsonl')) &&
    juego !== 'settings-folder');
}

function lineas(archivo) {
  return existsSync(archivo) ? readFileSync(archivo, 'utf8').split('\n').filter(Boolean) : [];
}

function archivosDe(juego) {
  const archivos = {};
  for (const carpeta of [join(trazas, 'folder'), join(trazas, juego, 'folder')]) {
    if (!existsSync(carpeta)) continue;
    for (const nombre of readdirSync(carpeta)) {
      if (statSync(join(carpeta, nombre)).isFile()) {
        archivos[nombre] = readFileSync(join(carpeta, nombre));
      }
    }
  }
  for (const nombre of lineas(join(trazas, juego, 'without'))) delete archivos[nombre];
  return archivos;
}

export function abrirPagina(archivos, reloj) {
  return abrirTasca({ wasm, archivos, reloj: () => reloj, mide: (texto) => 8 * texto.length });
}

const tituloDe = ({ titulo }) => (titulo === 'La tasca del tío Zarandel' ? '' : titulo);

function sucesoDeTraza({ suceso, archivo, veces: count, balance, volumen: volume }) {
  return suceso === 'calla'
    ? { event: 'soundstop', count, balance, volume }
    : { event: 'sound', file: archivo, count, balance, volume };
}

function preguntaDeTraza({ pregunta: p, textos: texts }) {
  if (p.clase === 'envite') return { event: 'dialog', title: p.titulo, mode: p.modo, texts };
  const comunes = { title: tituloDe(p), text: p.texto, texts };
  if (p.clase === 'texto') return { event: 'inputbox', ...comunes, default: p.porDefecto };
  const siNo = p.clase === 'siNo';
  return {
    event: 'msgbox',
    ...comunes,
    buttons: siNo ? 'yesno' : 'ok',
    icon: p.icono ? 'question' : 'none',
    default: siNo ? ['yes', 'no'][p.foco] : 'ok',
  };
}

// What `out.jsonl` says, as far as a page is told it.
export function esperado(juego) {
  const eventos = lineas(join(trazas, juego, 'out.jsonl'))
    .map((linea) => JSON.parse(linea.replaceAll('FOLDER/', '')));
  if (eventos.at(-1)?.reason === 'players') eventos.splice(-2);
  const avisos = eventos.filter(({ event }) => event === 'msgbox').map(({ text }) => text);
  return eventos.map((evento) => {
    if (evento.event === 'state') return { textos: [evento.Text1, evento.Text2, evento.Text3] };
    // An error that a box has told is not told again.
    if (evento.event === 'end' && avisos.includes(evento.text)) return { ...evento, text: '' };
    return evento;
  });
}

// Plays a game. With `cierra` another page goes on after every view with what was kept.
export class Partida {
  eventos = [];
  cerradas = 0;
  #cierra;

  constructor(cierra) { this.#cierra = cierra; }

  async juega(juego) {
    const entradas = lineas(join(trazas, juego, 'in.jsonl')).map((linea) => JSON.parse(linea));
    this.reloj = entradas[0].start.clock;
    this.pagina = await abrirPagina(archivosDe(juego), this.reloj);
    await this.#mira(this.pagina.abrir(null));
    for (const entrada of entradas) {
      if (entrada.start && this.vista.situacion !== 'inicio') continue;
      await this.#mira(entrada.start ? this.#empieza(entrada.start) : this.#toma(entrada));
    }
    return this;
  }

  #empieza({ combos, checks, option, name }) {
    combos.forEach((posicion, combo) => { this.vista = this.pagina.elige(combo, posicion); });
    (checks ?? []).forEach((marcada, casilla) => this.pagina.marca(casilla, marcada));
    if (option !== undefined) this.pagina.estilo(option);
    return this.pagina.aceptar(name ?? this.vista.inicio.nombre.valor);
  }

  #toma(entrada) {
    if ('key' in entrada) return this.pagina.tecla(entrada.key, entrada.shift ?? 0);
    if ('sound' in entrada) return this.pagina.finDeSonido(entrada.sound);
    if ('result' in entrada) return this.pagina.responde(entrada.result);
    if ('text' in entrada) return this.pagina.responde(entrada.text);
    return this.pagina.responde({ yes: true, no: false, cancel: null }[entrada.button]);
  }

  async #mira(vista) {
    this.vista = vista;
    if (vista.situacion !== 'inicio') this.eventos.push(...vista.sucesos.map(sucesoDeTraza));
    if (vista.pregunta) {
      this.eventos.push(preguntaDeTraza(vista));
    } else if (vista.situacion === 'mesa') {
      this.eventos.push({ textos: vista.textos });
    } else if (vista.situacion === 'fin') {
      const { estado, mensaje } = vista.final;
      this.eventos.push({ event: 'end', reason: estado === 0 ? 'quit' : 'error', text: mensaje });
    }
    if (this.#cierra && vista.situacion === 'mesa') await this.#cierraYSigue();
    if (vista.pregunta?.clase === 'aviso') await this.#mira(this.pagina.responde(true));
  }

  async #cierraYSigue() {
    const archivos = {};
    for (const nombre of ['Jugadores.dat', 'mus.ini']) {
      const bytes = this.pagina.archivo(nombre);
      if (bytes) archivos[nombre] = bytes;
    }
    const guardada = this.pagina.guardada();
    this.pagina = await abrirPagina(archivos, this.reloj);
    this.vista = this.pagina.abrir(guardada);
    this.cerradas += 1;
  }
}
