// The game between the module and the page: every step's Vista is shown, heard and kept.
import { Caja } from './cajas.mjs';
import { Inicio } from './inicio.mjs';
import { boton, html, porId } from './svg.mjs';
import * as voz from './voz.mjs';

/** @typedef {any} Vista */

const Ayuda = (/** @type {boolean} */ conSonido) =>
  'Enter: continuar   ·   Q: abandonar la mano   ·   Re Pág y Av Pág: repasar lo dicho   ·   ' +
  `F9: ${conSonido ? 'quitar' : 'poner'} el sonido   ·   F1: manual`;

export class Partida {
  /**
   * @param {any} tasca
   * @param {(texto: string) => string} paraVer
   * @param {import('./almacen.mjs').AlmacenDePagina} almacen
   * @param {import('./ventana.mjs').Ventana} ventana
   * @param {import('./sonido.mjs').Sonido} sonido
   * @param {() => Node} personajes  what the start-up dialog shows of the character file
   */
  constructor(tasca, paraVer, almacen, ventana, sonido, personajes) {
    this.tasca = tasca;
    this.paraVer = paraVer;
    this.almacen = almacen;
    this.ventana = ventana;
    this.sonido = sonido;
    this.personajes = personajes;
    this.situacion = 'fin';
    this.asunto = '';
    /** @type {Inicio | null} */
    this.inicio = null;
    /** @type {Caja | null} */
    this.caja = null;
    this.final = porId('final');
    new ResizeObserver(() => this.colocaCaja()).observe(porId('cajas'));
  }

  /** Starts, or starts again, with the kept match. */
  abre() {
    this.cierraInicio();
    this.paso(() => this.tasca.abrir(this.almacen.registro.partida));
  }

  cierraInicio() {
    this.inicio?.cierra();
    this.inicio = null;
  }

  /** Does a step and shows what has come of it. @param {() => Vista} hace */
  paso(hace) {
    try {
      this.muestra(hace());
    } catch (error) {
      console.error(error);
      if (error instanceof WebAssembly.RuntimeError) this.seHaParado();
    }
  }

  get enLaMesa() { return this.situacion === 'mesa' && this.caja === null; }

  enter() { if (this.enLaMesa) this.paso(() => this.tasca.enter()); }

  abandona() { if (this.enLaMesa) this.paso(() => this.tasca.abandona()); }

  verManos() { if (this.enLaMesa) this.paso(() => this.tasca.verManos()); }

  salir() { if (this.situacion !== 'fin') this.paso(() => this.tasca.salir()); }

  finDeSonido() { if (this.situacion !== 'fin') this.paso(() => this.tasca.finDeSonido()); }

  /** @param {Vista} vista */
  muestra(vista) {
    this.situacion = vista.situacion;
    this.asunto = vista.asunto;
    this.guarda(vista.archivos);
    this.muestraSituacion(vista);
    voz.dice(vista.dichos.map(this.paraVer));
    if (vista.aviso) voz.avisa(this.paraVer(vista.aviso));
    this.muestraPregunta(vista.pregunta);
    this.sonido.toma(vista.sucesos);
  }

  /** @param {string[]} nombres */
  guarda(nombres) {
    const archivos = { ...this.almacen.registro.archivos };
    for (const nombre of nombres) {
      const bytes = this.tasca.archivo(nombre);
      if (bytes) archivos[nombre] = bytes;
    }
    this.almacen.pon({ archivos, partida: this.tasca.guardada() });
  }

  /** @param {Vista} vista */
  muestraSituacion(vista) {
    this.muestraInicio(vista);
    const hayMesa = vista.situacion === 'mesa' &&
      vista.textos.some((/** @type {string} */ uno) => uno !== '');
    if (vista.situacion === 'mesa') this.ventana.abre();
    else this.ventana.cierra();
    if (hayMesa) {
      this.ventana.muestraTextos(vista.textos);
      this.muestraAyuda();
    }
    if (vista.situacion === 'fin') this.despide(vista.final);
    else this.final.hidden = true;
  }

  muestraAyuda() { this.ventana.muestraAyuda(Ayuda(this.sonido.encendido)); }

