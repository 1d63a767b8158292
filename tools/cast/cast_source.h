#pragma once
// Reads the cast's source, data/personajes.txt: UTF-8, one line "key: text" for every name, number,
// story and phrase. Empty lines and lines that begin with "#" are ignored.
#include <filesystem>

#include "table/table.h"

namespace tasca {

// Reads the characters into places 1 to 100 of `t`, which must be empty, and returns their number.
// A character begins with its "Nombre"; "Ordaguero", "Historia" and up to three phrases for each
// tag of the character file follow in any order. Throws RunTimeError with the line number for any
// other line, and for a text that the character file cannot hold.
int LeerReparto(Table& t, const std::filesystem::path& archivo);

}  // namespace tasca
