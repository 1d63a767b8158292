// Benchmarks of the chronicle: what a step pays for it, and the memory of a thousand hands.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <vector>

#include "base/keys.h"
#include "match/cronica.h"
#include "match/phase_machine.h"
#include "match/start.h"
#include "tests/support/state_player.h"

namespace tasca {
namespace {

using Reloj = std::chrono::steady_clock;

// Plays matches with the shipped characters and notes each step as a session does, except that the
// matches make one chronicle.
class NotedGame {
 public:
  NotedGame() {
    mesa_->Carpeta = TASCA_SOURCE_DIR "/data";
    mesa_->NombreJugador = u"Ana";
    mesa_->PersonajeAsiento = {0, 3, 4, 5};
    mesa_->UsarNombres = true;
    mesa_->UsarExpresiones = true;
    jugador_.OtraPartida = true;
    Form_Load(juego_);
    Relato.Empezar();
  }

  void PlayHand() {
    do {
      jugador_.NewStep();
      const bool abreMano = mesa_->Fase == Fase::EmpezarMano;
      Integer enter = TeclaEnter;
      Text1_KeyDown(juego_, enter, 0);
      const auto antes = Reloj::now();
      if (abreMano) Relato.EmpezarMano();
      Relato.Anotar(*mesa_);
      if (mesa_->Fase == Fase::EmpezarMano) Relato.TerminarMano(*mesa_);
      Steps.push_back(std::chrono::duration<double, std::micro>(Reloj::now() - antes).count());
    } while (mesa_->Fase != Fase::EmpezarMano);
  }

  Cronica Relato;
  std::vector<double> Steps;  // in microseconds

 private:
  std::unique_ptr<Table> mesa_ = std::make_unique<Table>();
  Rnd rnd_;
  test::StatePlayer jugador_;
  Game juego_{*mesa_, rnd_, jugador_};
};

void NoteAThousandHands(benchmark::State& estado) {
  for ([[maybe_unused]] auto _ : estado) {
    NotedGame partida;
    for (int mano = 0; mano < 1000; ++mano) partida.PlayHand();
    std::sort(partida.Steps.begin(), partida.Steps.end());
    estado.counters["median_us"] = partida.Steps[partida.Steps.size() / 2];
    estado.counters["99.9th_us"] = partida.Steps[partida.Steps.size() * 999 / 1000];
    estado.counters["bytes"] = static_cast<double>(partida.Relato.Bytes());
    estado.counters["forgotten"] = partida.Relato.Olvidadas();
  }
}
BENCHMARK(NoteAThousandHands)->Unit(benchmark::kMillisecond)->Iterations(1);

// What the player waits for when the chronicle is opened, without painting it.
void JoinAThousandHands(benchmark::State& estado) {
  NotedGame partida;
  for (int mano = 0; mano < 1000; ++mano) partida.PlayHand();
  for ([[maybe_unused]] auto _ : estado) benchmark::DoNotOptimize(partida.Relato.Texto());
}
BENCHMARK(JoinAThousandHands)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tasca
