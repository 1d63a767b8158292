#pragma once
// What happens while the program waits for the player's next line: sounds end, and others follow.
#include <functional>

#include "ui/loudspeaker/media_player.h"

namespace tasca {

// Waits until there is something to read at the descriptor `teclado`, or its end. Meanwhile
// `alTerminar` is called for every sound that ends.
void WaitForLine(int teclado, MediaPlayer& mp1, const std::function<void()>& alTerminar);

}  // namespace tasca
