#pragma once
// Breaking long lines between words.
#include <cstddef>
#include <string>
#include <string_view>

namespace tasca {

// The UTF-8 text with a line feed in place of the blanks at which a line of it would grow longer
// than `ancho` characters; 0 leaves all lines whole. Its own line breaks and the blanks within a
// line stay. A word that is longer than a line is not broken.
std::string Wrap(std::string_view texto, std::size_t ancho);

}  // namespace tasca
