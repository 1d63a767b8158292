#pragma once
// Mus: before the lances each seat says whether it wants to change cards. If all four want mus, all
// discard and are dealt new cards, and the question is repeated. The first seat to refuse ends the
// phase; in the first hand it becomes mano.
#include "table/game.h"

namespace tasca {

// One round of questions. If all want mus: one discard pass, Fase stays Mus. Otherwise sets
// ParejaCortaMus and Fase to Grande.
void FaseMus(Game& g);

// Makes `asiento` the mano: sets OrdenAsiento to the seats from `asiento` on.
void OrdenarDesde(Table& t, Seat asiento);

// Whether a computer seat (2 to 4) wants mus: its chance, and the hands that refuse. Draws once.
bool DecideMus(const Table& t, Rnd& rnd, Seat asiento);

// Score of a hand for refusing mus, -3 to 4: higher with a juego of 31 or 32 and near the target of
// stones, lower the later the seat speaks. Kept: DecideMus computes it, and it has no effect.
int PuntuacionMus(const Table& t, Seat asiento);

// The slots (1..4) of the cards that a computer seat discards: all but Reyes and Treses.
Array<bool, 1, 4> DecideDescarte(const Table& t, Seat asiento);

// One discard pass: all four seats in speaking order discard and are dealt new cards. The human
// types the slot numbers in an input box. Plays the sounds and shows the human's new hand.
void Descartar(Game& g);

}  // namespace tasca
