#pragma once
// The start of a match: the main window opens.
#include "table/game.h"

namespace tasca {

// Builds the main window's state anew, reads "mus.ini" and "Jugadores.dat", shuffles, deals the
// first hand and writes what the player reads first. Throws RunTimeError for a faulty file.
void Form_Load(Game& g);

}  // namespace tasca
