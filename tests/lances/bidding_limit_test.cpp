// The limit of raises: a computer seat accepts instead of raising a bet beyond a whole juego.
#include <gtest/gtest.h>

#include "lances/grande.h"
#include "lances/pares.h"
#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

// A bet at the grande; nobody has Reyes. At draw 0 a seat with ordaguero 100 raises, with 0 it
// refuses.
struct RaiseBeyondTheJuego : testing::Test {
  Mesa m;

  RaiseBeyondTheJuego() { m.t.Fase = Fase::RespuestaGrande; }

  void Responden(std::initializer_list<float> sacadas = {}) { m.Juega(EnviteGrande, sacadas); }
};

// The juego has 35 stones.
TEST_F(RaiseBeyondTheJuego, Kept_AComputerSeatAcceptsInsteadOfRaisingBeyondTheJuego) {
  m.t.OrdagueroAsiento[2] = 100;
  m.t.Apuesta[NumeroLance::Grande] = 33;
  m.Envidan(1, 3);
  Responden({/*decision*/ 0, /*speech*/ 0, 0});
  EXPECT_EQ(m.Texto(), "Jugador 2: SQui1\r\nenvite querido\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 36);
}

TEST_F(RaiseBeyondTheJuego, AComputerSeatStillRaisesUpToTheJuego) {
  m.t.OrdagueroAsiento[2] = 100;
  m.t.Apuesta[NumeroLance::Grande] = 33;
  m.Envidan(1, 2);
  m.port.Presses(1);
  Responden({/*decision*/ 0, /*amount*/ 0, /*speech*/ 0, 0});
  EXPECT_TRUE(m.Texto().starts_with("Jugador 2: EnvM1 2\r\nAna: SQui1\r\n"));
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 37);
}

TEST_F(RaiseBeyondTheJuego, Kept_LimitIsThePiedrasJuegoOfTheMatch) {
  m.t.OrdagueroAsiento[2] = 100;
  m.t.PiedrasJuego = 8;
  m.t.Apuesta[NumeroLance::Grande] = 4;
  m.Envidan(1, 5);
  Responden({0, 0, 0});
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 9);
}

TEST_F(RaiseBeyondTheJuego, Kept_LimitLeavesOrdagoAndNoQuieroAlone) {
  m.t.Apuesta[NumeroLance::Grande] = 40;
  m.Envidan(1, 2);
  Responden({/*seat 2*/ 0, 0, 0, /*seat 4*/ 0, 0, 0});
  EXPECT_TRUE(m.Texto().starts_with("Jugador 2: NQui1\r\nJugador 4: NQui1\r\n"));

  Mesa otra;
  otra.t.Apuesta[NumeroLance::Grande] = 40;
  otra.Envidan(1, 2);
  otra.t.Piedras[1] = 34;
  otra.port.Presses(0);
  otra.Juega(EnviteGrande, {/*seat 2*/ 0, 0, /*seat 3*/ 0, 0});
  EXPECT_TRUE(otra.Texto().starts_with("Jugador 2: Orda1\r\nAna: NQui1\r\n"));
}

TEST_F(RaiseBeyondTheJuego, Kept_LimitLeavesTheHumansRaiseAlone) {
  m.t.Apuesta[NumeroLance::Grande] = 40;
  m.Envidan(0, 2);
  DarMano(m.t, 2, "R R 5 4");
  m.port.Presses(2).Types(u"10");
  Responden({0, 0});
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 52);
}

// Without the limit two seats with the best pares would raise for ever. Each raise is 5 stones: 2,
// 7, 12, 17, 22, 27, 32; the 37 are accepted.
TEST_F(RaiseBeyondTheJuego, Kept_LimitEndsTheRaisingOfTwoStrongHands) {
  m.t.OrdenPares = {0, 2, 1, 0};
  DarMano(m.t, 2, "R R R R");
  DarMano(m.t, 3, "R R R R");
  m.Envidan(1, 2);
  m.Juega(EnvitePares, {0, 0.75F, 0, 0,  //
                        0, 0.75F, 0, 0,  //
                        0, 0.75F, 0, 0,  //
                        0, 0.75F, 0, 0,  //
                        0, 0.75F, 0, 0,  //
                        0, 0.75F, 0, 0,  //
                        0, 0.75F, 0, 0,  //
                        0, 0,     0});
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Pares], 37);
  EXPECT_TRUE(
      m.Texto().ends_with("Jugador 2: EnvM1 5\r\n"
                          "Jugador 3: SQui1\r\n"
                          "envite querido\r\n"
                          "Pulse enter para continuar"));
}

}  // namespace
}  // namespace tasca::test
