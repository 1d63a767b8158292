#pragma once
// The start of a match, when the main window opens.
#include "table/game.h"

namespace tasca {

// Resets Form1State, seeds the generator from the clock, reads "mus.ini" and "Jugadores.dat",
// shuffles, deals the first hand and writes the texts. Seat 1 is mano until the first seat refuses
// mus. Requires the seats and options of the start-up dialog. Throws RunTimeError if a file cannot
// be used.
void Form_Load(Game& g);

}  // namespace tasca
