#pragma once
// Seeds the random generator from the time of day.
#include "table/game.h"

namespace tasca {

// Seeds the generator with (hour + 1) x (minute + 1) x (second + 1).
// Kept: many times of day give the same seed, and the same seed deals the same cards.
void SembrarConHora(Game& g);

}  // namespace tasca
