#pragma once
// The start-up dialog as prompts.
#include "table/game.h"
#include "ui/terminal/console.h"

namespace tasca {

// Asks for the name, the companions and the way of narrating until the choice is accepted; then the
// match can start. Throws LeaveProgram when the player leaves instead, and RunTimeError.
void AskStartup(Game& g, Console& consola);

}  // namespace tasca
