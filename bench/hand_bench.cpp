// Benchmarks of a hand: the two shuffles, a plain loop of the same draws, and a whole hand.
#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <string>
#include <utility>

#include "cards/deck.h"
#include "cards/hand.h"
#include "characters/character_file.h"
#include "match/phase_machine.h"
#include "table/dialog.h"

namespace tasca {
namespace {

constexpr std::uint32_t Semilla = 2024;

// The human passes, refuses mus and keeps all cards.
class PassingPort : public Port {
 public:
  void MsgBox(const Table& /*t*/, std::u16string_view /*texto*/) override {}
  // Answers no to mus, and to other players after a match; yes to the rest.
  bool YesNoBox(const Table& /*t*/, Pregunta sobre, const YesNoQuestion& pregunta) override {
    if (sobre == Pregunta::Mus || sobre == Pregunta::CambiarJugadores) return false;
    return sobre == Pregunta::OtraPartida || pregunta.PorDefecto;
  }
  std::u16string InputBox(const Table& /*t*/, Pregunta /*sobre*/,
                          const InputQuestion& /*pregunta*/) override {
    return {};
  }
  void ShowDialog(const Table& /*t*/, Dialog& dialogo) override { Command1_Click(dialogo, 0); }
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return {}; }
};

Table MesaConFrases() {
  Table t;
  t.PiedrasJuego = 35;
  t.JuegosVaca = 3;
  t.VacasPartida = 3;
  t.OrdenAsiento = {1, 2, 3, 4};
  t.PersonajeAsiento = {0, 3, 4, 5};
  t.NombreJugador = u"Ana";
  t.UsarExpresiones = true;
  for (int personaje = 1; personaje <= 5; ++personaje) {
    for (int categoria = 1; categoria <= 14; ++categoria) {
      for (int hueco = 1; hueco <= 3; ++hueco) {
        t.Mensajes[personaje][categoria][hueco] = u"lo que sea";
      }
    }
  }
  return t;
}

void TwoShuffles(benchmark::State& estado) {
  Table t;
  Rnd rnd;
  rnd.Seed(Semilla);
  CrearBaraja(t, rnd);
  for ([[maybe_unused]] auto _ : estado) {
    Barajar(t, rnd, 40);
    Barajar(t, rnd, 40);
    benchmark::DoNotOptimize(t.Baraja);
  }
}
BENCHMARK(TwoShuffles)->Unit(benchmark::kMicrosecond);

void PlainLoop(benchmark::State& estado) {
  std::mt19937 motor{Semilla};
  std::array<std::int16_t, 40> baraja{};
  const auto sacar = [&motor] {
    return static_cast<std::size_t>(40.0F * (static_cast<float>(motor() >> 8U) * 0x1p-24F));
  };
  for ([[maybe_unused]] auto _ : estado) {
    for (int vez = 0; vez < 2; ++vez) {
      benchmark::DoNotOptimize(motor());
      for (int i = 0; i < 20000; ++i) {
        const std::size_t a = sacar();
        const std::size_t b = sacar();
        std::swap(baraja[a], baraja[b]);
      }
    }
    benchmark::DoNotOptimize(baraja);
  }
}
BENCHMARK(PlainLoop)->Unit(benchmark::kMicrosecond);

void WholeHand(benchmark::State& estado) {
  Table t = MesaConFrases();
  Rnd rnd;
  rnd.Seed(Semilla);
  PassingPort port;
  Game g{t, rnd, port};
  for ([[maybe_unused]] auto _ : estado) {
    t.Fase = Fase::EmpezarMano;
    do {
      Integer tecla = TeclaEnter;
      Text1_KeyDown(g, tecla, 0);
    } while (t.Fase != Fase::EmpezarMano);
  }
}
BENCHMARK(WholeHand)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tasca
