#pragma once
// Stable bubble sort of four elements. All hands are sorted by it, so that the order of equal cards
// is defined.
#include <utility>

#include "base/array.h"

namespace tasca {

// Sorts `filas`; equal elements keep their order. `vaAntes(a, b)` is true if a belongs before b;
// requires a strict weak ordering, otherwise the loop may not end.
template <class T, class Comparacion>
void OrdenarPorCambios(Array<T, 1, 4>& filas, Comparacion vaAntes) {
  bool cambios = true;
  while (cambios) {
    cambios = false;
    for (int j = 4; j >= 2; --j) {
      if (!vaAntes(filas[j], filas[j - 1])) continue;
      std::swap(filas[j - 1], filas[j]);
      cambios = true;
    }
  }
}

}  // namespace tasca
