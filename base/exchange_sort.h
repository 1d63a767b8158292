#pragma once
// The one order in which hands are sorted: neighbours change places until none has to.
#include <utility>

#include "base/array.h"

namespace tasca {

// Sorts four elements; equal ones keep their order. `vaAntes(a, b)`: a belongs before b.
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
