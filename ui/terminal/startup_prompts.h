#pragma once
// The start-up dialog as prompts.
#include "match/session.h"
#include "ui/terminal/console.h"

namespace tasca {

// Asks for the name, the companions and the way of narrating until the match starts or the player
// leaves. The session has its start-up dialog open.
Situacion AskStartup(Session& sesion, Console& consola);

}  // namespace tasca
