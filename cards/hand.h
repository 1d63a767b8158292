#pragma once
// The start of a hand: the mano moves on, the cards are shuffled and dealt.
#include "table/game.h"

namespace tasca {

// Starts a new hand: the seat after the mano becomes mano, bets and declarations are reset (but the
// punto's), a fresh deck is shuffled twice and dealt, and the player is told. Draws 80,002 times.
void EmpezarMano(Game& g);

}  // namespace tasca
