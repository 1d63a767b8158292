#pragma once
// Six moments of a match, for the tests of what the window shows.
#include <string>
#include <vector>

#include "scene/scene.h"
#include "table/table.h"

namespace tasca::test {

struct Instante {
  std::string Nombre;
  Table Mesa;
  Momento Cuando = Momento::Reposo;
};

// The start of a hand, the first discards, a bet to be answered, the pares declared, the count with
// all hands laid open, and the end of the match by an órdago.
std::vector<Instante> SeisInstantes();

}  // namespace tasca::test
