#pragma once
// The sounds of cards, from three elements: a click (bright noise of a few milliseconds, a card
// that strikes something), a knock (low resonances of the table) and a hiss (a card that slides).
#include "tools/synth/clip.h"

namespace tasca::synth {

// 2.2 seconds: a riffle shuffle, the bridge, and the pack tapped on the table.
Clip Shuffle();
// 2.5 seconds: sixteen cards dealt to four places.
Clip Deal();
// 0.24 seconds: one card thrown on a wooden table.
Clip OneCard();

}  // namespace tasca::synth
