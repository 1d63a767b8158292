#pragma once
// The cast as people write it: a UTF-8 text with one line "key: text" for every name, number, story
// and phrase. Lines that are empty or begin with "#" are for the reader alone.
#include <filesystem>

#include "table/table.h"

namespace tasca {

// Fills characters 1 to 100 of `t`, which has none yet, and tells how many there are. A character
// begins with its "Nombre"; "Ordaguero", "Historia" and up to three phrases under each tag of the
// character file follow in any order. Throws RunTimeError, with the line, for anything else, and
// for a text that the character file could not hold.
int LeerReparto(Table& t, const std::filesystem::path& archivo);

}  // namespace tasca
