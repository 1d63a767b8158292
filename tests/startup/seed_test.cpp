// The seed from the time of day.
#include "startup/seed.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

#include "tests/support/scripted_port.h"

namespace tasca::test {
namespace {

// A generator and a port whose clock can be set.
struct Reloj {
  std::unique_ptr<Table> t = std::make_unique<Table>();
  Rnd rnd;
  ScriptedPort port;
  Game g{*t, rnd, port};
};

struct CasoHora {
  TimeOfDay Hora;
  std::uint32_t Semilla;
};

TEST(SembrarConHora, MultipliesTheFieldsOfTheClockPlusOne) {
  const std::vector<CasoHora> casos{
      {{.Hora = 0, .Minuto = 0, .Segundo = 0}, 1},
      {{.Hora = 23, .Minuto = 0, .Segundo = 0}, 24},
      {{.Hora = 0, .Minuto = 59, .Segundo = 0}, 60},
      {{.Hora = 0, .Minuto = 0, .Segundo = 59}, 60},
      {{.Hora = 21, .Minuto = 4, .Segundo = 37}, 4180},  // 22 x 5 x 38
      {{.Hora = 23, .Minuto = 59, .Segundo = 59}, 86400},
  };
  for (const CasoHora& caso : casos) {
    Reloj reloj;
    reloj.port.Hora = caso.Hora;
    SembrarConHora(reloj.g);
    std::mt19937 motor{caso.Semilla};
    EXPECT_EQ(reloj.rnd(), static_cast<float>(motor() >> 8U) / 16777216.0F) << caso.Semilla;
  }
}

TEST(SembrarConHora, ResetsTheNumberOfDraws) {
  Reloj reloj;
  reloj.rnd();
  SembrarConHora(reloj.g);
  EXPECT_EQ(reloj.rnd.Draws(), 0U);
}

TEST(SembrarConHora, Kept_GivesTheSameSeedForSeveralTimesOfTheDay) {
  // 1:00:00, 0:01:00 and 0:00:01 all give 2.
  const std::vector<TimeOfDay> horas{{.Hora = 1, .Minuto = 0, .Segundo = 0},
                                     {.Hora = 0, .Minuto = 1, .Segundo = 0},
                                     {.Hora = 0, .Minuto = 0, .Segundo = 1}};
  std::vector<float> sacadas;
  for (const TimeOfDay& hora : horas) {
    Reloj reloj;
    reloj.port.Hora = hora;
    SembrarConHora(reloj.g);
    sacadas.push_back(reloj.rnd());
  }
  EXPECT_EQ(sacadas[0], sacadas[1]);
  EXPECT_EQ(sacadas[1], sacadas[2]);
}

}  // namespace
}  // namespace tasca::test
