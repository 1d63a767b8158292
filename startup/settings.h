#pragma once
// The settings file "mus.ini": three lines with the match parameters, then the last player's name.
// Without it the game plays with its defaults and remembers nobody. All of these throw RunTimeError
// when the file is there but cannot be used.
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca {

// The first three lines replace PiedrasJuego, JuegosVaca and VacasPartida; a number below 1 or
// above 999 leaves that one alone.
void LeerParametrosPartida(Table& t);

// The last player's name; "" when there is none.
std::u16string LeerIni(const Table& t);

// Puts `nombre` into line 4, and what stood there into line 5. Lines 1 to 3 are kept byte for byte.
// Throws WriteError when the file can be read but not written: nobody needs it to play.
void GuardarIni(const Table& t, std::u16string_view nombre);

}  // namespace tasca
