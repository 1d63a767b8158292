// Pares: the decisions of the computer seats.
#include <gtest/gtest.h>

#include "lances/pares.h"
#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

// Seat 2 was the first to declare pares, and its pareja refused the first mus.
struct DecidePares : testing::Test {
  Table t = MesaDePrueba();

  DecidePares() {
    t.ParejaCortaMus = 0;
    t.OrdenPares = {0, 1, 0, 0};
  }

  Decision Abre(std::string_view mano, std::initializer_list<float> sacadas = {}) {
    DarMano(t, 2, mano);
    return Elige(tasca::DecidePares, t, 2, sacadas);
  }
};

TEST_F(DecidePares, OpensWithOrdagoWhenRivalsNeedOneStone) {
  for (const Pareja pareja : {0, 1}) {
    t.ParejaCortaMus = pareja;
    Marcan(t, 40, 34);
    EXPECT_EQ(Abre("7 7 5 4"), Decision::Ordago) << pareja;
  }
}

TEST_F(DecidePares, OpensWithOrdagoWhenRivalsAreNearAndAhead) {
  for (const Pareja pareja : {0, 1}) {
    t.ParejaCortaMus = pareja;
    Marcan(t, 28, 29);
    EXPECT_EQ(Abre("7 7 5 4"), Decision::Ordago) << pareja;
  }
}

TEST_F(DecidePares, OpensWithOrdagoOnMediasOrDuplexWhenRivalsAreNear) {
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre("7 7 7 4"), Decision::Ordago);
  EXPECT_EQ(Abre("7 7 4 4"), Decision::Ordago);
  EXPECT_EQ(Abre("7 7 7 7"), Decision::Ordago);
  EXPECT_EQ(Abre("7 7 5 4", {0.5F, 0, 0}), Decision::Paso);
  Marcan(t, 28, 28);
  EXPECT_EQ(Abre("7 7 7 4", {0, 0}), Decision::Envido);
}

TEST_F(DecidePares, OpensWithOrdagoOneTimeInTwoWhenRivalsAreNear) {
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre("7 7 5 4", {0.5F + Minima}), Decision::Ordago);
  EXPECT_EQ(Abre("7 7 5 4", {0.5F, 0, 0}), Decision::Paso);
  Marcan(t, 28, 28);
  EXPECT_EQ(Abre("7 7 5 4", {Maxima, 0, 0}), Decision::Paso);
}

TEST_F(DecidePares, BetsMediasAndDuplexNineTimesInTen) {
  EXPECT_EQ(Abre("7 7 7 4", {0, DrawBelow(0.9F)}), Decision::Envido);
  EXPECT_EQ(Abre("7 7 7 4", {0, DrawFrom(0.9F), Maxima}), Decision::Paso);
  EXPECT_EQ(Abre("7 7 4 4", {Maxima, DrawBelow(0.9F)}), Decision::Envido);
  EXPECT_EQ(Abre("7 7 4 4", {Maxima, DrawFrom(0.9F), Maxima}), Decision::Paso);
}

TEST_F(DecidePares, BetsAParOneTimeInFour) {
  EXPECT_EQ(Abre("7 7 5 4", {0, 0, 0.75F + Minima}), Decision::Envido);
  EXPECT_EQ(Abre("7 7 5 4", {0, 0, 0.75F}), Decision::Paso);
}

TEST_F(DecidePares, BetsOnASecondReyWhenTheMusWasRefusedAtOnce) {
  EXPECT_EQ(Abre("R R 5 4", {0, 0, 0}), Decision::Envido);
  EXPECT_EQ(Abre("R 3 5 4", {0, 0, 0}), Decision::Envido);
  EXPECT_EQ(Abre("R R R 4", {0, Maxima, 0}), Decision::Envido);
  EXPECT_EQ(Abre("R R 5 5", {0, Maxima, 0}), Decision::Envido);
  t.RondasMus = 1;
  EXPECT_EQ(Abre("R R 5 4", {0, 0, 0}), Decision::Paso);
}

TEST_F(DecidePares, LooksAtTheSecondCardForThatRey) {
  EXPECT_EQ(Abre("R 7 7 4", {0, 0, 0}), Decision::Paso);
  EXPECT_EQ(Abre("C C 5 4", {0, 0, 0}), Decision::Paso);
}

