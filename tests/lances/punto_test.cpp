// Punto: the decisions of the computer seats, and the best hand.
#include "lances/punto.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using PorAsiento = Array<Integer, 1, 4>;

struct MejorPunto : testing::Test {
  Mesa m;

  Pareja Mejor() {
    DrawList rnd{};
    Game g{m.t, rnd, m.port};
    return tasca::MejorPunto(g);
  }
};

TEST_F(MejorPunto, IsTheNearestToThirtyOne) {
  for (int puntos = 30; puntos > 22; --puntos) {
    DarPuntos(m.t, 1, puntos - 1);
    DarPuntos(m.t, 2, puntos);
    EXPECT_EQ(Mejor(), 0) << puntos;
    DarPuntos(m.t, 1, puntos);
    DarPuntos(m.t, 2, puntos - 1);
    EXPECT_EQ(Mejor(), 1) << puntos;
  }
  EXPECT_EQ(m.port.TakeEvents(), Sucesos{});
}

TEST_F(MejorPunto, FindsTheBestPuntoAtEverySeat) {
  for (Seat mejor = 1; mejor <= 4; ++mejor) {
    m.DarATodos("7 6 5 4");
    DarMano(m.t, mejor, "R R 6 4");
    EXPECT_EQ(Mejor(), mejor % 2) << mejor;
  }
}

TEST_F(MejorPunto, GivesEqualPuntosToTheSeatNearestTheMano) {
  DarMano(m.t, 1, "R R 6 4");
  DarMano(m.t, 4, "R S 5 5");
  m.Hablan({1, 2, 3, 4});
  EXPECT_EQ(Mejor(), 1);
  m.Hablan({2, 3, 4, 1});
  EXPECT_EQ(Mejor(), 0);
  m.Hablan({3, 4, 1, 2});
  EXPECT_EQ(Mejor(), 0);
  m.Hablan({4, 1, 2, 3});
  EXPECT_EQ(Mejor(), 0);
}

TEST_F(MejorPunto, Kept_ReportsASeatWithJuegoInABoxAndRanksItLowest) {
  DarMano(m.t, 1, "R R R A");
  DarMano(m.t, 3, "R R R R");
  DarMano(m.t, 4, "7 A A A");
  EXPECT_EQ(Mejor(), 0);
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"box: Error, sí ahbía juego ", "box: Error, sí ahbía juego "}));
}

// Seat 2 opens, early in the game.
struct DecidePunto : testing::Test {
  Table t = MesaDePrueba();

  Decision Abre(int puntos, std::initializer_list<float> sacadas = {}) {
    DarPuntos(t, 2, puntos);
    return Elige(tasca::DecidePunto, t, 2, sacadas);
  }
};

TEST_F(DecidePunto, OpensWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 40, 34);
  EXPECT_EQ(Abre(20), Decision::Ordago);
  Marcan(t, 0, 33);
  EXPECT_EQ(Abre(20, {0}), Decision::Paso);
}

TEST_F(DecidePunto, OpensWithOrdagoOnAStrongPuntoWhenRivalsAreNearAndItsOwnSideIsNot) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Abre(30), Decision::Ordago);
  EXPECT_EQ(Abre(29), Decision::Ordago);
  EXPECT_EQ(Abre(28, {0, Maxima, Maxima}), Decision::Envido);
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre(29, {0, Maxima, Maxima}), Decision::Envido);
  Marcan(t, 28, 28);
  EXPECT_EQ(Abre(29, {0, Maxima, Maxima}), Decision::Envido);
}

TEST_F(DecidePunto, Kept_BetsNoOrdagoOnlyForBeingBehind) {
  Marcan(t, 0, 29);
  EXPECT_EQ(Abre(20, {0}), Decision::Paso);
}

