#pragma once
// The start-up dialog as prompts.
#include "match/session.h"
#include "ui/terminal/console.h"

namespace tasca {

// Asks for the name, the companions and the narration until the match starts or the player leaves.
// Requires a session whose start-up dialog is open. Returns how the game stands then.
Situacion AskStartup(Session& sesion, Console& consola);

}  // namespace tasca
