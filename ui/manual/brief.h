#pragma once
// The sections of the manual in short, for the terminal.
#include <string>
#include <string_view>

namespace tasca {

// The block quote after the heading with this anchor: a few lines of plain text, with line feeds
// between them. "" if there is none.
std::u16string BriefOf(std::string_view ancla);

}  // namespace tasca
