#pragma once
// The sounds of cards. A card that strikes something gives a click of a few thousandths of a
// second, bright and without pitch; the table under it a low dull knock; a card drawn over others
// hisses.
#include "tools/synth/clip.h"

namespace tasca::synth {

// A riffle, the bridge, and the pack squared on the table: 2.2 s.
Clip Shuffle();
// Sixteen cards to four places: 2.5 s.
Clip Deal();
// One card thrown on a wooden table: 0.24 s.
Clip OneCard();

}  // namespace tasca::synth
