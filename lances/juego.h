#pragma once
// Juego: 31 points or more. 31 is the best, then 32, then 40 down to 33; equal hands go to the seat
// nearest the mano. Every seat declares; only when both parejas have juego is the lance bet, by the
// seats that have it. When nobody has, the punto is played instead.
#include "lances/lance.h"

namespace tasca {

void DeclaraJuego(Game& g);  // the declaration step; sets TurnoJuego and SeJuegaPunto
void LanceJuego(Game& g);    // the opening step
void EnviteJuego(Game& g);   // the answer step

// True when the seat's points are 31 or more.
bool TieneJuego(const Table& t, Seat asiento);

// The pareja with the best juego.
Pareja MejorJuego(const Table& t);

// Opening decision of a computer seat (2 to 4). Draws five or six times, unless the score decides.
Decision DecideJuego(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat. Draws once, unless the score decides.
Decision RespondeJuego(const Table& t, Rnd& rnd, Seat asiento);

// The lance's texts and rules.
const Lance& DatosJuego();

}  // namespace tasca
