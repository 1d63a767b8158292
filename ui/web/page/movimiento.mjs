// What moves when the table changes: cards slide from the deck or turn over, stones drop. The
// picture is always the new one; a movement only delays how it is seen.

/** @typedef {import('./piezas.mjs').Pieza} Pieza */
/** @typedef {import('./signos.mjs').Rect} Rect */

const Duracion = 140;
const EntreCartas = 15;
const Frenado = 'cubic-bezier(0.2, 0.8, 0.2, 1)';

/** @param {Pieza} carta */
const sitioDe = (carta) => `${carta.de} ${carta.hueco}`;

/** @param {Pieza[]} piezas @returns {Map<string, Pieza>} */
const cartasDe = (piezas) => new Map(
  piezas.filter((p) => p.pieza === 'carta').map((p) => [sitioDe(p), p]));

/** Where the cards come from: the deck, or the middle. @param {Pieza[]} piezas */
function origen(piezas) {
  const mazo = piezas.find((p) => p.pieza === 'monton') ?? piezas.find((p) => p.pieza === 'adorno');
  return mazo ? centro(mazo.donde) : [0, 0];
}

/** @param {Rect} r */
const centro = ([x, y, ancho, alto]) => [x + ancho / 2, y + alto / 2];

/** @param {Element} elemento @param {Keyframe[]} pasos @param {number} espera */
function anima(elemento, pasos, espera) {
  elemento.animate(pasos, { duration: Duracion, delay: espera, easing: Frenado,
    fill: 'backwards' });
}

/** @param {Pieza} carta @param {Element} elemento @param {number[]} desde */
function desliza(carta, elemento, desde) {
  const [x, y] = centro(carta.donde);
  const alli = `translate(${desde[0] - x}px, ${desde[1] - y}px)`;
  anima(elemento, [{ transform: alli }, { transform: 'none' }], EntreCartas * (carta.hueco - 1));
}

/** @param {Pieza} carta @param {Element} elemento */
function voltea(carta, elemento) {
  anima(elemento, [{ transform: 'scaleX(0)' }, { transform: 'none' }],
    EntreCartas * (carta.hueco - 1));
}

/** @param {Pieza} ficha @param {Element} elemento */
function cae(ficha, elemento) {
  const arriba = `translateY(${-1.5 * ficha.donde[3]}px)`;
  anima(elemento, [{ transform: arriba, opacity: 0 }, { transform: 'none', opacity: 1 }], 0);
}

/**
 * Moves the pieces that are new among `ahora`.
 * @param {Pieza[]} antes @param {Pieza[]} ahora
 * @param {(pieza: Pieza) => Element | undefined} elementoDe
 */
export function mueve(antes, ahora, elementoDe) {
  const cartas = cartasDe(antes);
  const fichas = new Set(antes.filter((p) => p.pieza === 'ficha').map((p) => JSON.stringify(p)));
  for (const pieza of ahora) {
    const elemento = elementoDe(pieza);
    if (!elemento) continue;
    if (pieza.pieza === 'ficha' && !fichas.has(JSON.stringify(pieza))) cae(pieza, elemento);
    if (pieza.pieza !== 'carta') continue;
    const era = cartas.get(sitioDe(pieza));
    if (era && era.carta === 0 && pieza.carta !== 0) voltea(pieza, elemento);
    else if (!era || (era.carta !== 0 && era.carta !== pieza.carta)) {
      desliza(pieza, elemento, origen(ahora));
    }
  }
}
