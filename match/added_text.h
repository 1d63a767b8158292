#pragma once
// Finds what a step has added to the transcript.
#include <string_view>

namespace tasca {

struct NewText {
  std::u16string_view Texto;
  bool Replaces = false;  // the transcript does not continue the one of before
};

// The part of `ahora` that follows `antes`. The answer to a bet removes "continuar" prompts from
// the middle of the transcript; the rest still counts as known. If `ahora` does not continue
// `antes` all of it is new.
NewText AddedText(std::u16string_view antes, std::u16string_view ahora);

}  // namespace tasca
