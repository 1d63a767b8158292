#pragma once
// What of the transcript the player has not read yet.
#include <string_view>

namespace tasca {

struct NewText {
  std::u16string_view Texto;
  bool Replaces = false;  // what was there before has gone
};

// The part of `ahora` that is new to a player who has read `antes`: what has been appended, also
// when the answer to a bet has meanwhile taken prompts out of the middle; all of it when the text
// is another one. A line break is no news where the terminal has already ended the line.
NewText NewPart(std::u16string_view antes, std::u16string_view ahora);

}  // namespace tasca
