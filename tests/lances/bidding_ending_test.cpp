// The end of the answer step: the payment of a refused bet, and the accepted órdago.
#include <gtest/gtest.h>

#include "cards/hand_text.h"
#include "lances/grande.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "lances/punto.h"
#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using PorPareja = Array<Integer, 0, 1>;

// The opponents bet at the grande; the human and seat 3 refuse.
struct BetRefused : testing::Test {
  Mesa m;

  BetRefused() { m.t.Fase = Fase::RespuestaGrande; }

  // Runs the step and returns the transcript after the two refusals.
  std::string Rehusan(int apuesta, int enLaMesa) {
    m.t.Apuesta[NumeroLance::Grande] = apuesta;
    m.Envidan(0, enLaMesa);
    m.port.Presses(0);
    if (enLaMesa == -1) {
      m.Juega(EnviteGrande, {/*seat 3*/ 0, 0});
    } else {
      m.Juega(EnviteGrande, {/*seat 3*/ 0, 0, 0});
    }
    const std::string dichos = "Ana: NQui1\r\nJugador 3: NQui1\r\n";
    EXPECT_TRUE(m.Texto().starts_with(dichos));
    return m.Texto().substr(dichos.size());
  }
};

TEST_F(BetRefused, PaysOneStoneForAFirstBet) {
  EXPECT_EQ(Rehusan(0, 2), "la pareja 0 se saca 1 piedra\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Piedras, (PorPareja{1, 0}));
}

TEST_F(BetRefused, PaysOneStoneForAFirstBetOfAnySize) {
  EXPECT_EQ(Rehusan(0, 30), "la pareja 0 se saca 1 piedra\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Piedras, (PorPareja{1, 0}));
}

TEST_F(BetRefused, PaysOneStoneForAFirstOrdago) {
  EXPECT_EQ(Rehusan(0, -1), "la pareja 0 se saca 1 piedra\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Piedras, (PorPareja{1, 0}));
}

TEST_F(BetRefused, PaysTheStonesSeenSoFar) {
  EXPECT_EQ(Rehusan(5, 3), "la pareja 0 se saca 5 piedras\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Piedras, (PorPareja{5, 0}));
}

TEST_F(BetRefused, SaysPiedraForASingleStoneSeen) {
  EXPECT_EQ(Rehusan(1, 4), "la pareja 0 se saca 1 piedra\r\nPulse enter para continuar");
}

TEST_F(BetRefused, PaysNothingWhenTheAcceptedBetIsZero) {
  EXPECT_EQ(Rehusan(0, 0), "la pareja 0 se saca 0 piedras\r\nPulse enter para continuar");
  EXPECT_EQ(m.t.Piedras, (PorPareja{0, 0}));
}

TEST_F(BetRefused, AddsToTheStonesOfTheBettorsOnly) {
  m.t.Piedras = {10, 20};
  Rehusan(4, 2);
  EXPECT_EQ(m.t.Piedras, (PorPareja{14, 20}));
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], -2);
  EXPECT_EQ(m.t.SeguirLance, 0);
  EXPECT_EQ(m.t.Fase, Fase::Pequena);
  EXPECT_EQ(Utf8(m.t.Text3), "Piedras: 20 / 14;    juegos: 0 / 0;    Vacas: 0 / 0");
}

TEST_F(BetRefused, MayPassTheJuegoWithoutEndingIt) {
  m.t.Piedras = {34, 0};
  m.t.Apuesta[NumeroLance::Grande] = 3;
  m.Envidan(0, -1);
  m.port.Presses(0);
  m.Juega(EnviteGrande, {0, 0});
  EXPECT_EQ(m.t.Piedras, (PorPareja{37, 0}));
  EXPECT_EQ(m.t.Juegos, (PorPareja{0, 0}));
}

TEST_F(BetRefused, Kept_NamesTheParejasByTheirNumbers) {
  EXPECT_TRUE(Rehusan(0, 2).starts_with("la pareja 0 "));

  Mesa otra;
  otra.Envidan(1, 2);
  otra.Juega(EnviteGrande, {0, 0, 0, 0, 0, 0});
  EXPECT_TRUE(otra.Texto().ends_with("la pareja 1 se saca 1 piedra\r\nPulse enter para continuar"));
}

// The opponents bet two, the human raises by three, and they refuse: the human's pareja gets two.
TEST_F(BetRefused, PaysTheRaiserTheBetThatItSaw) {
  m.Envidan(0, 2);
  m.port.Presses(2).Types(u"3");
  m.Juega(EnviteGrande, {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(m.t.Piedras, (PorPareja{0, 2}));
  EXPECT_EQ(m.Texto(),
            "Ana: EnvM1\r\n"
            "Jugador 2: NQui1\r\n"
            "Jugador 4: NQui1\r\n"
            "la pareja 1 se saca 2 piedras\r\n"
            "Pulse enter para continuar");
}

// The record of the punto is kept from hand to hand.
struct PuntoCarriedOver : testing::Test {
  Mesa m;

  PuntoCarriedOver() { m.t.Fase = Fase::RespuestaPunto; }
};

TEST_F(PuntoCarriedOver, Kept_AnAcceptedBetIsAddedToTheLastRefusal) {
  m.t.Apuesta[NumeroLance::Punto] = -2;
  m.Envidan(0, 2);
  m.port.Presses(1);
  m.Juega(EnvitePunto);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Punto], 0);
}

TEST_F(PuntoCarriedOver, Kept_AnAcceptedBetIsAddedToTheLastStones) {
  m.t.Apuesta[NumeroLance::Punto] = 6;
  m.Envidan(0, 2);
  m.port.Presses(1);
  m.Juega(EnvitePunto);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Punto], 8);
}

