#pragma once
// Where a box opens over the main window, so that the player still sees what it is about.
#include <vector>

#include "ui/mesa/rect.h"

namespace tasca {

struct Alrededores {
  Rect Ventana;               // where the box has to stay
  Rect Libre;                 // the free cloth: the best place, if the box fits
  std::vector<Rect> Nunca;    // never covered if there is any other place
  std::vector<Rect> MejorNo;  // covered only if unavoidable
};

// The place for a box of that size: in the middle of the free cloth, or else where it covers the
// least of `Nunca` and then of `MejorNo`, as near to the lower right corner of the window as that
// allows.
Rect SitioDeCaja(double ancho, double alto, const Alrededores& donde);

}  // namespace tasca
