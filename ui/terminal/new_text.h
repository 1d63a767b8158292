#pragma once
// Finds the part of the transcript that the terminal has not printed yet.
#include <string_view>

#include "match/added_text.h"

namespace tasca {

// What AddedText finds, without the line break that the terminal has already made after a prompt.
NewText NewPart(std::u16string_view antes, std::u16string_view ahora);

}  // namespace tasca