TEST_F(PuntoCarriedOver, Kept_ARefusedBetMayPayLessThanNothing) {
  m.t.Apuesta[NumeroLance::Punto] = -2;
  m.t.Piedras = {10, 10};
  m.Envidan(1, 2);
  m.Juega(EnvitePunto, {/*2*/ 0, 0, 0, /*4*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 2: NQui1\r\n"
            "Jugador 4: NQui1\r\n"
            "la pareja 1 se saca -2 piedras\r\n"
            "Pulse enter para contar");
  EXPECT_EQ(m.t.Piedras, (PorPareja{10, 8}));
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Punto], -2);
}

TEST_F(PuntoCarriedOver, Kept_ARaiseThatMakesUpForTheLastRefusalPaysOneStone) {
  m.t.Apuesta[NumeroLance::Punto] = -2;
  m.Envidan(0, 2);
  m.port.Presses(2).Types(u"3");
  m.Juega(EnvitePunto, {/*2*/ 0, 0, 0, /*4*/ 0, 0, 0});
  EXPECT_EQ(m.t.Piedras, (PorPareja{0, 1}));
}

TEST_F(PuntoCarriedOver, Kept_AllPassingLeavesTheRecordAlone) {
  m.t.Fase = Fase::Punto;
  m.t.Apuesta[NumeroLance::Punto] = 7;
  m.port.Presses(0);
  m.Juega(LancePunto, {0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Punto], 7);
  EXPECT_EQ(m.t.Declaracion[NumeroLance::Punto], 0);
}

TEST_F(PuntoCarriedOver, Kept_AStandingOrdagoOfAnEarlierHandCountsAsAStoneLess) {
  m.t.Apuesta[NumeroLance::Punto] = -1;
  m.Envidan(0, 5);
  m.port.Presses(1);
  m.Juega(EnvitePunto);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Punto], 4);
}

struct OrdagoAccepted : testing::Test {
  Mesa m;

  OrdagoAccepted() { m.t.Fase = Fase::RespuestaGrande; }
};

TEST_F(OrdagoAccepted, LaysAllHandsOpenBeforeTheBox) {
  m.Envidan(0, -1);
  m.port.Presses(1);
  m.Juega(EnviteGrande);
  ASSERT_EQ(m.port.Cajas.size(), 1U);
  Table abiertas = m.t;
  MostrarManos(abiertas, TodosLosAsientos);
  EXPECT_EQ(m.port.Cajas[0].Text1, abiertas.Text1);
  EXPECT_EQ(Utf8(m.port.Cajas[0].Text2), "Ana: SQui1\r\n");
}

TEST_F(OrdagoAccepted, GoesToTheManoWhenTheHandsAreEqual) {
  m.Envidan(0, -1);
  m.port.Presses(1);
  m.Juega(EnviteGrande);
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"dialog[Envite a grande]: mode -2",
                     "box: órdago a grande querido y ganado por la pareja 1"}));
  EXPECT_EQ(m.t.Juegos, (PorPareja{0, 1}));
}

TEST_F(OrdagoAccepted, GoesToAComputerSeatsParejaWhenItIsManoOfEqualHands) {
  m.Hablan({2, 3, 4, 1});
  m.DarATodos("R R R 4");
  m.Envidan(1, -1);
  m.Juega(EnviteGrande, {0, 0});
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"box: órdago a grande querido y ganado por la pareja 0"}));
  EXPECT_EQ(m.t.Juegos, (PorPareja{1, 0}));
}

TEST_F(OrdagoAccepted, ReplacesTheStonesThatWereSeenBefore) {
  m.t.Apuesta[NumeroLance::Grande] = 9;
  m.Envidan(0, -1);
  m.port.Presses(1);
  m.Juega(EnviteGrande);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Grande], -1);
}

// Seat 2 refuses and its partner accepts.
TEST_F(OrdagoAccepted, NeedsOnePartnerOnly) {
  DarMano(m.t, 4, "R R R 4");
  m.Envidan(1, -1);
  m.Juega(EnviteGrande, {/*2*/ 0, 0, /*4*/ 0, 0});
  EXPECT_EQ(Utf8(m.port.Cajas.at(0).Text2), "Jugador 2: NQui1\r\nJugador 4: SQui1\r\n");
  EXPECT_EQ(m.t.Juegos, (PorPareja{1, 0}));
}

TEST_F(OrdagoAccepted, RewritesTheScoreboard) {
  m.t.Piedras = {12, 20};
  m.Envidan(0, -1);
  m.port.Presses(1);
  m.Juega(EnviteGrande);
  EXPECT_EQ(Utf8(m.port.Cajas.at(0).Text3), "");
  EXPECT_EQ(Utf8(m.t.Text3), "Piedras: 0 / 0;    juegos: 1 / 0;    Vacas: 0 / 0");
}

TEST_F(OrdagoAccepted, AtThePuntoReportsAHandWithJuego) {
  m.t.Fase = Fase::RespuestaPunto;
  DarMano(m.t, 3, "R R R A");
  m.Envidan(0, -1);
  m.port.Presses(1);
  m.Juega(EnvitePunto);
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"dialog[Envite a Punto]: mode -2", "box: Error, sí ahbía juego ",
                     "box: órdago a Punto querido y ganado por la pareja 1"}));
  EXPECT_EQ(Utf8(m.port.Cajas.at(0).Text1), "");
}

}  // namespace
}  // namespace tasca::test
