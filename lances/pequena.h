#pragma once
// Pequeña: the lowest cards win, compared one by one from the bottom; equal hands go to the seat
// nearest the mano. The betting itself is in lances/bidding.h, the stones in count/.
#include "lances/lance.h"

namespace tasca {

void LancePequena(Game& g);   // the opening step
void EnvitePequena(Game& g);  // the answer step

// Opening decision of a computer seat (2 to 4), by its Ases. Draws once, unless the score decides.
Decision DecidePequena(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat to the bet of SeguirLance. Draws at most once.
Decision RespondePequena(const Table& t, Rnd& rnd, Seat asiento);

// The pareja with the best pequeña hand.
Pareja GanaPequena(const Table& t);

// The lance's texts and rules.
const Lance& DatosPequena();

}  // namespace tasca
