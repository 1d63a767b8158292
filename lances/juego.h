#pragma once
// Juego: 31 points or more. 31 is the best, then 32, then 40 down to 33; of equal hands the first
// seat in speaking order wins. Every seat declares whether it has juego. If both parejas have, the
// seats that have it bet. If nobody has, the punto is played instead.
#include "lances/lance.h"

namespace tasca {

// The declaration step: every seat declares in speaking order; the human is asked. Sets TurnoJuego,
// and Fase to Juego if both parejas have juego, to Cuenta if one has. If nobody has, sets
// SeJuegaPunto, and Fase to Punto.
void DeclaraJuego(Game& g);
void LanceJuego(Game& g);   // the opening step: AbrirLance
void EnviteJuego(Game& g);  // the answer step: ResponderLance

// True if the seat has 31 points or more.
bool TieneJuego(const Table& t, Seat asiento);

// The pareja with the best juego. Requires that a seat has juego.
Pareja MejorJuego(const Table& t);

// Opening decision of a computer seat (2 to 4). Requires TurnoJuego. Draws five or six times,
// unless the score decides.
Decision DecideJuego(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat to the bet of SeguirLance. Requires TurnoJuego. Draws once, unless the
// score decides.
Decision RespondeJuego(const Table& t, Rnd& rnd, Seat asiento);

// The texts and rules of juego.
const Lance& DatosJuego();

}  // namespace tasca
