#pragma once
// The start of a match: the main window opens.
#include "table/game.h"

namespace tasca {

// Seeds the generator from the time of day: (hour + 1) x (minute + 1) x (second + 1).
// Kept: only 86,400 values, so the same second deals the same cards.
void SembrarConHora(Game& g);

// Builds the main window's state anew, reads "mus.ini" and "Jugadores.dat", shuffles, deals the
// first hand and writes what the player reads first. Throws RunTimeError for a faulty file.
void Form_Load(Game& g);

}  // namespace tasca
