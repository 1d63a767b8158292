#pragma once
// Waits for input while sounds play.
#include <functional>

#include "ui/loudspeaker/media_player.h"

namespace tasca {

// Blocks until the descriptor `teclado` has input or an end of file. Calls `alTerminar` for every
// sound that ends meanwhile. Returns early only if polling fails.
void WaitForLine(int teclado, MediaPlayer& mp1, const std::function<void()>& alTerminar);

}  // namespace tasca
