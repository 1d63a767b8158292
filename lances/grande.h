#pragma once
// Grande: the highest cards win, compared one by one from the highest; of equal hands the first
// seat in speaking order wins. The betting is in lances/bidding.h, the count in count/.
#include "lances/lance.h"

namespace tasca {

void LanceGrande(Game& g);   // the opening step: AbrirLance
void EnviteGrande(Game& g);  // the answer step: ResponderLance

// Opening decision of a computer seat (2 to 4), by its number of Reyes. Draws twice, unless the
// score decides.
Decision DecideGrande(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat to the bet of SeguirLance. Draws at most once.
Decision RespondeGrande(const Table& t, Rnd& rnd, Seat asiento);

// The pareja with the best hand for grande.
Pareja GanaGrande(const Table& t);

// The texts and rules of grande.
const Lance& DatosGrande();

}  // namespace tasca
