#pragma once
// The seed of the random generator: the time of day.
#include "table/game.h"

namespace tasca {

// Seeds the generator with (hour + 1) x (minute + 1) x (second + 1).
// Kept: many seconds of the day share a seed, and a seed always deals the same cards.
void SembrarConHora(Game& g);

}  // namespace tasca
