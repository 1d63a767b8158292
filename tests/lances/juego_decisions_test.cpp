// Juego: the decisions of the computer seats.
#include <gtest/gtest.h>

#include <array>

#include "lances/juego.h"
#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

constexpr float Alta = 0.99F;  // a draw that makes no condition true

// Seat 2 opens with the given points, early in the game.
struct DecideJuego : testing::Test {
  Table t = MesaDePrueba();

  Decision Abre(int puntos, int turno, std::initializer_list<float> sacadas = {}) {
    DarPuntos(t, 2, puntos);
    t.TurnoJuego[2] = turno;
    return Elige(tasca::DecideJuego, t, 2, sacadas);
  }
};

TEST_F(DecideJuego, OpensWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 40, 34);
  EXPECT_EQ(Abre(33, 3), Decision::Ordago);
}

TEST_F(DecideJuego, OpensWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Abre(33, 3), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre(33, 3, {0, 0, 0, 0, 0}), Decision::Paso);
}

TEST_F(DecideJuego, AFirstSpeakerBets31And32SeventeenTimesInTwenty) {
  EXPECT_EQ(Abre(31, 1, {DrawBelow(0.85F), Alta, Alta, Alta, Alta}), Decision::Envido);
  EXPECT_EQ(Abre(32, 1, {DrawBelow(0.85F), Alta, Alta, Alta, Alta}), Decision::Envido);
  EXPECT_EQ(Abre(32, 1, {DrawFrom(0.85F), Alta, Alta, Alta, Alta}), Decision::Paso);
  EXPECT_EQ(Abre(40, 1, {0, Alta, Alta, Alta, Alta}), Decision::Paso);
}

TEST_F(DecideJuego, AFirstSpeakerBetsUpTo39SevenTimesInTwenty) {
  for (const int puntos : {31, 32, 40, 39}) {
    EXPECT_EQ(Abre(puntos, 1, {Alta, DrawBelow(0.35F), Alta, Alta, Alta}), Decision::Envido)
        << puntos;
    EXPECT_EQ(Abre(puntos, 1, {Alta, DrawFrom(0.35F), Alta, Alta, Alta}), Decision::Paso) << puntos;
  }
  EXPECT_EQ(Abre(38, 1, {0, 0, Alta, Alta, Alta}), Decision::Paso);
}

TEST_F(DecideJuego, AFirstSpeakerBetsAnyJuegoByItsOrdaguero) {
  t.OrdagueroAsiento = {0, 50, 0, 0};
  for (const int puntos : {31, 33, 34, 35, 36, 37, 38}) {
    EXPECT_EQ(Abre(puntos, 1, {Alta, Alta, DrawBelow(0.25F), Alta, Alta}), Decision::Envido)
        << puntos;
    EXPECT_EQ(Abre(puntos, 1, {Alta, Alta, 0.25F, Alta, Alta}), Decision::Paso) << puntos;
  }
  t.OrdagueroAsiento = {100, 0, 100, 100};
  EXPECT_EQ(Abre(33, 1, {Alta, Alta, 0, Alta, Alta}), Decision::Paso);
}

TEST_F(DecideJuego, ASecondSpeakerBetsUpTo40TwoTimesInFive) {
  for (const int puntos : {31, 32, 40}) {
    EXPECT_EQ(Abre(puntos, 2, {Alta, Alta, Alta, DrawBelow(0.4F), Alta}), Decision::Envido)
        << puntos;
    EXPECT_EQ(Abre(puntos, 2, {Alta, Alta, Alta, DrawFrom(0.4F), Alta}), Decision::Paso) << puntos;
  }
  EXPECT_EQ(Abre(39, 2, {Alta, Alta, Alta, 0, Alta}), Decision::Paso);
}

TEST_F(DecideJuego, ASecondSpeakerBetsUpTo38ByItsOrdaguero) {
  t.OrdagueroAsiento = {0, 50, 0, 0};
  for (const int puntos : {31, 32, 40, 39, 38}) {
    EXPECT_EQ(Abre(puntos, 2, {Alta, Alta, Alta, Alta, DrawBelow(0.25F)}), Decision::Envido)
        << puntos;
    EXPECT_EQ(Abre(puntos, 2, {Alta, Alta, Alta, Alta, 0.25F}), Decision::Paso) << puntos;
  }
  for (const int puntos : {37, 36, 35, 34, 33}) {
    EXPECT_EQ(Abre(puntos, 2, {Alta, Alta, Alta, Alta, 0}), Decision::Paso) << puntos;
  }
}

TEST_F(DecideJuego, TheRulesOfOneTurnDoNotApplyInTheOther) {
  t.OrdagueroAsiento[2] = 100;
  EXPECT_EQ(Abre(31, 1, {Alta, Alta, Alta, 0, 0}), Decision::Paso);
  EXPECT_EQ(Abre(31, 2, {0, 0, 0, Alta, Alta}), Decision::Paso);
}

TEST_F(DecideJuego, ALaterSpeakerPassesEvenWith31) {
  t.OrdagueroAsiento[2] = 100;
  EXPECT_EQ(Abre(31, 3, {0, 0, 0, 0, 0}), Decision::Paso);
}

