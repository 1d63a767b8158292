// The sounds, by Web Audio. Until the player's first gesture the browser plays nothing.

/**
 * @typedef {{suceso: 'sonido', archivo: string, veces: number, izquierda: number,
 *   derecha: number} | {suceso: 'calla'}} Suceso
 */

export class Sonido {
  /** @param {() => void} alAcabar  called when a sound has ended or cannot be played */
  constructor(alAcabar) {
    this.alAcabar = alAcabar;
    this.encendido = true;
    /** @type {AudioContext | null} */
    this.salida = null;
    /** @type {Map<string, Promise<AudioBuffer>>} */
    this.leidos = new Map();
    /** @type {AudioBufferSourceNode | null} */
    this.fuente = null;
    /** Counts the sounds: the end of one that has been replaced is not told. */
    this.turno = 0;
    const despierta = () => this.despierta();
    for (const gesto of ['pointerup', 'keydown']) addEventListener(gesto, despierta, true);
  }

  /** The first gesture lets the browser play. */
  despierta() {
    try {
      this.salida ??= new AudioContext();
      if (this.salida.state === 'suspended') this.salida.resume().catch(() => {});
    } catch {
      this.salida = null;
    }
  }

  /** @param {boolean} encendido */
  pon(encendido) {
    this.encendido = encendido;
    if (!encendido && this.fuente) this.acaba(this.turno);
  }

  /** @param {Suceso[]} sucesos */
  toma(sucesos) {
    for (const suceso of sucesos) {
      this.turno += 1;
      this.para();
      if (suceso.suceso === 'sonido') this.abre(suceso, this.turno);
    }
  }

  para() {
    const fuente = this.fuente;
    this.fuente = null;
    if (!fuente) return;
    fuente.onended = null;
    fuente.stop();
  }

  /** @param {Extract<Suceso, {suceso: 'sonido'}>} sonido @param {number} turno */
  async abre(sonido, turno) {
    try {
      const salida = this.salida;
      if (!this.encendido || salida?.state !== 'running') throw new Error('silent');
      const muestras = await this.lee(sonido.archivo, salida);
      if (turno === this.turno) this.toca(muestras, sonido, salida, turno);
    } catch {
      setTimeout(() => this.acaba(turno));
    }
  }

  /** @param {string} archivo @param {AudioContext} salida */
  lee(archivo, salida) {
    const conocido = this.leidos.get(archivo);
    if (conocido) return conocido;
    const lectura = fetch(`sonidos/${archivo}`)
      .then((r) => (r.ok ? r.arrayBuffer() : Promise.reject(new Error(archivo))))
      .then((bytes) => salida.decodeAudioData(bytes));
    lectura.catch(() => this.leidos.delete(archivo));
    this.leidos.set(archivo, lectura);
    return lectura;
  }

  /**
   * @param {AudioBuffer} muestras @param {Extract<Suceso, {suceso: 'sonido'}>} sonido
   * @param {AudioContext} salida @param {number} turno
   */
  toca(muestras, { veces, izquierda, derecha }, salida, turno) {
    const fuente = new AudioBufferSourceNode(salida, { buffer: muestras, loop: veces > 1 });
    const canales = new ChannelSplitterNode(salida, { numberOfOutputs: 2 });
    const junta = new ChannelMergerNode(salida, { numberOfInputs: 2 });
    fuente.connect(canales);
    [izquierda, derecha].forEach((gain, canal) => {
      const suyo = Math.min(canal, muestras.numberOfChannels - 1);
      canales.connect(new GainNode(salida, { gain }), suyo).connect(junta, 0, canal);
    });
    junta.connect(salida.destination);
    fuente.onended = () => this.acaba(turno);
    fuente.start();
    if (veces > 1) fuente.stop(salida.currentTime + veces * muestras.duration);
    this.fuente = fuente;
  }

  /** @param {number} turno */
  acaba(turno) {
    if (turno !== this.turno) return;
    this.turno += 1;
    this.para();
    this.alAcabar();
  }
}
