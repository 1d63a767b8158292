#pragma once
// Who has the best hand of a lance.
#include "table/table.h"

namespace tasca {

// The seat with the highest of four values; of equal ones, the seat nearest the mano.
Seat MejorAsiento(const Table& t, const Array<int, 1, 4>& valores);

}  // namespace tasca
