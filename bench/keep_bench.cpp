// Benchmarks of keeping a match: the bytes of a match, and what a step waits for.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "cards/deck.h"
#include "keep/conservador.h"
#include "keep/partida_guardada.h"
#include "match/start.h"
#include "tests/support/state_player.h"

namespace tasca {
namespace {

// A match with the shipped characters, and an empty folder for it.
struct KeptMatch {
  KeptMatch() {
    std::filesystem::remove_all(Estado);
    Mesa->Carpeta = TASCA_SOURCE_DIR "/data";
    Mesa->NombreJugador = u"Ana";
    Mesa->PersonajeAsiento = {0, 3, 4, 5};
    Form_Load(Juego);
  }
  KeptMatch(const KeptMatch&) = delete;
  KeptMatch& operator=(const KeptMatch&) = delete;
  ~KeptMatch() { std::filesystem::remove_all(Estado); }

  std::filesystem::path Estado = std::filesystem::temp_directory_path() / "tasca-bench-keep";
  std::unique_ptr<Table> Mesa = std::make_unique<Table>();
  Rnd Generador;
  test::StatePlayer Jugador;
  Game Juego{*Mesa, Generador, Jugador};
};

void WriteBytes(benchmark::State& estado) {
  const KeptMatch partida;
  std::size_t bytes = 0;
  for ([[maybe_unused]] auto _ : estado) {
    bytes = EscribirPartida(*partida.Mesa, partida.Generador).size();
  }
  estado.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(WriteBytes)->Unit(benchmark::kMicrosecond);

void ReadBytes(benchmark::State& estado) {
  const KeptMatch partida;
  const std::string bytes = EscribirPartida(*partida.Mesa, partida.Generador);
  const auto mesa = std::make_unique<Table>();
  Rnd rnd;
  for ([[maybe_unused]] auto _ : estado) {
    benchmark::DoNotOptimize(LeerPartida(bytes, *mesa, rnd));
  }
}
BENCHMARK(ReadBytes)->Unit(benchmark::kMicrosecond);

// The part of a step that keeps the match: the save goes on while the player reads.
void KeepAStep(benchmark::State& estado) {
  KeptMatch partida;
  Conservador conservador{partida.Estado};
  for ([[maybe_unused]] auto _ : estado) {
    partida.Mesa->Text2 += u'.';
    conservador.Guardar(partida.Juego);
    estado.PauseTiming();
    conservador.Esperar();
    estado.ResumeTiming();
  }
}
BENCHMARK(KeepAStep)->Unit(benchmark::kMicrosecond)->Iterations(500);

// The whole save, for which a step waits only if it begins at once.
void KeepAndWait(benchmark::State& estado) {
  KeptMatch partida;
  Conservador conservador{partida.Estado};
  for ([[maybe_unused]] auto _ : estado) {
    partida.Mesa->Text2 += u'.';
    conservador.Guardar(partida.Juego);
    conservador.Esperar();
  }
}
BENCHMARK(KeepAndWait)->Unit(benchmark::kMicrosecond)->Iterations(500);

}  // namespace
}  // namespace tasca
