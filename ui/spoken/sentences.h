#pragma once
// The game's texts as they are spoken: without padding, and with a pause after every line.
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

// The positions of the characters of `texto` that are no padding. Of a run of blanks one is kept;
// none at the start or the end of a line, and none before a comma or a full stop.
std::vector<int> SitiosSinRelleno(std::u16string_view texto);

// These characters.
std::u16string SinRelleno(std::u16string_view texto);

// The lines of `texto` without padding. Empty lines are dropped. CR LF, CR and LF end a line.
std::vector<std::u16string> Renglones(std::u16string_view texto);

// The lines as one text. A line that ends without a punctuation mark gets a full stop, so that a
// speech synthesizer pauses there.
std::u16string Seguido(const std::vector<std::u16string>& renglones);

}  // namespace tasca
