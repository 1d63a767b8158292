#pragma once
// The places of the pieces of a picture as text, one piece a line.
#include <string>
#include <vector>

#include "ui/mesa/layout.h"

namespace tasca::test {

std::string PlacesOfPieces(const std::vector<Pieza>& piezas);

// With the cloth, the Enter key and the free cloth before the pieces.
std::string PlacesOfSheet(const Lamina& hoja);

}  // namespace tasca::test
