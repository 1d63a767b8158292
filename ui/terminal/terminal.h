#pragma once
// The whole game at a text terminal.
#include <filesystem>

#include "ui/terminal/console.h"
#include "ui/terminal/terminal_port.h"

namespace tasca {

// Plays with the files of `carpeta` until the player leaves or the input ends. Returns the exit
// status: 0, or 1 after a run-time error, which is reported on flujos.Err.
int RunTerminal(const std::filesystem::path& carpeta, const TerminalStreams& flujos,
                Clock reloj = LocalTime);

}  // namespace tasca
