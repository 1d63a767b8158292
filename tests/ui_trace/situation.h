#pragma once
// The part of the table that the invariants check. It is read from a table or from a trace's state.
#include <array>
#include <cstdint>
#include <string>

#include "base/rnd.h"
#include "table/table.h"

namespace tasca::test {

// The fields have the names of the table's. All lists start at index 0.
struct Situation {
  std::array<int, 40> Baraja{};
  int CartaSiguiente = 0;
  int DescarteSiguiente = 0;
  std::array<std::array<int, 4>, 4> Manos{};

  int Fase = 0;
  std::array<int, 4> OrdenAsiento{};
  int SeguirLance = 0;
  int RondasMus = 0;

  std::array<int, 2> Piedras{};
  std::array<int, 2> Juegos{};
  std::array<int, 2> Vacas{};
  int JuegosVaca = 0;
  int VacasPartida = 0;
  std::string Text3;  // non-ASCII characters may have any encoding

  std::uint64_t Draws = 0;
};

Situation SituationOf(const Table& t, const Rnd& rnd);

}  // namespace tasca::test
