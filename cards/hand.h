#pragma once
// The start of a hand: the next seat becomes mano, the cards are shuffled and dealt.
#include "table/game.h"

namespace tasca {

// Starts a new hand. The seat after the mano becomes mano; a new deck is shuffled twice and dealt.
// Kept: the bets and declarations of all lances are reset except the punto's.
// Sets Fase to Mus, shows the human's hand in Text1 and Text2, and plays the sound of dealing.
// Draws 80,002 times.
void EmpezarMano(Game& g);

}  // namespace tasca
