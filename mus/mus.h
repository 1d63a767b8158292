#pragma once
// Mus: before the lances every seat says whether it wants to change cards. While all four want it,
// all discard and draw; the first to refuse ends the phase, and in the first hand becomes mano.
#include "table/game.h"

namespace tasca {

// One round of questions: a discard pass if all want mus (Fase stays 0), otherwise on to the
// grande.
void FaseMus(Game& g);

// Makes `asiento` the mano: the speaking order runs from it.
void OrdenarDesde(Table& t, Seat asiento);

// Whether a computer seat (2 to 4) wants mus. Draws once.
bool DecideMus(const Table& t, Rnd& rnd, Seat asiento);

// How good the hand is for cutting the mus: juego, stones still needed, place in the order.
int PuntuacionMus(const Table& t, Seat asiento);

// Which cards (slots 1..4) a computer seat throws: all but its Reyes and Treses.
Array<bool, 1, 4> DecideDescarte(const Table& t, Seat asiento);

// One discard pass of all four seats, from the mano. The human names cards by their numbers. Thrown
// cards go on the pile of discards in the deck.
void Descartar(Game& g);

}  // namespace tasca
