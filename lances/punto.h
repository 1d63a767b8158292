#pragma once
// Punto: played instead of the juego if nobody has 31 points. The most points win, 30 at best; of
// equal hands the first seat in speaking order wins. All seats take part.
#include "lances/lance.h"

namespace tasca {

void LancePunto(Game& g);   // the opening step: AbrirLance
void EnvitePunto(Game& g);  // the answer step: ResponderLance

// The pareja with the best punto. Requires that no seat has juego; a message box reports each seat
// that has, and it ranks lowest.
Pareja MejorPunto(Game& g);

// Opening decision of a computer seat (2 to 4). Draws up to three times, unless the score decides.
// Kept: the higher its propensity to the órdago, the less often it bets.
Decision DecidePunto(const Table& t, Rnd& rnd, Seat asiento);

// Answer of a computer seat to the bet of SeguirLance, by its position in the speaking order and
// its points. Draws once, unless the score decides.
Decision RespondePunto(const Table& t, Rnd& rnd, Seat asiento);

// The texts and rules of punto.
const Lance& DatosPunto();

}  // namespace tasca
