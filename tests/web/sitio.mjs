// The site under test, whole or with the files of a recorded game.
import { cp, mkdtemp, readFile, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { sirve } from './servidor.mjs';

const raiz = fileURLToPath(new URL('../../', import.meta.url));
const Juegos = join(raiz, 'tests/traces');

export const Sitio = process.env.TASCA_SITE ?? join(raiz, 'build/web/site');

const lineas = async (archivo) => (await readFile(archivo, 'utf8')).trim().split('\n').map(JSON.parse);

// A recorded game: what is played and what comes of it.
export const juego = async (nombre) => ({
  entrada: await lineas(join(Juegos, nombre, 'in.jsonl')),
  sucesos: await lineas(join(Juegos, nombre, 'out.jsonl')),
});

export const sirveElSitio = () => sirve(Sitio);

// The site with the files of that game as the shipped ones.
export async function sirveElSitioDe(nombre) {
  const copia = await mkdtemp(join(tmpdir(), 'tasca-sitio-'));
  await cp(Sitio, copia, { recursive: true });
  await rm(join(copia, 'datos/mus.ini'), { force: true });
  for (const carpeta of ['folder', `${nombre}/folder`]) {
    await cp(join(Juegos, carpeta), join(copia, 'datos'), { recursive: true, force: true })
      .catch((error) => { if (error.code !== 'ENOENT') throw error; });
  }
  const servidor = await sirve(copia);
  return { url: servidor.url,
    cierra: () => servidor.cierra().then(() => rm(copia, { recursive: true })) };
}