  /** @param {Vista} vista */
  muestraInicio(vista) {
    if (!vista.inicio) {
      this.cierraInicio();
    } else if (this.inicio) {
      this.inicio.muestra(vista.inicio);
    } else {
      this.inicio = new Inicio(porId('inicio'), vista.inicio, this.paraVer, this.pasosDeInicio(),
        this.personajes());
    }
  }

  /** @returns {import('./inicio.mjs').Pasos} */
  pasosDeInicio() {
    const { tasca } = this;
    const si = (/** @type {() => Vista} */ hace) => { if (!this.caja) this.paso(hace); };
    return {
      elige: (combo, posicion) => si(() => tasca.elige(combo, posicion)),
      marca: (cual, marcada) => si(() => tasca.marca(cual, marcada)),
      estilo: (cual) => si(() => tasca.estilo(cual)),
      aceptar: (nombre) => si(() => tasca.aceptar(nombre)),
      salir: () => this.salir(),
      reparo: (nombre) => tasca.reparoAlNombre(nombre),
    };
  }

  /** @param {import('./cajas.mjs').Pregunta | null} pregunta */
  muestraPregunta(pregunta) {
    const sigue = this.caja && !this.caja.respondida &&
      JSON.stringify(this.caja.pregunta) === JSON.stringify(pregunta);
    if (sigue) return;
    const habia = this.caja !== null;
    this.caja?.cierra();
    this.caja = pregunta && new Caja(porId('cajas'), pregunta, this.paraVer, (respuesta) =>
      this.paso(() => this.tasca.responde(respuesta)));
    this.ventana.continuar.toggleAttribute('disabled', this.caja !== null);
    if (this.caja) this.colocaCaja();
    else if (this.situacion === 'mesa' || habia) this.enfoca();
  }

  /** The focus goes where the next key belongs. */
  enfoca() {
    if (this.caja) this.caja.enfoca();
    else if (this.situacion === 'mesa') this.ventana.texto1.focus({ preventScroll: true });
    else this.inicio?.enfoca();
  }

  colocaCaja() {
    if (!this.caja) return;
    const { dialogo } = this.caja;
    const { clientWidth, clientHeight } = porId('cajas');
    const { offsetWidth: ancho, offsetHeight: alto } = dialogo;
    const [x, y] = this.situacion === 'mesa' && this.ventana.partes ?
      this.ventana.sitioDeCaja(ancho, alto) :
      [(clientWidth - ancho) / 2, (clientHeight - alto) / 3];
    dialogo.style.left = `${Math.max(0, Math.min(x, clientWidth - ancho))}px`;
    dialogo.style.top = `${Math.max(0, Math.min(y, clientHeight - alto))}px`;
  }

  /** @param {'ultimo' | 'mano' | 'tanteo' | 'quienEsMano'} que */
  escucha(que) {
    if (this.situacion !== 'mesa') return;
    const dicho = this.paraVer(this.tasca.escucha(que));
    this.ventana.muestraAyuda(dicho);
    voz.responde(dicho);
  }

  /** The game is over, or has been left. @param {{estado: number, mensaje: string}} final */
  despide({ mensaje }) {
    const queda = this.almacen.registro.partida !== null;
    const dicho = mensaje ? this.paraVer(mensaje) : queda ?
      'Hasta otra. La partida queda a medias, y puede seguir con ella.' : 'Hasta otra.';
    const sigue = boton(queda ? 'Seguir con la partida' : 'Volver a la tasca', () => this.abre());
    const botones = queda ? [sigue, boton('Empezar otra', () => this.empiezaOtra())] : [sigue];
    this.final.replaceChildren(html('p', { role: 'status' }, dicho),
      html('div', { class: 'botones' }, ...botones));
    this.final.hidden = false;
    sigue.focus();
  }

  /** The match that was kept is lost. */
  empiezaOtra() {
    this.almacen.pon({ partida: null });
    this.abre();
  }

  /** The module is in no known state: only the kept match helps. */
  seHaParado() {
    voz.avisa('El juego se ha parado por un error. Vuelva a cargar la página para seguir.');
  }
}
