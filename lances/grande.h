#pragma once
// Grande: the highest cards win, compared one by one from the top; equal hands go to the seat
// nearest the mano. The betting itself is in lances/bidding.h, the stones in count/.
#include "lances/lance.h"

namespace tasca {

void LanceGrande(Game& g);   // the opening step
void EnviteGrande(Game& g);  // the answer step

// Opening decision of a computer seat (2 to 4), by its Reyes. Draws twice, unless the score alone
// decides.
Decision DecideGrande(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat to the bet of SeguirLance. Draws at most once.
Decision RespondeGrande(const Table& t, Rnd& rnd, Seat asiento);

// The pareja with the best grande hand.
Pareja GanaGrande(const Table& t);

// The lance's texts and rules.
const Lance& DatosGrande();

}  // namespace tasca
