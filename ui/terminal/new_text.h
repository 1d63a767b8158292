#pragma once
// Finds the part of the transcript that the terminal has not printed yet.
#include <string_view>

namespace tasca {

struct NewText {
  std::u16string_view Texto;
  bool Replaces = false;  // the transcript does not continue the one printed before
};

// The part of `ahora` that follows `antes`, the transcript last printed. The answer to a bet
// removes "continuar" prompts from the middle of the transcript; the rest still counts as printed.
// If `ahora` does not continue `antes` all of it is new. Skips the line break that the terminal has
// already made after a prompt.
NewText NewPart(std::u16string_view antes, std::u16string_view ahora);

}  // namespace tasca
