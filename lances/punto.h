#pragma once
// Punto: played in place of the juego when nobody has 31. The points nearest to 31 win, 30 being
// the best; equal hands go to the seat nearest the mano. Everybody speaks.
#include "lances/lance.h"

namespace tasca {

void LancePunto(Game& g);   // the opening step
void EnvitePunto(Game& g);  // the answer step

// The pareja with the best punto. A seat with 31 or more, which cannot be, ranks lowest and is told
// in a box.
Pareja MejorPunto(Game& g);

// Opening decision of a computer seat (2 to 4). Draws up to three times, unless the score decides.
// Kept: the more ordaguero, the less it bets.
Decision DecidePunto(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat, by its place and its points. Draws once, unless the score decides.
Decision RespondePunto(const Table& t, Rnd& rnd, Seat asiento);

// The lance's texts and rules.
const Lance& DatosPunto();

}  // namespace tasca
