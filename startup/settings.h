#pragma once
// The settings file "mus.ini": three lines with the match parameters, then the last player's name.
// The file is optional: without it the functions do nothing. They throw RunTimeError if it exists
// but cannot be read or has fewer than four lines (LeerParametrosPartida needs only three).
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca {

// Sets PiedrasJuego, JuegosVaca and VacasPartida to the numbers of the first three lines, rounded.
// A number below 1 or above 999 leaves its parameter unchanged.
void LeerParametrosPartida(Table& t);

// The last player's name: the trimmed text of line 4 before ">". "" if there is no file.
std::u16string LeerIni(const Table& t);

// Writes `nombre` to line 4 and the old line 4 to line 5. Lines 1 to 3 are kept byte for byte;
// later lines are dropped. Throws WriteError if the file can be read but not written, and for a
// table whose files may not be written; callers may ignore it, since the game does not need the
// file.
void GuardarIni(const Table& t, std::u16string_view nombre);

}  // namespace tasca