TEST_F(DecidePunto, AlwaysBetsFromTwentyEightOn) {
  t.OrdagueroAsiento[2] = 100;
  EXPECT_EQ(Abre(28, {0, 0}), Decision::Envido);
  EXPECT_EQ(Abre(30, {0, 0}), Decision::Envido);
  EXPECT_EQ(Abre(27, {0}), Decision::Paso);
}

// Ordaguero 75: a third is 25.
TEST_F(DecidePunto, Kept_TheMoreOrdagueroTheLessItBets) {
  t.OrdagueroAsiento = {0, 75, 0, 0};
  EXPECT_EQ(Abre(27, {0.25F}), Decision::Paso);
  EXPECT_EQ(Abre(27, {0.25F + Minima, 0}), Decision::Envido);
  t.OrdagueroAsiento = {100, 0, 100, 100};
  EXPECT_EQ(Abre(27, {0}), Decision::Paso);
  EXPECT_EQ(Abre(27, {Minima, 0}), Decision::Envido);
}

TEST_F(DecidePunto, BetsMoreOneTimeInFiveEarlyInTheGame) {
  EXPECT_EQ(Abre(30, {0, DrawBelow(0.8F)}), Decision::Envido);
  EXPECT_EQ(Abre(30, {0, DrawFrom(0.8F)}), Decision::EnvidoMas);
}

// Half of 35 is 17.5, of 36 exactly 18.
TEST_F(DecidePunto, IsLateInTheGameWhenAParejaIsAboveHalf) {
  Marcan(t, 17, 17);
  EXPECT_EQ(Abre(30, {0, 0}), Decision::Envido);
  Marcan(t, 18, 17);
  EXPECT_EQ(Abre(30, {0, 0}), Decision::Ordago);
  Marcan(t, 17, 18);
  EXPECT_EQ(Abre(30, {0, 0}), Decision::Ordago);
  t.PiedrasJuego = 36;
  Marcan(t, 18, 18);
  EXPECT_EQ(Abre(30, {0, 0}), Decision::Envido);
  Marcan(t, 19, 0);
  EXPECT_EQ(Abre(30, {0, 0}), Decision::Ordago);
  Marcan(t, 0, 19);
  EXPECT_EQ(Abre(30, {0, 0}), Decision::Ordago);
}

TEST_F(DecidePunto, BetsAnOrdagoOneTimeInTenLateInTheGame) {
  Marcan(t, 18, 18);
  EXPECT_EQ(Abre(30, {0, DrawBelow(0.1F)}), Decision::Ordago);
  EXPECT_EQ(Abre(30, {0, DrawFrom(0.1F), Maxima}), Decision::Envido);
}

TEST_F(DecidePunto, OtherwiseBetsMoreOneTimeInFourLateInTheGame) {
  Marcan(t, 18, 18);
  EXPECT_EQ(Abre(30, {0, Maxima, DrawBelow(0.25F)}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(30, {0, Maxima, 0.25F}), Decision::Envido);
}

TEST_F(DecidePunto, DrawsOnlyOnceWhenItPasses) {
  Marcan(t, 18, 18);
  t.OrdagueroAsiento[2] = 100;
  EXPECT_EQ(Abre(20, {0}), Decision::Paso);
}

// Seat 2 answers a bet of two stones: y = 2 r + posicion x (31 - puntos).
struct RespondePunto : testing::Test {
  Table t = MesaDePrueba();

  RespondePunto() { t.SeguirLance = 2; }

  Decision Responde(int puntos, const PorAsiento& orden,
                    std::initializer_list<float> sacadas = {}) {
    DarPuntos(t, 2, puntos);
    t.OrdenAsiento = orden;
    return Elige(tasca::RespondePunto, t, 2, sacadas);
  }
};

constexpr PorAsiento Primero{2, 3, 4, 1};
constexpr PorAsiento Segundo{1, 2, 3, 4};
constexpr PorAsiento Tercero{4, 1, 2, 3};
constexpr PorAsiento Cuarto{3, 4, 1, 2};

TEST_F(RespondePunto, AnswersWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 40, 34);
  EXPECT_EQ(Responde(20, Cuarto), Decision::Ordago);
}

