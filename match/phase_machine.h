#pragma once
// The phase machine: every Enter runs the step of the hand given by Fase.
#include "base/keys.h"
#include "table/game.h"

namespace tasca {

// A key was pressed in the input line. Enter runs the step of Fase; an unknown phase does nothing.
// Q abandons the hand without a count and starts a new one. Both set KeyCode to 0 (consumed).
// Ctrl+Shift+0 shows all hands; it and every other key leave KeyCode unchanged. Shift: bit 0 Shift,
// bit 1 Ctrl, bit 2 Alt. May throw LeaveProgram or RunTimeError.
void Text1_KeyDown(Game& g, Integer& KeyCode, Integer Shift);

}  // namespace tasca
