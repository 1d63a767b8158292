#pragma once
// Word wrap.
#include <cstddef>
#include <string>
#include <string_view>

namespace tasca {

// Breaks the lines of a UTF-8 text between words so that they have at most `ancho` characters; 0
// for no limit. The blanks at a break are dropped, all others are kept. A word longer than `ancho`
// is not broken.
std::string Wrap(std::string_view texto, std::size_t ancho);

}  // namespace tasca
