#pragma once
// Pequeña: the lowest cards win, compared one by one from the lowest; of equal hands the first seat
// in speaking order wins. The betting is in lances/bidding.h, the count in count/.
#include "lances/lance.h"

namespace tasca {

void LancePequena(Game& g);   // the opening step: AbrirLance
void EnvitePequena(Game& g);  // the answer step: ResponderLance

// Opening decision of a computer seat (2 to 4), by its number of Ases. Draws once, unless the score
// decides.
Decision DecidePequena(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat to the bet of SeguirLance. Draws at most once.
Decision RespondePequena(const Table& t, Rnd& rnd, Seat asiento);

// The pareja with the best hand for pequeña.
Pareja GanaPequena(const Table& t);

// The texts and rules of pequeña.
const Lance& DatosPequena();

}  // namespace tasca
