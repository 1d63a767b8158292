#pragma once
// The 40 cards and their values, the shuffle and the deal. A Tres counts as a Rey and a Dos as an
// As.
#include "table/game.h"

namespace tasca {

inline constexpr int ValorRey = 10;     // ValorGrande of Reyes and Treses, the highest
inline constexpr int ValorAs = 1;       // ValorGrande of Ases and Doses, the lowest
inline constexpr int Treintayuna = 31;  // points of the best juego; fewer points are no juego

// The card of a seat in slot 1..4; the empty card if the slot is empty.
const Card& CartaDe(const Table& t, Seat asiento, int hueco);

// The number of a seat's cards whose ValorGrande is `valor`.
int CuentaCartas(const Table& t, Seat asiento, int valor);

// The points of a seat: the sum of its four ValorJuego, 4 to 40.
int PuntosJuego(const Table& t, Seat asiento);

// "Rey de copas", without padding. Cards are numbered 1 to 40.
std::u16string NombreDeCarta(int carta);

// Sets Cartas, which is the same in every game.
void CrearCartas(Table& t);

// Sets Cartas and Baraja to a new deck with no discards, and shuffles it. Draws 40,001 times.
void CrearBaraja(Table& t, Rnd& rnd);

// Shuffles the first N positions (1..40) of Baraja by random swaps. Draws 40,001 times.
void Barajar(Table& t, Rnd& rnd, Integer N);

// Deals N cards (0..4) into the last N slots of a seat's hand and sorts the hand by descending
// ValorGrande; equal cards keep their order. After position 40 a message box informs the player and
// dealing continues from position 1, where the discards are.
void Repartir(Game& g, Seat asiento, Integer N);

}  // namespace tasca
