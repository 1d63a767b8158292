#pragma once
// The phase machine: every Enter runs the one step of the hand that Fase names.
#include "base/keys.h"
#include "table/game.h"

namespace tasca {

// A key in the input line. Enter runs the step of Fase (an unknown phase does nothing); Q abandons
// the hand, which is not counted, and starts a new one; Ctrl+Shift+0 lays all hands open. A key
// that is used up becomes 0 in KeyCode; any other is left alone. May throw LeaveProgram and
// RunTimeError.
void Text1_KeyDown(Game& g, Integer& KeyCode, Integer Shift);

}  // namespace tasca
