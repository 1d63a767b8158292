#pragma once
// Finds the seat with the best hand.
#include "table/table.h"

namespace tasca {

// The seat with the highest value. Of equal values the first seat in speaking order wins.
Seat MejorAsiento(const Table& t, const Array<int, 1, 4>& valores);

}  // namespace tasca
