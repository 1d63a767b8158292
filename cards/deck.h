#pragma once
// The 40 cards and what they are worth, the shuffle and the deal. At this table a Tres counts as a
// Rey and a Dos as an As.
#include "table/game.h"

namespace tasca {

inline constexpr int ValorRey = 10;  // ValorGrande of Reyes and Treses, the highest
inline constexpr int ValorAs = 1;    // ValorGrande of Ases and Doses, the lowest

// The card record that a seat holds in slot 1..4.
const Card& CartaDe(const Table& t, Seat asiento, int hueco);

// The number of the seat's cards whose ValorGrande is `valor`.
int CuentaCartas(const Table& t, Seat asiento, int valor);

// The sum of the seat's four ValorJuego.
int PuntosJuego(const Table& t, Seat asiento);

// The points of the best juego, and the fewest that are one.
inline constexpr int Treintayuna = 31;

// Builds the card records and a fresh deck, and shuffles it once (40,001 draws).
void CrearBaraja(Table& t, Rnd& rnd);

// Shuffles the first N positions (1..40) of the deck: 40,001 draws.
void Barajar(Table& t, Rnd& rnd, Integer N);

// Deals N cards (1..4) into the last N slots of the seat's hand, then sorts it by falling
// ValorGrande, equal cards in the order in which they lie. Past position 40 the player is told, and
// dealing goes on from position 1, where the discards lie. With N = 0 it only sorts.
void Repartir(Game& g, Seat asiento, Integer N);

}  // namespace tasca
