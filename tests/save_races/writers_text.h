#pragma once
// What each of the programs that save at once writes.
#include <string>

#include "table/table.h"

namespace tasca::test {

std::u16string WritersName(int numero);

// The writer's cast, long enough to be written in several pieces; tells how many characters it has.
int FillCast(Table& t, int numero);

}  // namespace tasca::test