TEST_F(DecideJuego, TakesTheTurnOfItsOwnSeat) {
  t.TurnoJuego = {1, 0, 1, 1};
  DarPuntos(t, 3, 31);
  EXPECT_EQ(Elige(tasca::DecideJuego, t, 3, {0, 0, 0, 0, 0}), Decision::Envido);
  t.TurnoJuego = {1, 1, 3, 1};
  EXPECT_EQ(Elige(tasca::DecideJuego, t, 3, {0, 0, 0, 0, 0}), Decision::Paso);
}

// Two thirds of 35 are 23.33, of 36 exactly 24.
TEST_F(DecideJuego, OnlyEnvidaWhileBothAreBelowTwoThirds) {
  Marcan(t, 23, 23);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0}), Decision::Envido);
  Marcan(t, 24, 23);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, 0}), Decision::EnvidoMas);
  Marcan(t, 23, 24);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, 0}), Decision::EnvidoMas);
  t.PiedrasJuego = 36;
  Marcan(t, 23, 23);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0}), Decision::Envido);
  Marcan(t, 24, 0);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, 0}), Decision::EnvidoMas);
  Marcan(t, 0, 24);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, 0}), Decision::EnvidoMas);
}

TEST_F(DecideJuego, TurnsItsBetIntoAnOrdagoWhenRivalsAreNear) {
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0}), Decision::Ordago);
  Marcan(t, 28, 28);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, Alta}), Decision::Envido);
  Marcan(t, 29, 28);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, Alta}), Decision::Envido);
}

TEST_F(DecideJuego, BetsMoreOneTimeInFiveLateInTheGame) {
  Marcan(t, 28, 28);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, DrawBelow(0.2F)}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(31, 1, {0, 0, 0, 0, 0, DrawFrom(0.2F)}), Decision::Envido);
}

TEST_F(DecideJuego, DrawsNoMoreWhenItPasses) {
  Marcan(t, 28, 28);
  EXPECT_EQ(Abre(33, 1, {0, 0, 0, 0, 0}), Decision::Paso);
}

// Seat 2 answers a bet of two stones: y = 2 r + turno x fuerza.
struct RespondeJuego : testing::Test {
  Table t = MesaDePrueba();

  RespondeJuego() { t.SeguirLance = 2; }

  Decision Responde(int puntos, int turno, std::initializer_list<float> sacadas = {}) {
    DarPuntos(t, 2, puntos);
    t.TurnoJuego[2] = turno;
    return Elige(tasca::RespondeJuego, t, 2, sacadas);
  }
};

TEST_F(RespondeJuego, AnswersWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 40, 34);
  EXPECT_EQ(Responde(33, 3), Decision::Ordago);
}

TEST_F(RespondeJuego, AnswersWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Responde(33, 3), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Responde(33, 3, {0}), Decision::NoQuiero);
}

TEST_F(RespondeJuego, GoesFromOrdagoToQuieroWith31AsTheFirst) {
  constexpr float Limite = (1.3F - 1.0F) / 2.0F;
  EXPECT_EQ(Responde(31, 1, {DrawBelow(Limite)}), Decision::Ordago);
  EXPECT_EQ(Responde(31, 1, {DrawFrom(Limite)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(31, 1, {0.75F - 2 * Minima}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(31, 1, {0.75F}), Decision::Quiero);
  EXPECT_EQ(Responde(31, 1, {Maxima}), Decision::Quiero);
}

struct CasoRespuesta {
  int puntos;
  int turno;
  float sacada;
  Decision decision;
};

constexpr std::array<CasoRespuesta, 16> CasosRespuesta{{
    {31, 2, 0.25F - 2 * Minima, Decision::EnvidoMas},  // 2
    {31, 2, 0.25F, Decision::Quiero},
    {32, 1, 0.25F - 2 * Minima, Decision::EnvidoMas},
    {32, 1, 0.25F, Decision::Quiero},
    {31, 3, 0.5F - 2 * Minima, Decision::Quiero},  // 3
    {31, 3, 0.5F, Decision::NoQuiero},
    {40, 1, 0.5F - 2 * Minima, Decision::Quiero},
    {40, 1, 0.5F, Decision::NoQuiero},
    {32, 2, 0, Decision::NoQuiero},  // 4 and more
    {39, 1, 0, Decision::NoQuiero},
    {38, 1, 0, Decision::NoQuiero},
    {37, 1, 0, Decision::NoQuiero},
    {36, 1, 0, Decision::NoQuiero},
    {35, 1, 0, Decision::NoQuiero},
    {34, 1, 0, Decision::NoQuiero},
    {33, 1, 0, Decision::NoQuiero},
}};

TEST_F(RespondeJuego, MultipliesTheRankByTheTurn) {
  for (const CasoRespuesta& caso : CasosRespuesta) {
    EXPECT_EQ(Responde(caso.puntos, caso.turno, {caso.sacada}), caso.decision)
        << caso.puntos << " at turn " << caso.turno << ", draw " << caso.sacada;
  }
}

TEST_F(RespondeJuego, OnlyAcceptsOrRefusesAnOrdago) {
  t.SeguirLance = -1;
  EXPECT_EQ(Responde(31, 1, {0}), Decision::Quiero);
  EXPECT_EQ(Responde(31, 1, {0.5F}), Decision::Quiero);
  EXPECT_EQ(Responde(31, 1, {Maxima}), Decision::Quiero);
  EXPECT_EQ(Responde(39, 1, {0}), Decision::NoQuiero);
  Marcan(t, 0, 34);
  EXPECT_EQ(Responde(39, 1, {0}), Decision::NoQuiero);
}

}  // namespace
}  // namespace tasca::test
