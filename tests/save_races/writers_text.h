#pragma once
// The texts that a writer saves.
#include <string>

#include "table/table.h"

namespace tasca::test {

// The player's name that writer `numero` saves.
std::u16string WritersName(int numero);

// Fills in the characters of writer `numero` and returns their number. Their file is too long for a
// single buffered write.
int FillCast(Table& t, int numero);

}  // namespace tasca::test