TEST_F(DecidePares, PassesOrBetsAnOrdagoWithoutPares) {
  EXPECT_EQ(Abre("7 6 5 4", {Maxima, 0, Maxima}), Decision::Paso);
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre("7 6 5 4", {0.5F + Minima}), Decision::Ordago);
}

TEST_F(DecidePares, BetsOneTimeInFourBehindAnotherDeclarationOnTheOtherSide) {
  t.ParejaCortaMus = 1;
  t.OrdenPares[2] = 2;
  EXPECT_EQ(Abre("R R 5 4", {0.75F + Minima}), Decision::Envido);
  EXPECT_EQ(Abre("R R 5 4", {0.75F}), Decision::Paso);
  t.OrdenPares[2] = 4;
  EXPECT_EQ(Abre("R R 5 4", {Maxima}), Decision::Envido);
}

TEST_F(DecidePares, PassesAsTheFirstToDeclareOnTheOtherSide) {
  t.ParejaCortaMus = 1;
  EXPECT_EQ(Abre("R R R R", {Maxima}), Decision::Paso);
}

TEST_F(DecidePares, OnTheOtherSideOnlyTheScoreMakesAnOrdago) {
  t.ParejaCortaMus = 1;
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre("R R R R", {Maxima}), Decision::Paso);
}

// Seat 2 answers a bet of two stones.
struct RespondePares : testing::Test {
  Table t = MesaDePrueba();

  RespondePares() { t.SeguirLance = 2; }

  // `orden` is the seat's number among those that declared pares.
  Decision Responde(std::string_view mano, int orden, std::initializer_list<float> sacadas = {}) {
    DarMano(t, 2, mano);
    t.OrdenPares[2] = orden;
    return Elige(tasca::RespondePares, t, 2, sacadas);
  }
};

TEST_F(RespondePares, AnswersWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 40, 34);
  EXPECT_EQ(Responde("A A 5 4", 4), Decision::Ordago);
}

TEST_F(RespondePares, AnswersWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Responde("A A 5 4", 4), Decision::Ordago);
}

TEST_F(RespondePares, Kept_SaysNothingWhenRivalsAreNearAndNotAhead) {
  Marcan(t, 29, 29);
  EXPECT_EQ(Responde("A A 5 4", 4), Decision::Callar);
  EXPECT_EQ(Responde("R R R R", 1), Decision::Callar);
  EXPECT_EQ(static_cast<int>(Decision::Callar), -3);
  Marcan(t, 34, 33);
  EXPECT_EQ(Responde("R R R R", 1), Decision::Callar);
  Marcan(t, 28, 28);
  EXPECT_EQ(Responde("A A 5 4", 4, {0}), Decision::NoQuiero);
}

// The strength of a par of Reyes is 20 + 2 (3 - orden) + 20.
TEST_F(RespondePares, AcceptsFrom39OnWithoutDiscards) {
  EXPECT_EQ(Responde("R R 5 4", 4, {0}), Decision::NoQuiero);  // 38
  EXPECT_EQ(Responde("R R 5 4", 3, {0}), Decision::Quiero);    // 40
  EXPECT_EQ(Responde("R C C 4", 2, {0}), Decision::Quiero);    // 40
  EXPECT_EQ(Responde("R C C 4", 3, {0}), Decision::NoQuiero);  // 38
  EXPECT_EQ(Responde("R C S S", 1, {0}), Decision::Quiero);    // 40
}

// The strength of medias of value 3, made up here, is 40 + 2 (3 - orden) + 12.
TEST_F(RespondePares, AcceptsFrom52OnAfterOneDiscardPass) {
  t.RondasMus = 1;
  for (int palo = 1; palo <= 4; ++palo) t.Cartas[NumeroDeCarta('4', palo)].ValorPares = 3;
  EXPECT_EQ(Responde("7 4 4 4", 4, {0}), Decision::NoQuiero);  // 50
  EXPECT_EQ(Responde("7 4 4 4", 3, {0}), Decision::Quiero);    // 52
}

// The strength of medias of Cuatros is 40 + 2 (3 - orden) + 16.
TEST_F(RespondePares, AcceptsFrom59OnAfterMoreDiscardPasses) {
  for (const int rondas : {2, 3, 9}) {
    t.RondasMus = rondas;
    EXPECT_EQ(Responde("7 4 4 4", 2, {0}), Decision::NoQuiero) << rondas;  // 58
    EXPECT_EQ(Responde("7 4 4 4", 1, {0}), Decision::Quiero) << rondas;    // 60
  }
}

