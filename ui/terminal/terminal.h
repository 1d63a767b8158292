#pragma once
// The whole game at a text terminal.
#include <filesystem>

#include "ui/terminal/console.h"
#include "ui/terminal/terminal_port.h"

namespace tasca {

// Plays with the files of `carpeta` until the player leaves, by an answer or by the end of the
// input: 0. A run-time error is told on standard error: 1.
int RunTerminal(const std::filesystem::path& carpeta, const TerminalStreams& flujos,
                Clock reloj = LocalTime);

}  // namespace tasca
