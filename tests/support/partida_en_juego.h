#pragma once
// Matches to be kept: played step by step without a session.
#include <memory>

#include "match/phase_machine.h"
#include "match/start.h"
#include "table/game.h"
#include "tests/support/state_player.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {

// A match with three characters of the recorded games, whose answers depend on the seed.
struct PartidaEnJuego {
  explicit PartidaEnJuego(unsigned semilla);

  // Presses Enter.
  void Paso();
  void Pasos(int cuantos) {
    for (int i = 0; i < cuantos; ++i) Paso();
  }

  TempFolder Carpeta;
  StatePlayer Jugador;
  std::unique_ptr<Table> Mesa = std::make_unique<Table>();
  Rnd Generador;
  Game Juego{*Mesa, Generador, Jugador};
};

// The table without the characters that take no part in the match.
std::unique_ptr<Table> SoloLosSentados(const Table& t);

}  // namespace tasca::test