TEST_F(RespondePunto, AnswersWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Responde(20, Cuarto), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Responde(20, Cuarto, {0}), Decision::NoQuiero);
}

TEST_F(RespondePunto, GoesFromOrdagoToQuieroAsManoWithThirty) {
  constexpr float Limite = (1.3F - 1.0F) / 2.0F;
  EXPECT_EQ(Responde(30, Primero, {0}), Decision::Ordago);
  EXPECT_EQ(Responde(30, Primero, {DrawBelow(Limite)}), Decision::Ordago);
  EXPECT_EQ(Responde(30, Primero, {DrawFrom(Limite)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(30, Primero, {0.75F - 2 * Minima}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(30, Primero, {0.75F}), Decision::Quiero);
  EXPECT_EQ(Responde(30, Primero, {Maxima}), Decision::Quiero);
}

struct CasoRespuestaPunto {
  int puntos = 0;
  PorAsiento orden;
  float sacada = 0;
  Decision decision = Decision::NoQuiero;
};

constexpr std::array<CasoRespuestaPunto, 11> CasosRespuestaPunto{{
    {30, Segundo, 0.25F - 2 * Minima, Decision::EnvidoMas},  // 2
    {30, Segundo, 0.25F, Decision::Quiero},
    {29, Primero, 0.25F - 2 * Minima, Decision::EnvidoMas},
    {29, Primero, 0.25F, Decision::Quiero},
    {30, Tercero, 0.5F - 2 * Minima, Decision::Quiero},  // 3
    {30, Tercero, 0.5F, Decision::NoQuiero},
    {28, Primero, 0.5F - 2 * Minima, Decision::Quiero},
    {28, Primero, 0.5F, Decision::NoQuiero},
    {30, Cuarto, 0, Decision::NoQuiero},  // 4
    {29, Segundo, 0, Decision::NoQuiero},
    {27, Primero, 0, Decision::NoQuiero},
}};

TEST_F(RespondePunto, MultipliesTheDistanceByThePosition) {
  for (const CasoRespuestaPunto& caso : CasosRespuestaPunto) {
    EXPECT_EQ(Responde(caso.puntos, caso.orden, {caso.sacada}), caso.decision)
        << caso.puntos << " with mano " << caso.orden[1] << ", draw " << caso.sacada;
  }
}

TEST_F(RespondePunto, OnlyAcceptsOrRefusesAnOrdago) {
  t.SeguirLance = -1;
  EXPECT_EQ(Responde(30, Primero, {0}), Decision::Quiero);
  EXPECT_EQ(Responde(30, Primero, {0.5F}), Decision::Quiero);
  EXPECT_EQ(Responde(30, Primero, {Maxima}), Decision::Quiero);
  EXPECT_EQ(Responde(27, Primero, {0}), Decision::NoQuiero);
  Marcan(t, 0, 34);
  EXPECT_EQ(Responde(27, Primero, {0}), Decision::NoQuiero);
}

TEST(EnvitePunto, Kept_AsksForARaiseAlPuntoUnderTheCaptionAPunto) {
  Mesa m;
  m.Envidan(0, 2);
  m.port.Presses(2).Types(u"3");
  m.Juega(EnvitePunto, {/*2*/ 0, 0, 0, /*4*/ 0, 0, 0});
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"dialog[Envite a Punto]: mode 0",
                     "input[Envite al Punto]: ¿Cuántas más envida? (default 2)"}));
}

TEST(LancePunto, Kept_TheFirstWordsFollowTheHeadingOnItsLine) {
  Mesa m;
  m.t.Text2 = u"Pulse enter para continuar";
  m.port.Presses(1);
  m.Juega(LancePunto);
  EXPECT_EQ(m.Texto(), "Pulse enter para continuar\r\nEl puntoAna: Envi1\r\n");
}

}  // namespace
}  // namespace tasca::test
