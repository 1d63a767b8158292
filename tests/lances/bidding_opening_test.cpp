// The opening step: the seats speak from the mano on until one bets.
#include <gtest/gtest.h>

#include <array>

#include "base/errors.h"
#include "lances/grande.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "lances/pequena.h"
#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

// The opening of the pequeña. A seat without Ases always passes; with four its draw decides.
struct AbrirLance : testing::Test {
  Mesa m;

  AbrirLance() {
    m.t.Fase = Fase::Pequena;
    m.t.Text2 = u"lo de antes\r\n";
  }

  void Abren(std::initializer_list<float> sacadas = {}) { m.Juega(LancePequena, sacadas); }
};

TEST_F(AbrirLance, MovesTwoPhasesOnWhenAllFourPass) {
  m.port.Presses(0);
  Abren({0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Pequeña \r\n"
            "Ana: Paso1\r\n"
            "Jugador 2: Paso1\r\n"
            "Jugador 3: Paso1\r\n"
            "Jugador 4: Paso1\r\n"
            "la Pequeña queda en paso\r\n"
            "Pulse enter para continuar\r\n");
  EXPECT_EQ(m.t.Fase, Fase::DeclaracionPares);
  EXPECT_EQ(m.t.SeguirLance, 0);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Pequena], 0);
}

TEST_F(AbrirLance, ForgetsWhatWasSaidBeforeWhenTheHeadingReplacesTheTranscript) {
  m.t.Dichos.resize(5);
  m.port.Presses(0);
  Abren({0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(m.t.Dichos.size(), 4U);
}

TEST_F(AbrirLance, LetsTheSeatsSpeakFromTheMano) {
  m.Hablan({3, 4, 1, 2});
  m.port.Presses(0);
  Abren({0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Pequeña \r\n"
            "Jugador 3: Paso1\r\n"
            "Jugador 4: Paso1\r\n"
            "Ana: Paso1\r\n"
            "Jugador 2: Paso1\r\n"
            "la Pequeña queda en paso\r\n"
            "Pulse enter para continuar\r\n");
}

TEST_F(AbrirLance, ChangesNothingElseWhenAllFourPass) {
  m.port.Presses(0);
  m.t.ParejaEnvite = 1;
  Table antes = m.t;
  Abren({0, 0, 0, 0, 0, 0, 0, 0, 0});
  antes.Text2 = m.t.Text2;
  antes.Fase = Fase::DeclaracionPares;
  antes.Dichos = m.t.Dichos;
  EXPECT_EQ(m.t, antes);
}

TEST_F(AbrirLance, EndsAtTheFirstBet) {
  m.Hablan({2, 3, 4, 1});
  DarMano(m.t, 3, "A A 2 2");
  Abren({0, 0, 0, /*seat 3*/ 0.5F, 0, 0});
  EXPECT_EQ(m.Texto(), "Pequeña \r\nJugador 2: Paso1\r\nJugador 3: Envi1\r\n");
  EXPECT_EQ(m.port.TakeEvents(), Sucesos{});
  EXPECT_EQ(m.t.Fase, Fase::RespuestaPequena);
}

TEST_F(AbrirLance, RecordsNoBetBeforeItIsAnswered) {
  DarMano(m.t, 2, "A A 2 2");
  m.Hablan({2, 3, 4, 1});
  Abren({0.5F, 0, 0});
  EXPECT_EQ(m.t.Apuesta, (Array<Integer, 1, 5>{}));
  EXPECT_EQ(m.Texto(), "Pequeña \r\nJugador 2: Envi1\r\n");
}

TEST_F(AbrirLance, AComputerSeatEnvidaTwoStones) {
  m.Hablan({2, 3, 4, 1});
  m.t.ParejaEnvite = 1;
  DarMano(m.t, 2, "A A 2 2");
  Abren({0.5F, /*speech*/ 0.9F, 0});
  EXPECT_EQ(m.Texto(), "Pequeña \r\nJugador 2: Envi3\r\n");
  EXPECT_EQ(m.t.SeguirLance, 2);
  EXPECT_EQ(m.t.ParejaEnvite, 0);
  EXPECT_EQ(m.t.Fase, Fase::RespuestaPequena);
}

TEST_F(AbrirLance, AComputerSeatBetsMoreByADrawBeforeItSpeaks) {
  m.Hablan({3, 4, 1, 2});
  DarMano(m.t, 3, "A A 2 2");
  Abren({15379113 * Minima, /*amount*/ 0.25F, /*speech*/ 0.375F, 0.375F});
  EXPECT_EQ(m.Texto(), "Pequeña \r\nJugador 3: EnvM2 3\r\n");
  EXPECT_EQ(m.t.SeguirLance, 3);
  EXPECT_EQ(m.t.ParejaEnvite, 1);
  EXPECT_EQ(m.t.Fase, Fase::RespuestaPequena);
}

struct CasoCantidad {
  float sacada;
  int piedras;
};

// 5 r rounded half to even, plus 2. The limits are the draws at which the single-precision product
// rounds to a half.
TEST_F(AbrirLance, TheAmountOfAComputerSeatIsTwoToSeven) {
  const std::array<CasoCantidad, 14> casos{{{0, 2},
                                            {DrawBelow(0.1F), 2},
                                            {DrawFrom(0.1F), 3},
                                            {DrawBelow(0.2F), 3},
                                            {5033164 * Minima, 3},
                                            {5033165 * Minima, 4},  // 1.5 goes to 2
                                            {0.5F, 4},              // 2.5 goes to 2
                                            {0.5F + Minima, 5},
                                            {11744050 * Minima, 5},
                                            {11744051 * Minima, 6},  // 3.5 goes to 4
                                            {15099495 * Minima, 6},  // 4.5 goes to 4
                                            {15099496 * Minima, 7},
                                            {DrawFrom(0.95F), 7},
                                            {Maxima, 7}}};
  for (const CasoCantidad& caso : casos) {
    SCOPED_TRACE(caso.sacada);
    Mesa otra;
    otra.Hablan({2, 3, 4, 1});
    DarMano(otra.t, 2, "A A 2 2");
    otra.Juega(LancePequena, {15379113 * Minima, caso.sacada, 0, 0});
    EXPECT_EQ(otra.t.SeguirLance, caso.piedras);
  }
}

TEST_F(AbrirLance, AComputerSeatBetsAnOrdago) {
  m.Hablan({4, 1, 2, 3});
  m.t.ParejaEnvite = 1;
  DarMano(m.t, 4, "A A 2 2");
  Abren({Maxima, /*speech*/ 0, 0});
  EXPECT_EQ(m.Texto(), "Pequeña \r\nJugador 4: Orda1\r\n");
  EXPECT_EQ(m.t.SeguirLance, -1);
  EXPECT_EQ(m.t.ParejaEnvite, 0);
  EXPECT_EQ(m.t.Fase, Fase::RespuestaPequena);
}

TEST_F(AbrirLance, TheHumanPasses) {
  DarMano(m.t, 2, "A A 2 2");
  m.port.Presses(0);
  Abren({0.5F, 0, 0});
  EXPECT_EQ(m.Texto(), "Pequeña \r\nAna: Paso1\r\nJugador 2: Envi1\r\n");
  EXPECT_EQ(m.t.ParejaEnvite, 0);
}

TEST_F(AbrirLance, TheHumanEnvidaTwoStones) {
  m.port.Presses(1);
  Abren();
  EXPECT_EQ(m.Texto(), "Pequeña \r\nAna: Envi1\r\n");
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"dialog[La Pequeña]: mode -1"}));
  EXPECT_EQ(m.t.SeguirLance, 2);
  EXPECT_EQ(m.t.ParejaEnvite, 1);
  EXPECT_EQ(m.t.Fase, Fase::RespuestaPequena);
}

