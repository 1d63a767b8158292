#pragma once
// The betting that all lances share. In the opening the seats speak from the mano until one bets or
// all have passed; in the answer the other pareja accepts, refuses or raises until the bet is
// settled.
#include "lances/lance.h"

namespace tasca {

// The opening step of a lance. A bet is left standing in SeguirLance and moves Fase to the answer.
void AbrirLance(Game& g, const Lance& lance);

// The answer step: settles the bet of SeguirLance. Refused, its stones are paid at once and Apuesta
// becomes -2; accepted, they wait in Apuesta for the count; an accepted órdago decides the juego.
void ResponderLance(Game& g, const Lance& lance);

}  // namespace tasca
