#pragma once
// Conversion between the game's UTF-16 text and the UTF-8 of the terminal and the trace.
#include <string>
#include <string_view>

namespace tasca {

// An unpaired surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view texto);
// An invalid sequence becomes U+FFFD.
std::u16string FromUtf8(std::string_view bytes);

}  // namespace tasca