TEST_F(AbrirLance, TheHumanBetsATypedAmount) {
  m.t.Mensajes[2][static_cast<int>(MessageCategory::EnvM)][1] = u"Envido &";
  m.port.Presses(2).Types(u"13");
  Abren();
  EXPECT_EQ(m.Texto(), "Pequeña \r\nAna: Envido 13\r\n");
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"dialog[La Pequeña]: mode -1",
                     "input[Envite a Pequeña]: ¿Cuántas envida? (default 2)"}));
  EXPECT_EQ(m.port.Preguntas, std::vector<Pregunta>{Pregunta::Cantidad});
  EXPECT_EQ(m.t.SeguirLance, 13);
  EXPECT_EQ(m.t.ParejaEnvite, 1);
  EXPECT_EQ(m.t.Fase, Fase::RespuestaPequena);
}

TEST_F(AbrirLance, TheHumanBetsAnOrdago) {
  m.port.Presses(3);
  Abren();
  EXPECT_EQ(m.Texto(), "Pequeña \r\nAna: Orda1\r\n");
  EXPECT_EQ(m.t.SeguirLance, -1);
  EXPECT_EQ(m.t.ParejaEnvite, 1);
  EXPECT_EQ(m.t.Fase, Fase::RespuestaPequena);
}

TEST_F(AbrirLance, AsksTheHumanOnlyWhileNobodyHasBet) {
  m.Hablan({4, 1, 2, 3});
  DarMano(m.t, 4, "A A 2 2");
  Abren({0.5F, 0, 0});
  EXPECT_EQ(m.port.TakeEvents(), Sucesos{});
}

TEST_F(AbrirLance, OffersTheHumanAllFourButtons) {
  m.port.Presses(1);
  Abren();
  ASSERT_EQ(m.port.Dialogos.size(), 1U);
  const Dialog& dialogo = m.port.Dialogos.front();
  EXPECT_EQ(Utf8(dialogo.Command1[0].Caption), "Paso");
  EXPECT_EQ(Utf8(dialogo.Command1[1].Caption), "Envido");
  EXPECT_TRUE(dialogo.Command1[2].Visible && dialogo.Command1[2].Enabled);
  EXPECT_TRUE(dialogo.Command1[3].Visible && dialogo.Command1[3].Enabled);
}

