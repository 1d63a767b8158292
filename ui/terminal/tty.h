#pragma once
// What the system tells about the terminal. The platform's code is in tty_posix.cpp.
#include <cstddef>
#include <functional>

#include "ui/loudspeaker/media_player.h"

namespace tasca {

// Whether standard input is a terminal, which echoes what is typed.
bool InputIsTerminal();
// Whether standard output is a terminal.
bool OutputIsTerminal();

// The current width of the terminal in columns, 0 if the output is no terminal. It can change at
// any time.
std::size_t TerminalWidth();

// The descriptor of standard input for WaitForLine.
int InputDescriptor();

// Blocks until the descriptor `teclado` has input or an end of file. Calls `alTerminar` for every
// sound that ends meanwhile. Returns early only if polling fails.
void WaitForLine(int teclado, MediaPlayer& mp1, const std::function<void()>& alTerminar);

}  // namespace tasca
