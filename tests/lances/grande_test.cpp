// Grande: the decisions of the computer seats, and the best hand.
#include "lances/grande.h"

#include <gtest/gtest.h>

#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

// Pareja 0 has refused the mus, and nobody is near the end of the juego.
struct DecideGrande : testing::Test {
  Table t = MesaDePrueba();

  DecideGrande() { t.ParejaCortaMus = 0; }

  Decision Abre(Seat asiento, std::initializer_list<float> sacadas = {}) const {
    return Elige(tasca::DecideGrande, t, asiento, sacadas);
  }
};

TEST_F(DecideGrande, OpensWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 0, 34);
  EXPECT_EQ(Abre(2), Decision::Ordago);
  EXPECT_EQ(Abre(4), Decision::Ordago);
  EXPECT_EQ(Abre(3, {0, 0}), Decision::Paso);
  t.Piedras = {34, 0};
  EXPECT_EQ(Abre(3), Decision::Ordago);
}

TEST_F(DecideGrande, OpensWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Abre(2), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre(2, {0, 0.9F}), Decision::Paso);
  Marcan(t, 0, 28);
  EXPECT_EQ(Abre(2, {0, 0.9F}), Decision::Paso);
}

// Two Reyes without discards: k = 2 for the other pareja, 3 for the one that refused.
TEST_F(DecideGrande, CountsOneMoreForTheSideThatRefusedTheMus) {
  t.ParejaCortaMus = 1;
  DarMano(t, 2, "R R 5 4");
  EXPECT_EQ(Abre(2, {DrawBelow(0.5F), 0}), Decision::Paso);
  EXPECT_EQ(Abre(2, {0.5F, 0}), Decision::Envido);
  t.ParejaCortaMus = 0;
  EXPECT_EQ(Abre(2, {DrawBelow(0.4F), 0.9F}), Decision::Paso);
  EXPECT_EQ(Abre(2, {DrawFrom(0.4F), 0.9F}), Decision::Envido);
}

TEST_F(DecideGrande, CountsTheDiscardPassesAgainstTheOtherSideOnly) {
  DarMano(t, 2, "R R 5 4");
  DarMano(t, 3, "R R 5 4");
  t.RondasMus = 1;
  EXPECT_EQ(Abre(3, {DrawBelow(2.0F / 3.0F), 0}), Decision::Paso);  // k = 1
  EXPECT_EQ(Abre(3, {DrawFrom(2.0F / 3.0F), 0}), Decision::Envido);
  EXPECT_EQ(Abre(2, {DrawBelow(0.4F), 0.9F}), Decision::Paso);  // k = 3
  EXPECT_EQ(Abre(2, {DrawFrom(0.4F), 0.9F}), Decision::Envido);
}

TEST_F(DecideGrande, CountsATresAsARey) {
  t.ParejaCortaMus = 1;
  DarMano(t, 2, "R 3 5 4");
  EXPECT_EQ(Abre(2, {0.5F, 0}), Decision::Envido);
  DarMano(t, 2, "C 7 5 4");
  EXPECT_EQ(Abre(2, {Maxima, 0}), Decision::Paso);
}

TEST_F(DecideGrande, CountsOneMoreForAnOrdagueroAbove74) {
  t.ParejaCortaMus = 1;
  DarMano(t, 2, "R 7 5 4");
  t.OrdagueroAsiento = {100, 74, 100, 100};
  EXPECT_EQ(Abre(2, {0.5F, 0}), Decision::Paso);  // k = 1
  t.OrdagueroAsiento = {0, 75, 0, 0};
  EXPECT_EQ(Abre(2, {0.5F, 0}), Decision::Envido);  // k = 2
  EXPECT_EQ(Abre(2, {DrawBelow(0.5F), 0}), Decision::Paso);
}

