#pragma once
// Between the game's UTF-16 text and the UTF-8 of the terminal and the trace.
#include <string>
#include <string_view>

namespace tasca {

// What is no valid text (a lone half of a pair, a broken sequence) becomes U+FFFD.
std::string ToUtf8(std::u16string_view texto);
std::u16string FromUtf8(std::string_view bytes);

}  // namespace tasca
