// The game for a page: loads the module of WebAssembly and wraps its functions (docs/web.md).
import abrirModulo from './modulo.mjs';

const Entrada = { aceptado: 0, si: 1, no: 2, texto: 3, cancelado: 4, boton: 5 };
const Escuchas = ['ultimo', 'mano', 'tanteo', 'quienEsMano'];
const ArchivosDelJuego = ['Jugadores.dat', 'mus.ini'];

function horaLocal() {
  const ahora = new Date();
  return [ahora.getHours(), ahora.getMinutes(), ahora.getSeconds()];
}

// A text as plain text for the screen: line feeds as line breaks, no NUL, and U+FFFD for other control
// characters.
export function paraVer(texto) {
  return texto.replace(/\r\n?/g, '\n').replace(/\0/g, '')
    // eslint-disable-next-line no-control-regex
    .replace(/[\x01-\x08\x0b-\x1f\x7f-\x9f]/g, '\ufffd');
}

// `wasm`, the bytes of the module, is for programs that cannot fetch it beside this file.
export async function abrirTasca({ archivos = {}, mide = () => 0, reloj = horaLocal, wasm } = {}) {
  const modulo = await abrirModulo(wasm ? { mide, wasmBinary: wasm } : { mide });
  const tasca = new Tasca(modulo, reloj);
  for (const [nombre, bytes] of Object.entries(archivos)) tasca.ponArchivo(nombre, bytes);
  return tasca;
}

// What a question accepts: the kind of answer, its number and its text.
function respuestaA(pregunta, valor) {
  if (pregunta.clase === 'aviso') return [Entrada.aceptado, 0, ''];
  if (pregunta.clase === 'siNo' && typeof valor === 'boolean') {
    return [valor ? Entrada.si : Entrada.no, 0, ''];
  }
  if (pregunta.clase === 'texto' && valor === null) return [Entrada.cancelado, 0, ''];
  if (pregunta.clase === 'texto' && typeof valor === 'string') return [Entrada.texto, 0, valor];
  if (pregunta.clase === 'envite' && Number.isInteger(valor)) return [Entrada.boton, valor, ''];
  throw new Error('the question does not accept that answer');
}

class Tasca {
  #modulo;
  #pagina;
  #reloj;
  #pregunta = null;

  constructor(modulo, reloj) {
    this.#modulo = modulo;
    this.#reloj = reloj;
    this.#pagina = modulo._tasca_nueva();
  }

  abrir(guardada) {
    return this.#paso('abrir', ...this.#conBytes(guardada ?? new Uint8Array()), this.#segundos());
  }
  elige(combo, posicion) { return this.#paso('elige', combo, posicion); }
  marca(casilla, marcada) { return this.#paso('marca', casilla, marcada ? 1 : 0); }
  estilo(cual) { return this.#paso('estilo', cual); }
  aceptar(nombre) { return this.#paso('aceptar', nombre, this.#segundos()); }
  enter() { return this.tecla(13); }
  abandona() { return this.tecla(81); }
  verManos() { return this.tecla(48, 3); }
  tecla(codigo, mayusculas = 0) {
    return this.#paso('tecla', codigo, mayusculas, this.#segundos());
  }
  responde(valor) {
    if (!this.#pregunta) throw new Error('no question is open');
    return this.#paso('responde', ...respuestaA(this.#pregunta, valor), this.#segundos());
  }
  finDeSonido(estado = 0) { return this.#paso('finDeSonido', estado, this.#segundos()); }
  salir() { return this.#paso('salir'); }

  guardada() {
    const bytes = this.#bytes('guardada');
    return bytes.length > 0 ? bytes : null;
  }
  reparoAlNombre(nombre) { return this.#texto('reparoAlNombre', nombre); }

  lamina(ancho, alto, letra) { return this.#json('lamina', ancho, alto, letra); }
  marcador(ancho, alto, letra) { return this.#json('marcador', ancho, alto, letra); }
  reparto(m) {
    return this.#json('reparto', Float64Array.of(
      m.ancho, m.alto, 0, m.letra, m.quiereMesa ? 1 : 0, m.altoTanteo, m.anchoRotulo,
      m.altoRotulo, m.altoAyuda, m.altoLinea, m.margenTexto, m.altoTexto1));
  }
  sitioDeCaja(ancho, alto, ventana, libre, nunca, mejorNo) {
    return this.#json('sitioDeCaja', Float64Array.of(
      ancho, alto, ...ventana, ...libre, nunca.length, ...nunca.flat(), mejorNo.length,
      ...mejorNo.flat()));
  }

  mesaHablada() { return this.#json('mesaHablada'); }
  escucha(que) { return this.#texto('escucha', Escuchas.indexOf(que)); }
  cronica() { return this.#texto('cronica'); }
  manual() { return this.#json('manual'); }
  acercaDe() {
    return `La tasca del tío Zarandel, versión ${this.#texto('version')}\r\n\r\n` +
      'El mus de cuatro, contado en prosa.';
  }

  archivo(nombre) {
    const bytes = this.#bytes('leerArchivo', this.#delJuego(nombre));
    return bytes.length > 0 ? bytes : null;
  }
  ponArchivo(nombre, bytes) {
    this.#llama('ponArchivo', this.#delJuego(nombre), ...this.#conBytes(bytes));
  }
  revisar(bytes) { return this.#json('revisar', ...this.#conBytes(bytes)); }

  #delJuego(nombre) {
    if (!ArchivosDelJuego.includes(nombre)) throw new Error(`no file of the game: ${nombre}`);
    return nombre;
  }

  #segundos() {
    const [hora, minuto, segundo] = this.#reloj();
    return (hora * 60 + minuto) * 60 + Math.min(segundo, 59);
  }

  // The two arguments of a function that takes bytes.
  #conBytes(bytes) { return [bytes, bytes.length]; }

  #paso(nombre, ...argumentos) {
    const vista = this.#json(nombre, ...argumentos);
    if (vista.imposible) throw new Error(vista.imposible);
    this.#pregunta = vista.pregunta;
    return vista;
  }
  #json(nombre, ...argumentos) { return JSON.parse(this.#texto(nombre, ...argumentos)); }
  #texto(nombre, ...argumentos) {
    return new TextDecoder().decode(this.#bytes(nombre, ...argumentos));
  }
  #bytes(nombre, ...argumentos) {
    const donde = this.#llama(nombre, ...argumentos);
    return this.#modulo.HEAPU8.slice(donde, donde + this.#modulo._tasca_largo(this.#pagina));
  }

  // Texts and arrays are copied into the module's memory for the call.
  #llama(nombre, ...argumentos) {
    const modulo = this.#modulo;
    const copias = [];
    const copiar = (bytes) => {
      const donde = modulo._malloc(bytes.length + 1);
      copias.push(donde);
      modulo.HEAPU8.set(bytes, donde);
      modulo.HEAPU8[donde + bytes.length] = 0;
      return donde;
    };
    const pasar = (valor) => {
      if (typeof valor === 'string') return copiar(new TextEncoder().encode(valor));
      if (ArrayBuffer.isView(valor)) {
        return copiar(new Uint8Array(valor.buffer, valor.byteOffset, valor.byteLength));
      }
      return valor;
    };
    try {
      return modulo[`_tasca_${nombre}`](this.#pagina, ...argumentos.map(pasar));
    } finally {
      copias.forEach((copia) => modulo._free(copia));
    }
  }
}
