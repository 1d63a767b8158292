// The record of the page in IndexedDB: the game's files, the kept match, the settings.

/**
 * @typedef {{version: number, archivos: Record<string, Uint8Array>, partida: Uint8Array | null,
 *   ajustes: Record<string, any>}} Registro
 */

const Version = 1;
const Base = 'tasca';
const Almacen = 'registros';
const Clave = 'tasca';

/** @template T @param {IDBRequest<T>} peticion @returns {Promise<T>} */
const hecha = (peticion) => new Promise((cumple, falla) => {
  peticion.onsuccess = () => cumple(peticion.result);
  peticion.onerror = () => falla(peticion.error);
});

/** @param {IDBTransaction} t @returns {Promise<void>} */
const acabada = (t) => new Promise((cumple, falla) => {
  t.oncomplete = () => cumple();
  t.onabort = t.onerror = () => falla(t.error);
});

/** @returns {Promise<IDBDatabase>} */
function abreBase() {
  const peticion = indexedDB.open(Base, 1);
  peticion.onupgradeneeded = () => peticion.result.createObjectStore(Almacen);
  return hecha(peticion);
}

/** @param {any} r @returns {r is Registro} */
function sirve(r) {
  const esObjeto = (/** @type {any} */ x) => typeof x === 'object' && x !== null;
  return esObjeto(r) && r.version === Version && esObjeto(r.archivos) && esObjeto(r.ajustes) &&
    Object.values(r.archivos).every((bytes) => bytes instanceof Uint8Array) &&
    (r.partida === null || r.partida instanceof Uint8Array);
}

/** @returns {Registro} */
const vacio = () => ({ version: Version, archivos: {}, partida: null, ajustes: {} });

/** Limits how long a browser may take to open its storage. @param {Promise<any>} promesa */
const aTiempo = (promesa) => Promise.race([promesa,
  new Promise((_, falla) => { setTimeout(() => falla(new Error('No answer')), 5000); })]);

export class AlmacenDePagina {
  /**
   * @param {boolean} guarda  whether this tab keeps what is played
   * @param {(motivo: unknown) => void} alFallar  called once, when nothing is kept any more
   */
  constructor(guarda, alFallar) {
    this.guarda = guarda;
    this.alFallar = alFallar;
    /** @type {IDBDatabase | null} */
    this.base = null;
    this.registro = vacio();
    this.escribiendo = false;
    this.pendiente = false;
  }

  /**
   * Reads the record. A damaged or foreign one is moved unchanged to another key.
   * @returns {Promise<'bien' | 'apartado' | 'sinAlmacen'>}
   */
  async abre() {
    try {
      this.base = await aTiempo(abreBase());
      const leido = await hecha(this.almacen('readonly').get(Clave));
      if (leido === undefined) return 'bien';
      if (sirve(leido)) {
        this.registro = leido;
        return 'bien';
      }
      if (this.guarda) await this.aparta(leido);
      return 'apartado';
    } catch (motivo) {
      this.deja(motivo);
      return 'sinAlmacen';
    }
  }

  /** @param {IDBTransactionMode} modo */
  almacen(modo) {
    if (!this.base) throw new Error('No storage');
    return this.base.transaction(Almacen, modo).objectStore(Almacen);
  }

  /** @param {unknown} registro */
  aparta(registro) {
    const almacen = this.almacen('readwrite');
    almacen.put(registro, `apartado ${new Date().toISOString()}`);
    almacen.delete(Clave);
    return acabada(almacen.transaction);
  }

  /** Nothing is kept from now on. @param {unknown} motivo */
  deja(motivo) {
    const avisa = this.guarda;
    this.guarda = false;
    if (avisa) this.alFallar(motivo);
  }

  /** Changes the record and keeps it. @param {Partial<Registro>} cambios */
  pon(cambios) {
    this.registro = { ...this.registro, ...cambios };
    this.pendiente = true;
    if (!this.escribiendo) this.escribe();
  }

  /** Replaces the whole record, each time in one transaction; the newest last. */
  async escribe() {
    this.escribiendo = true;
    try {
      while (this.pendiente && this.guarda) {
        this.pendiente = false;
        const almacen = this.almacen('readwrite');
        almacen.put(this.registro, Clave);
        await acabada(almacen.transaction);
      }
    } catch (motivo) {
      this.deja(motivo);
    }
    this.escribiendo = false;
  }
}

/** Milliseconds for a tab that is just being closed or loaded anew to leave its place. */
const Espera = 1000;

/**
 * Whether this tab is the one that keeps the match. It stays so until it is closed.
 * @returns {Promise<boolean>}
 */
export function consigueElCerrojo() {
  if (!navigator.locks) return Promise.resolve(true);
  return new Promise((cumple) => {
    navigator.locks.request('tasca', { signal: AbortSignal.timeout(Espera) }, () => {
      cumple(true);
      return new Promise(() => {});
    }).catch((motivo) => cumple(!['AbortError', 'TimeoutError'].includes(motivo?.name)));
  });
}