TEST_F(RespondePares, RaisesAboveOneAndAHalfTimesTheThreshold) {
  EXPECT_EQ(Responde("7 4 4 4", 2, {0}), Decision::Quiero);     // 58 to 58.5
  EXPECT_EQ(Responde("7 4 4 4", 1, {0}), Decision::EnvidoMas);  // 60
  t.RondasMus = 1;
  EXPECT_EQ(Responde("R R R 4", 4, {0}), Decision::Quiero);     // 78 to 78
  EXPECT_EQ(Responde("R R R 4", 3, {0}), Decision::EnvidoMas);  // 80
  t.RondasMus = 2;
  EXPECT_EQ(Responde("A A A A", 1, {0}), Decision::Quiero);     // 88 to 88.5
  EXPECT_EQ(Responde("4 4 A A", 4, {0}), Decision::Quiero);     // 88
  EXPECT_EQ(Responde("4 4 A A", 3, {0}), Decision::EnvidoMas);  // 90
}

// The strength of Cuatros and Ases is 80 + 2 (3 - orden) + 2 x 4 + 2 x 1: both pairs count.
TEST_F(RespondePares, WeighsBothPairsOfADuplex) {
  t.RondasMus = 2;
  EXPECT_EQ(Responde("5 5 A A", 4, {0}), Decision::EnvidoMas);  // 90
  EXPECT_EQ(Responde("4 4 A A", 4, {0}), Decision::Quiero);     // 88
}

TEST_F(RespondePares, RaisesByTheOrdagueroWhateverTheCards) {
  t.OrdagueroAsiento = {0, 50, 0, 0};
  EXPECT_EQ(Responde("A A 5 4", 4, {DrawBelow(0.25F)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde("A A 5 4", 4, {0.25F}), Decision::NoQuiero);
  EXPECT_EQ(Responde("R R 5 4", 3, {DrawBelow(0.25F)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde("R R 5 4", 3, {0.25F}), Decision::Quiero);
  t.OrdagueroAsiento = {50, 0, 50, 50};
  EXPECT_EQ(Responde("A A 5 4", 4, {0}), Decision::NoQuiero);
  t.OrdagueroAsiento = {0, 1, 0, 0};
  EXPECT_EQ(Responde("A A 5 4", 4, {DrawBelow(0.005F)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde("A A 5 4", 4, {DrawFrom(0.005F)}), Decision::NoQuiero);
}

TEST_F(RespondePares, AcceptsAnOrdagoAbove59WithoutADraw) {
  t.SeguirLance = -1;
  t.OrdagueroAsiento[2] = 100;
  EXPECT_EQ(Responde("7 4 4 4", 2), Decision::NoQuiero);  // 58
  EXPECT_EQ(Responde("7 4 4 4", 1), Decision::Quiero);    // 60
  EXPECT_EQ(Responde("R R R R", 1), Decision::Quiero);
  t.RondasMus = 3;
  EXPECT_EQ(Responde("7 4 4 4", 1), Decision::Quiero);
}

TEST_F(RespondePares, AcceptsAnOrdagoAbove57WhenRivalsAreNear) {
  t.SeguirLance = -1;
  Marcan(t, 29, 29);
  EXPECT_EQ(Responde("7 4 4 4", 3), Decision::NoQuiero);  // 56
  EXPECT_EQ(Responde("7 4 4 4", 2), Decision::Quiero);    // 58
  Marcan(t, 0, 29);
  EXPECT_EQ(Responde("7 4 4 4", 3), Decision::NoQuiero);
  EXPECT_EQ(Responde("7 4 4 4", 2), Decision::Quiero);
  Marcan(t, 0, 28);
  EXPECT_EQ(Responde("7 4 4 4", 2), Decision::NoQuiero);
}

TEST_F(RespondePares, AcceptsAnyOrdagoWhenRivalsNeedOneStone) {
  t.SeguirLance = -1;
  Marcan(t, 0, 34);
  EXPECT_EQ(Responde("A A 5 4", 4), Decision::Quiero);
  Marcan(t, 0, 33);
  EXPECT_EQ(Responde("A A 5 4", 4), Decision::NoQuiero);
}

}  // namespace
}  // namespace tasca::test
