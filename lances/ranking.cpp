// Compares the values of the four hands.
#include "lances/ranking.h"

namespace tasca {

Seat MejorAsiento(const Table& t, const Array<int, 1, 4>& valores) {
  Seat mejor = t.OrdenAsiento[1];
  for (int i = 2; i <= 4; ++i) {
    const Seat asiento = t.OrdenAsiento[i];
    if (valores[asiento] > valores[mejor]) mejor = asiento;
  }
  return mejor;
}

}  // namespace tasca
