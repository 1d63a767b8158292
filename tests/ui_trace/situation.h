#pragma once
// What the invariants look at while the game waits for a key: the table's numbers and scoreboard.
// A game of the rules alone gives it from its table, a trace from its states.
#include <array>
#include <cstdint>
#include <string>

#include "base/rnd.h"
#include "table/table.h"

namespace tasca::test {

// The fields are the table's own. Lists start at 0, whatever the table counts them from.
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
  std::string Text3;  // a character beyond ASCII may stand as anything but ASCII

  std::uint64_t Draws = 0;
};

Situation SituationOf(const Table& t, const Rnd& rnd);

}  // namespace tasca::test
