// The answer step until the bet is settled: who answers, and the effect of each answer.
#include <gtest/gtest.h>

#include <array>

#include "base/errors.h"
#include "lances/grande.h"
#include "lances/pares.h"
#include "lances/punto.h"
#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

// The answers to a bet at the grande. A computer seat with two Reyes accepts without a draw;
// without Reyes it draws once: with ordaguero 0 it always refuses, with 100 it raises at 0.
struct ResponderLance : testing::Test {
  Mesa m;

  ResponderLance() { m.t.Fase = Fase::RespuestaGrande; }

  void Responden(std::initializer_list<float> sacadas = {}) { m.Juega(EnviteGrande, sacadas); }
};

TEST_F(ResponderLance, AsksOnlyTheOpponentsOfTheHumansPartner) {
  m.Envidan(1, 2);
  Responden({0, 0, 0, /*seat 4*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 2: NQui1\r\n"
            "Jugador 4: NQui1\r\n"
            "la pareja 1 se saca 1 piedra\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(), Sucesos{});
}

TEST_F(ResponderLance, AsksTheHumanAndItsPartnerAboutTheOpponentsBet) {
  m.Envidan(0, 2);
  m.port.Presses(0);
  Responden({0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Ana: NQui1\r\n"
            "Jugador 3: NQui1\r\n"
            "la pareja 0 se saca 1 piedra\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"dialog[Envite a grande]: mode 0"}));
}

TEST_F(ResponderLance, AsksInSpeakingOrder) {
  m.Hablan({3, 4, 1, 2});
  m.Envidan(0, 2);
  m.port.Presses(0);
  Responden({0, 0, 0});
  EXPECT_TRUE(m.Texto().starts_with("Jugador 3: NQui1\r\nAna: NQui1\r\n"));
}

TEST_F(ResponderLance, TheFirstAcceptanceEndsTheRound) {
  m.Envidan(1, 2);
  DarMano(m.t, 2, "R R 5 4");
  Responden({0, 0});
  EXPECT_EQ(m.Texto(), "Jugador 2: SQui1\r\nenvite querido\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 2);
}

TEST_F(ResponderLance, ARefusalByOnePartnerAloneDecidesNothing) {
  m.Envidan(1, 2);
  DarMano(m.t, 4, "R R 5 4");
  Responden({0, 0, 0, /*seat 4*/ 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 2: NQui1\r\n"
            "Jugador 4: SQui1\r\n"
            "envite querido\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 2);
  EXPECT_EQ(m.t.Piedras, (Array<Integer, 0, 1>{}));
}

TEST_F(ResponderLance, TheHumanAccepts) {
  m.t.Apuesta[NumeroLance::Grande] = 4;
  m.Envidan(0, 3);
  m.port.Presses(1);
  Responden();
  EXPECT_EQ(m.Texto(), "Ana: SQui1\r\nenvite querido\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 7);
  EXPECT_EQ(m.t.SeguirLance, 0);
  EXPECT_EQ(m.t.ParejaEnvite, 0);
}

// The partner would accept, but after the raise the other pareja answers.
TEST_F(ResponderLance, TheHumanRaisesAndTheOtherParejaIsAskedFromTheFirstPosition) {
  m.Hablan({4, 1, 2, 3});
  m.Envidan(0, 2);
  DarMano(m.t, 3, "R R 5 4");
  m.port.Presses(2).Types(u"5");
  Responden({/*seat 4*/ 0, 0, 0, /*seat 2*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Ana: EnvM1\r\n"
            "Jugador 4: NQui1\r\n"
            "Jugador 2: NQui1\r\n"
            "la pareja 1 se saca 2 piedras\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"dialog[Envite a grande]: mode 0",
                     "input[Envite a grande]: ¿Cuántas más envida? (default 2)"}));
  EXPECT_EQ(m.t.Piedras[1], 2);
}

TEST_F(ResponderLance, ARaiseSeesTheBetThatItAnswers) {
  m.t.Apuesta[NumeroLance::Grande] = 4;
  m.Envidan(0, 3);
  m.t.Mensajes[2][static_cast<int>(MessageCategory::EnvM)][1] = u"& más";
  DarMano(m.t, 2, "R R 5 4");
  m.port.Presses(2).Types(u"5");
  Responden({0, 0});
  EXPECT_EQ(m.Texto(),
            "Ana: 5 más\r\n"
            "Jugador 2: SQui1\r\n"
            "envite querido\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 12);
  EXPECT_EQ(m.t.ParejaEnvite, 1);
}

TEST_F(ResponderLance, ReadsTheTypedRaiseAndTakesOneForLess) {
  const std::array<CasoTecleado, 11> casos{{{u"1", 1},
                                            {u"2", 2},
                                            {u"0", 1},
                                            {u"-7", 1},
                                            {u"", 1},  // also Cancel
                                            {u"abc", 1},
                                            {u"0.5", 1},
                                            {u"1.5", 2},
                                            {u"2.5", 2},
                                            {u"3.5", 4},
                                            {u"20", 20}}};
  for (const CasoTecleado& caso : casos) {
    SCOPED_TRACE(Utf8(caso.texto));
    Mesa otra;
    otra.Envidan(0, 2);
    DarMano(otra.t, 2, "R R 5 4");
    otra.port.Presses(2).Types(caso.texto);
    otra.Juega(EnviteGrande, {0, 0});
    EXPECT_EQ(otra.t.Apuesta[NumeroLance::Grande], 2 + caso.piedras);
  }
}

bool SubirTerminaElPrograma(std::u16string_view texto) {
  Mesa m;
  m.Envidan(0, 2);
  m.port.Presses(2).Types(texto);
  try {
    m.Juega(EnviteGrande);
  } catch (const RunTimeError&) {
    return true;
  }
  return false;
}

TEST_F(ResponderLance, ARaiseBeyondSixteenBitsEndsTheProgram) {
  EXPECT_TRUE(SubirTerminaElPrograma(u"32768"));
  EXPECT_TRUE(SubirTerminaElPrograma(u"-40000"));
}

TEST_F(ResponderLance, AcceptedStonesBeyondSixteenBitsEndTheProgram) {
  m.t.Apuesta[NumeroLance::Grande] = 32767;
  m.Envidan(0, 1);
  m.port.Presses(1);
  EXPECT_THROW(Responden(), RunTimeError);
}

TEST_F(ResponderLance, TheHumanRaisesWithAnOrdago) {
  m.t.Apuesta[NumeroLance::Grande] = 4;
  m.Envidan(0, 3);
  m.port.Presses(3);
  Responden({/*seat 2*/ 0, 0, /*seat 4*/ 0, 0});
  EXPECT_EQ(m.Texto(),
            "Ana: Orda1\r\n"
            "Jugador 2: NQui1\r\n"
            "Jugador 4: NQui1\r\n"
            "la pareja 1 se saca 7 piedras\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.ParejaEnvite, 1);
  EXPECT_EQ(m.t.Piedras[1], 7);
}

TEST_F(ResponderLance, AComputerSeatRaisesAndTheHumanAnswers) {
  m.Hablan({2, 3, 4, 1});
  m.Envidan(1, 2);
  m.t.OrdagueroAsiento[2] = 100;
  m.port.Presses(1);
  Responden({/*decision*/ 0, /*amount*/ 0.25F, /*speech*/ 0.9F, 0, /*seat 3*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 2: EnvM3 3\r\n"
            "Jugador 3: NQui1\r\n"
            "Ana: SQui1\r\n"
            "envite querido\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 5);
  EXPECT_EQ(m.t.ParejaEnvite, 0);
}

TEST_F(ResponderLance, TheRaiseOfAComputerSeatIsTwoToFive) {
  const std::vector<std::pair<float, int>> casos{
      {0.0F, 2}, {DrawBelow(0.25F), 2}, {0.25F, 3}, {DrawBelow(0.5F), 3},
      {0.5F, 4}, {DrawBelow(0.75F), 4}, {0.75F, 5}, {Maxima, 5}};
  for (const auto& [sacada, piedras] : casos) {
    SCOPED_TRACE(sacada);
    Mesa otra;
    otra.Envidan(1, 2);
    otra.t.OrdagueroAsiento[2] = 100;
    otra.port.Presses(1);
    otra.Juega(EnviteGrande, {0, sacada, 0, 0});
    EXPECT_EQ(otra.t.Apuesta[NumeroLance::Grande], 2 + piedras);
  }
}

// Seat 4 speaks last and raises; the round starts again at the first position.
TEST_F(ResponderLance, ARaiseFromTheLastPositionStartsTheRoundAgain) {
  m.Envidan(1, 2);
  m.t.OrdagueroAsiento[4] = 100;
  m.port.Presses(0);
  Responden({/*seat 2*/ 0, 0, 0, /*seat 4*/ 0, 0, 0, 0, /*seat 3*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 2: NQui1\r\n"
            "Jugador 4: EnvM1 2\r\n"
            "Ana: NQui1\r\n"
            "Jugador 3: NQui1\r\n"
            "la pareja 0 se saca 2 piedras\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.Piedras[0], 2);
}

TEST_F(ResponderLance, BothSidesRaiseInTurnUntilOneAccepts) {
  m.Envidan(1, 2);
  m.t.OrdagueroAsiento[2] = 100;
  m.port.Presses(2).Types(u"4").Presses(1);
  Responden({/*seat 2*/ 0, 0, 0, 0, /*seat 2 again*/ 0, 0.75F, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 2: EnvM1 2\r\n"
            "Ana: EnvM1\r\n"
            "Jugador 2: EnvM1 5\r\n"
            "Ana: SQui1\r\n"
            "envite querido\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], 2 + 2 + 4 + 5);
}

TEST_F(ResponderLance, AComputerSeatRaisesWithAnOrdago) {
  m.Envidan(1, 2);
  m.t.Apuesta[NumeroLance::Grande] = 1;
  m.t.Piedras[1] = 34;
  m.port.Presses(0);
  Responden({/*speech*/ 0, 0, /*seat 3*/ 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 2: Orda1\r\n"
            "Ana: NQui1\r\n"
            "Jugador 3: NQui1\r\n"
            "la pareja 0 se saca 3 piedras\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"dialog[Envite a grande]: mode -2"}));
  EXPECT_EQ(m.t.ParejaEnvite, 0);
  EXPECT_EQ(m.t.Piedras[0], 3);
}

TEST_F(ResponderLance, OffersTheHumanAllFourButtonsAgainstStones) {
  m.Envidan(0, 2);
  m.port.Presses(1);
  Responden();
  ASSERT_EQ(m.port.Dialogos.size(), 1U);
  const Dialog& dialogo = m.port.Dialogos.front();
  EXPECT_EQ(Utf8(dialogo.Command1[0].Caption), "Paso");
  EXPECT_EQ(Utf8(dialogo.Command1[1].Caption), "Quiero");
  EXPECT_TRUE(dialogo.Command1[2].Visible && dialogo.Command1[3].Visible);
}

TEST_F(ResponderLance, OffersTheHumanOnlyPasoAndQuieroAgainstAnOrdago) {
  m.Envidan(0, -1);
  m.port.Presses(0);
  Responden({/*seat 3*/ 0, 0});
  ASSERT_EQ(m.port.Dialogos.size(), 1U);
  const Dialog& dialogo = m.port.Dialogos.front();
  EXPECT_EQ(Utf8(dialogo.Command1[0].Caption), "Paso");
  EXPECT_EQ(Utf8(dialogo.Command1[1].Caption), "Quiero");
  EXPECT_FALSE(dialogo.Command1[2].Visible || dialogo.Command1[3].Visible);
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"dialog[Envite a grande]: mode -2"}));
}

TEST_F(ResponderLance, NeverAsksASeatThatMayNotSpeak) {
  m.Envidan(1, 2);
  m.t.RondasMus = 2;
  DarMano(m.t, 4, "7 7 5 4");
  m.Juega(EnvitePares, {0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 4: NQui1\r\n"
            "la pareja 1 se saca 1 piedra\r\n"
            "Pulse enter para continuar");
}

TEST_F(ResponderLance, NeverAsksAHumanWithoutPares) {
  m.Envidan(0, 2);
  m.t.RondasMus = 2;
  DarMano(m.t, 3, "7 7 5 4");
  m.Juega(EnvitePares, {0, 0, 0});
  EXPECT_EQ(m.port.TakeEvents(), Sucesos{});
  EXPECT_TRUE(m.Texto().starts_with("Jugador 3: NQui1\r\nla pareja 0"));
}

TEST_F(ResponderLance, Kept_ASeatThatSaysNothingRefusesInSilence) {
  m.Envidan(1, 2);
  Marcan(m.t, 29, 29);
  DarMano(m.t, 2, "R R R R");
  DarMano(m.t, 4, "R R R R");
  m.Juega(EnvitePares);
  EXPECT_EQ(m.Texto(), "la pareja 1 se saca 1 piedra\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Piedras[1], 30);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Pares], -2);
}

TEST_F(ResponderLance, Kept_RemovesThePromptAtEveryPositionItAsks) {
  m.t.Text2 = u"Pulse enter para continuar\r\nantes Pulse enter para continuar después\r\n";
  m.Envidan(1, 2);
  auto& frases = m.t.Mensajes;
  frases[3][static_cast<int>(MessageCategory::NQui)][1] = u"Pulse enter para continuar, no";
  frases[5][static_cast<int>(MessageCategory::NQui)][1] = u"Pulse enter para continuar, no";
  Responden({/*seat 2*/ 0, 0, 0, /*seat 4, the last*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "\r\n"
            "antes  después\r\n"
            "Jugador 2: , no\r\n"
            "Jugador 4: Pulse enter para continuar, no\r\n"
            "la pareja 1 se saca 1 piedra\r\n"
            "Pulse enter para continuar");
}

TEST_F(ResponderLance, Kept_RemovesThePromptAlsoAtAPositionThatDoesNotAnswer) {
  m.Envidan(0, 2);
  m.t.Mensajes[4][static_cast<int>(MessageCategory::NQui)][1] = u"Pulse enter para continuar, no";
  m.port.Presses(0);
  Responden({0, 0, 0});
  EXPECT_TRUE(m.Texto().starts_with("Ana: NQui1\r\nJugador 3: , no\r\nla pareja 0"));
}

TEST_F(ResponderLance, LeavesThePromptOfTheCountInPlace) {
  m.t.Text2 = u"Pulse enter para contar\r\n";
  m.Envidan(0, 2);
  m.port.Presses(1);
  Responden();
  EXPECT_TRUE(m.Texto().starts_with("Pulse enter para contar\r\nAna: SQui1\r\n"));
}

}  // namespace
}  // namespace tasca::test