TEST_F(AbrirLance, ReadsTheTypedAmountAndTakesTwoForLess) {
  const std::array<CasoTecleado, 16> casos{{{u"2", 2},
                                            {u"3", 3},
                                            {u"1", 2},
                                            {u"0", 2},
                                            {u"-7", 2},
                                            {u"-32768", 2},
                                            {u"", 2},  // also Cancel
                                            {u"abc", 2},
                                            {u"  5 piedras", 5},
                                            {u"2.5", 2},
                                            {u"3.5", 4},
                                            {u"4.5", 4},
                                            {u"2.51", 3},
                                            {u"1e1", 10},
                                            {u"32767", 32767},
                                            {u"32767.4", 32767}}};
  for (const CasoTecleado& caso : casos) {
    SCOPED_TRACE(Utf8(caso.texto));
    Mesa otra;
    otra.port.Presses(2).Types(caso.texto);
    otra.Juega(LancePequena);
    EXPECT_EQ(otra.t.SeguirLance, caso.piedras);
  }
}

bool EnvidarTerminaElPrograma(std::u16string_view texto) {
  Mesa m;
  m.port.Presses(2).Types(texto);
  try {
    m.Juega(LancePequena);
  } catch (const RunTimeError&) {
    return true;
  }
  return false;
}

TEST_F(AbrirLance, AnAmountBeyondSixteenBitsEndsTheProgramAlsoBelowTheFloor) {
  for (const auto* texto : {u"32768", u"32767.5", u"99999", u"-32769", u"-40000", u"1e9"}) {
    EXPECT_TRUE(EnvidarTerminaElPrograma(texto)) << Utf8(texto);
  }
}

// Only seat 4 has pares.
TEST_F(AbrirLance, SkipsTheSeatsThatMayNotSpeak) {
  m.t.Fase = Fase::Pares;
  m.t.ParejaCortaMus = 1;
  DarMano(m.t, 4, "7 7 5 4");
  m.Juega(LancePares, {0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Los pares\r\n"
            "Jugador 4: Paso1\r\n"
            "Los pares quedan en paso\r\n"
            "Pulse enter para continuar\r\n");
  EXPECT_EQ(m.port.TakeEvents(), Sucesos{});
  EXPECT_EQ(m.t.Fase, Fase::DeclaracionJuego);
}

TEST_F(AbrirLance, AsksTheHumanOnlyWithPares) {
  DarMano(m.t, 1, "7 7 5 4");
  m.port.Presses(1);
  m.Juega(LancePares);
  EXPECT_EQ(m.Texto(), "Los pares\r\nAna: Envi1\r\n");
}

TEST_F(AbrirLance, SkipsTheSeatsWithoutJuegoToo) {
  m.t.Fase = Fase::Juego;
  m.t.TurnoJuego = {0, 0, 0, 3};
  DarMano(m.t, 4, "R R R 4");
  m.Juega(LanceJuego, {0, 0, 0, 0, 0, /*speech*/ 0, 0});
  EXPECT_EQ(m.Texto(),
            "lo de antes\r\n\r\nEl juego"
            "Jugador 4: Paso1\r\n"
            "\r\nEl juego queda en paso\r\n"
            "Pulse enter para contar");
  EXPECT_EQ(m.t.Fase, Fase::Cuenta);
}

TEST_F(AbrirLance, EverySeatsBetIsItsParejas) {
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    Mesa otra;
    otra.t.ParejaEnvite = ParejaContraria(asiento);
    otra.Hablan({asiento, asiento % 4 + 1, (asiento + 1) % 4 + 1, (asiento + 2) % 4 + 1});
    DarMano(otra.t, asiento, "A A 2 2");
    if (asiento == 1) {
      otra.port.Presses(1);
      otra.Juega(LancePequena);
    } else {
      otra.Juega(LancePequena, {0.5F, 0, 0});
    }
    EXPECT_EQ(otra.t.ParejaEnvite, asiento % 2) << asiento;
  }
}

TEST_F(AbrirLance, MakesTheTwoDrawsOfTheGrandeForEverySeat) {
  m.t.Fase = Fase::Grande;
  m.t.ParejaCortaMus = 1;
  m.Hablan({2, 4, 3, 1});
  m.Juega(LanceGrande, {0, 0, 0, 0, /*seat 4*/ 0, 0, 0, 0, /*seat 3*/ 0, 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "La grande\r\n"
            "Jugador 2: Paso1\r\n"
            "Jugador 4: Paso1\r\n"
            "Jugador 3: Envi1\r\n");
}

}  // namespace
}  // namespace tasca::test