// Four Reyes of the pareja that refused: k = 5; with ordaguero 75: k = 6.
TEST_F(DecideGrande, GoesFromPasoToOrdagoAsTheDrawRises) {
  DarMano(t, 2, "R R 3 3");
  EXPECT_EQ(Abre(2, {DrawBelow(2.0F / 7.0F), 0.9F}), Decision::Paso);
  EXPECT_EQ(Abre(2, {DrawFrom(2.0F / 7.0F), 0.9F}), Decision::Envido);
  EXPECT_EQ(Abre(2, {DrawBelow(5.0F / 7.0F), 0.9F}), Decision::Envido);
  EXPECT_EQ(Abre(2, {DrawFrom(5.0F / 7.0F), 0.9F}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(2, {DrawBelow(5.5F / 7.0F), 0.9F}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(2, {DrawFrom(5.5F / 7.0F), 0.9F}), Decision::Ordago);
  t.OrdagueroAsiento[2] = 75;
  EXPECT_EQ(Abre(2, {DrawBelow(0.25F), 0.9F}), Decision::Paso);
  EXPECT_EQ(Abre(2, {0.25F, 0.9F}), Decision::Envido);
  EXPECT_EQ(Abre(2, {0.625F, 0.9F}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(2, {0.6875F, 0.9F}), Decision::Ordago);
}

TEST_F(DecideGrande, Kept_TheSideThatRefusedBetsFourTimesInFiveWithAPoorHand) {
  EXPECT_EQ(Abre(2, {0, DrawBelow(0.8F)}), Decision::Envido);
  EXPECT_EQ(Abre(2, {0, DrawFrom(0.8F)}), Decision::Paso);
  EXPECT_EQ(Abre(3, {0, 0}), Decision::Paso);
}

TEST_F(DecideGrande, Kept_DrawsASecondTimeWhateverTheFirstDrawDecided) {
  DarMano(t, 2, "R R 3 3");
  EXPECT_EQ(Abre(2, {0.5F, 0}), Decision::Envido);
  EXPECT_EQ(Abre(2, {0.75F, 0}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(2, {0.9F, 0}), Decision::Ordago);
  EXPECT_EQ(Abre(3, {0.9F, 0}), Decision::Paso);
}

TEST_F(DecideGrande, AlwaysPassesWithoutReyesAfterTwoDiscardPassesOfTheOthers) {
  t.RondasMus = 2;
  for (const float primera : {0.0F, 0.5F, Maxima}) {
    EXPECT_EQ(Abre(3, {primera, 0}), Decision::Paso) << primera;
  }
}

// k = 5, so that x is in [0, 7).
TEST_F(DecideGrande, OpensWithOrdagoOnThreeReyesAndAnOrdaguero80) {
  DarMano(t, 2, "R R R 4");
  t.OrdagueroAsiento[2] = 80;
  EXPECT_EQ(Abre(2, {DrawBelow(5.5F / 7.0F), 0}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(2, {DrawFrom(5.5F / 7.0F), 0}), Decision::Ordago);
}

struct RespondeGrande : testing::Test {
  Table t = MesaDePrueba();

  RespondeGrande() { t.SeguirLance = 2; }

  Decision Responde(Seat asiento, std::initializer_list<float> sacadas = {}) const {
    return Elige(tasca::RespondeGrande, t, asiento, sacadas);
  }
};

TEST_F(RespondeGrande, AnswersWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 0, 34);
  EXPECT_EQ(Responde(2), Decision::Ordago);
  EXPECT_EQ(Responde(4), Decision::Ordago);
}

TEST_F(RespondeGrande, AnswersWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Responde(2), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Responde(2, {0}), Decision::NoQuiero);
}

TEST_F(RespondeGrande, AcceptsWithTwoReyes) {
  DarMano(t, 2, "R 3 5 4");
  EXPECT_EQ(Responde(2), Decision::Quiero);
  DarMano(t, 2, "R 5 A A");
  EXPECT_EQ(Responde(2, {0}), Decision::NoQuiero);
}

TEST_F(RespondeGrande, TakesTheDiscardPassesOffAlsoOnTheSideThatRefused) {
  t.ParejaCortaMus = 0;
  t.RondasMus = 1;
  DarMano(t, 2, "R R R 4");
  EXPECT_EQ(Responde(2), Decision::Quiero);
  DarMano(t, 2, "R R 5 4");
  EXPECT_EQ(Responde(2, {0}), Decision::NoQuiero);
}

TEST_F(RespondeGrande, RefusesAnOrdagoWithTwoReyesAndNoDiscards) {
  t.SeguirLance = -1;
  DarMano(t, 2, "R R 5 4");
  EXPECT_EQ(Responde(2), Decision::NoQuiero);
  DarMano(t, 2, "R R R 4");
  EXPECT_EQ(Responde(2), Decision::Quiero);
}

TEST_F(RespondeGrande, RaisesOrRefusesWithPoorCards) {
  t.OrdagueroAsiento[2] = 50;
  EXPECT_EQ(Responde(2, {DrawBelow(0.165F)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(2, {DrawFrom(0.165F)}), Decision::NoQuiero);
}

TEST_F(RespondeGrande, AnswersWithOrdagoOnPoorCardsWhenBehindOpponentsAlmostOut) {
  t.OrdagueroAsiento[2] = 100;
  Marcan(t, 26, 27);
  EXPECT_EQ(Responde(2, {DrawBelow(0.25F)}), Decision::Ordago);
  EXPECT_EQ(Responde(2, {0.25F}), Decision::EnvidoMas);
}

struct GanaGrande : testing::Test {
  Table t = MesaDePrueba();

  // Seats 1 and 2 have these hands, seats 3 and 4 the worst one.
  Pareja Gana(std::string_view humano, std::string_view contrario) {
    DarMano(t, 1, humano);
    DarMano(t, 2, contrario);
    DarMano(t, 3, "A A A A");
    DarMano(t, 4, "A A A A");
    return tasca::GanaGrande(t);
  }
};

TEST_F(GanaGrande, ComparesCardByCardFromTheHighest) {
  EXPECT_EQ(Gana("R 4 4 A", "C C C C"), 1);
  EXPECT_EQ(Gana("C C C C", "R 4 4 A"), 0);
  EXPECT_EQ(Gana("R R 4 4", "R C C C"), 1);
  EXPECT_EQ(Gana("R R C A", "R R S S"), 1);
  EXPECT_EQ(Gana("R R R 4", "R R R 5"), 0);
  EXPECT_EQ(Gana("7 6 5 4", "7 6 5 A"), 1);
}

TEST_F(GanaGrande, CountsATresAsAReyAndADosAsAnAs) {
  t.OrdenAsiento = {2, 3, 4, 1};
  EXPECT_EQ(Gana("R R R A", "3 3 3 2"), 0);
  t.OrdenAsiento = {1, 2, 3, 4};
  EXPECT_EQ(Gana("R R R A", "3 3 3 2"), 1);
  EXPECT_EQ(Gana("3 7 5 4", "C 7 5 4"), 1);
}

TEST_F(GanaGrande, FindsTheBestHandAtEverySeat) {
  for (Seat mejor = 1; mejor <= 4; ++mejor) {
    Table otra = MesaDePrueba();
    DarMano(otra, mejor, "R 6 5 4");
    EXPECT_EQ(tasca::GanaGrande(otra), mejor % 2) << mejor;
  }
}

TEST_F(GanaGrande, GivesEqualHandsToTheSeatNearestTheMano) {
  const Array<Array<Integer, 1, 4>, 1, 4> ordenes{
      Array<Integer, 1, 4>{1, 2, 3, 4}, {2, 3, 4, 1}, {3, 4, 1, 2}, {4, 1, 2, 3}};
  for (const auto& orden : ordenes) {
    t.OrdenAsiento = orden;
    EXPECT_EQ(tasca::GanaGrande(t), orden[1] % 2) << orden[1];
  }
}

TEST_F(GanaGrande, GivesATieOnlyToASeatThatHasTheBestHand) {
  DarMano(t, 1, "R R 5 4");
  DarMano(t, 2, "R 3 5 4");
  t.OrdenAsiento = {4, 1, 2, 3};
  EXPECT_EQ(tasca::GanaGrande(t), 1);
  t.OrdenAsiento = {2, 3, 4, 1};
  EXPECT_EQ(tasca::GanaGrande(t), 0);
  t.OrdenAsiento = {3, 4, 1, 2};
  EXPECT_EQ(tasca::GanaGrande(t), 1);
}

}  // namespace
}  // namespace tasca::test
