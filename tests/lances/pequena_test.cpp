// Pequeña: the decisions of the computer seats, and the best hand.
#include "lances/pequena.h"

#include <gtest/gtest.h>

#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

struct DecidePequena : testing::Test {
  Table t = MesaDePrueba();

  Decision Abre(Seat asiento, std::initializer_list<float> sacadas = {}) const {
    return Elige(tasca::DecidePequena, t, asiento, sacadas);
  }
};

TEST_F(DecidePequena, OpensWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 40, 34);
  EXPECT_EQ(Abre(2), Decision::Ordago);
  EXPECT_EQ(Abre(4), Decision::Ordago);
}

TEST_F(DecidePequena, OpensWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Abre(2), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Abre(2, {0}), Decision::Paso);
}

TEST_F(DecidePequena, OpensWithOrdagoOnAnyAsWhenRivalsNeedSevenStonesOrFewer) {
  DarMano(t, 2, "7 6 5 A");
  DarMano(t, 4, "7 6 5 2");
  Marcan(t, 30, 28);
  EXPECT_EQ(Abre(2), Decision::Ordago);
  EXPECT_EQ(Abre(4), Decision::Ordago);
  Marcan(t, 30, 29);
  EXPECT_EQ(Abre(2), Decision::Ordago);
  Marcan(t, 30, 27);
  EXPECT_EQ(Abre(2, {0}), Decision::Paso);
}

TEST_F(DecidePequena, NeedsAnAsForThatOrdago) {
  Marcan(t, 30, 28);
  EXPECT_EQ(Abre(2, {0}), Decision::Paso);
  EXPECT_EQ(Abre(2, {Maxima}), Decision::Paso);
}

// Twice a draw is below 2, the limit of envido.
TEST_F(DecidePequena, PassesWithoutAsesWhateverTheDraw) {
  EXPECT_EQ(Abre(2, {0}), Decision::Paso);
  EXPECT_EQ(Abre(2, {Maxima}), Decision::Paso);
}

TEST_F(DecidePequena, GoesFromPasoToOrdagoAsTheDrawRises) {
  DarMano(t, 2, "7 6 5 A");
  EXPECT_EQ(Abre(2, {DrawBelow(2.0F / 3.0F)}), Decision::Paso);
  EXPECT_EQ(Abre(2, {DrawFrom(2.0F / 3.0F)}), Decision::Envido);
  DarMano(t, 2, "7 6 2 A");
  EXPECT_EQ(Abre(2, {DrawBelow(0.5F)}), Decision::Paso);
  EXPECT_EQ(Abre(2, {0.5F}), Decision::Envido);
  DarMano(t, 2, "7 2 A A");
  EXPECT_EQ(Abre(2, {DrawBelow(0.4F)}), Decision::Paso);
  EXPECT_EQ(Abre(2, {DrawFrom(0.4F)}), Decision::Envido);
  EXPECT_EQ(Abre(2, {Maxima}), Decision::Envido);
  DarMano(t, 2, "2 2 A A");
  EXPECT_EQ(Abre(2, {DrawBelow(1.0F / 3.0F)}), Decision::Paso);
  EXPECT_EQ(Abre(2, {DrawFrom(1.0F / 3.0F)}), Decision::Envido);
  EXPECT_EQ(Abre(2, {DrawBelow(5.0F / 6.0F)}), Decision::Envido);
  EXPECT_EQ(Abre(2, {DrawFrom(5.0F / 6.0F)}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(2, {15379113 * Minima}), Decision::EnvidoMas);
  EXPECT_EQ(Abre(2, {15379114 * Minima}), Decision::Ordago);  // 5.5 in single precision
}

TEST_F(DecidePequena, Kept_IgnoresTheMusAndTheOrdaguero) {
  DarMano(t, 2, "7 6 2 A");
  t.OrdagueroAsiento = {100, 100, 100, 100};
  t.RondasMus = 3;
  for (const Pareja pareja : {0, 1}) {
    t.ParejaCortaMus = pareja;
    EXPECT_EQ(Abre(2, {DrawBelow(0.5F)}), Decision::Paso) << pareja;
    EXPECT_EQ(Abre(2, {0.5F}), Decision::Envido) << pareja;
  }
}

struct RespondePequena : testing::Test {
  Table t = MesaDePrueba();

  RespondePequena() { t.SeguirLance = 2; }

  Decision Responde(std::initializer_list<float> sacadas = {}) const {
    return Elige(tasca::RespondePequena, t, 2, sacadas);
  }
};

TEST_F(RespondePequena, AnswersWithOrdagoWhenRivalsNeedOneStone) {
  Marcan(t, 40, 34);
  EXPECT_EQ(Responde(), Decision::Ordago);
}

TEST_F(RespondePequena, AnswersWithOrdagoWhenRivalsAreNearAndAhead) {
  Marcan(t, 28, 29);
  EXPECT_EQ(Responde(), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Responde({0}), Decision::NoQuiero);
}

TEST_F(RespondePequena, HasNoOrdagoRuleForSevenStones) {
  DarMano(t, 2, "7 6 5 A");
  Marcan(t, 30, 28);
  EXPECT_EQ(Responde({0}), Decision::NoQuiero);
}

TEST_F(RespondePequena, AcceptsWithTwoAsesLessTheDiscardPasses) {
  DarMano(t, 2, "7 6 2 A");
  EXPECT_EQ(Responde(), Decision::Quiero);
  t.RondasMus = 1;
  EXPECT_EQ(Responde({0}), Decision::NoQuiero);
  DarMano(t, 2, "7 2 A A");
  EXPECT_EQ(Responde(), Decision::Quiero);
  DarMano(t, 2, "R R R R");
  t.RondasMus = 0;
  EXPECT_EQ(Responde({0}), Decision::NoQuiero);
}

TEST_F(RespondePequena, NeedsAThirdAsAgainstAnOrdago) {
  t.SeguirLance = -1;
  DarMano(t, 2, "7 6 2 A");
  EXPECT_EQ(Responde(), Decision::NoQuiero);
  DarMano(t, 2, "7 2 2 A");
  EXPECT_EQ(Responde(), Decision::Quiero);
}

TEST_F(RespondePequena, RaisesOrRefusesWithPoorCards) {
  t.OrdagueroAsiento[2] = 50;
  EXPECT_EQ(Responde({DrawBelow(0.165F)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde({DrawFrom(0.165F)}), Decision::NoQuiero);
}

TEST_F(RespondePequena, AnswersWithOrdagoOnPoorCardsWhenBehindOpponentsAlmostOut) {
  t.OrdagueroAsiento[2] = 100;
  Marcan(t, 26, 27);
  EXPECT_EQ(Responde({DrawBelow(0.25F)}), Decision::Ordago);
  EXPECT_EQ(Responde({0.25F}), Decision::EnvidoMas);
  Marcan(t, 25, 26);
  EXPECT_EQ(Responde({0}), Decision::EnvidoMas);
}

struct GanaPequena : testing::Test {
  Table t = MesaDePrueba();

  // Seats 1 and 2 have these hands, seats 3 and 4 the worst one.
  Pareja Gana(std::string_view humano, std::string_view contrario) {
    DarMano(t, 1, humano);
    DarMano(t, 2, contrario);
    DarMano(t, 3, "R R R R");
    DarMano(t, 4, "R R R R");
    return tasca::GanaPequena(t);
  }
};

TEST_F(GanaPequena, ComparesCardByCardFromTheLowest) {
  EXPECT_EQ(Gana("R R R A", "4 4 4 4"), 1);
  EXPECT_EQ(Gana("4 4 4 4", "R R R A"), 0);
  EXPECT_EQ(Gana("R R A A", "6 5 4 A"), 1);
  EXPECT_EQ(Gana("R 5 4 A", "6 6 4 A"), 1);
  EXPECT_EQ(Gana("R 5 4 A", "C 5 4 A"), 0);
  EXPECT_EQ(Gana("7 A A A", "6 A A A"), 0);
}

TEST_F(GanaPequena, CountsADosAsAnAsAndATresAsARey) {
  EXPECT_EQ(Gana("R R R 2", "R R R A"), 1);
  t.OrdenAsiento = {2, 3, 4, 1};
  EXPECT_EQ(Gana("R R R 2", "R R R A"), 0);
  EXPECT_EQ(Gana("7 6 5 3", "7 6 5 4"), 0);
}

TEST_F(GanaPequena, FindsTheBestHandAtEverySeat) {
  for (Seat mejor = 1; mejor <= 4; ++mejor) {
    Table otra = MesaDePrueba();
    DarMano(otra, mejor, "R R R A");
    EXPECT_EQ(tasca::GanaPequena(otra), mejor % 2) << mejor;
  }
}

TEST_F(GanaPequena, GivesEqualHandsToTheSeatNearestTheMano) {
  DarMano(t, 1, "7 6 5 A");
  DarMano(t, 4, "7 6 5 2");
  t.OrdenAsiento = {2, 3, 4, 1};
  EXPECT_EQ(tasca::GanaPequena(t), 0);
  t.OrdenAsiento = {1, 2, 3, 4};
  EXPECT_EQ(tasca::GanaPequena(t), 1);
  t.OrdenAsiento = {4, 1, 2, 3};
  EXPECT_EQ(tasca::GanaPequena(t), 0);
  t.OrdenAsiento = {3, 4, 1, 2};
  EXPECT_EQ(tasca::GanaPequena(t), 0);
}

TEST(DatosPequena, Kept_WritesPequenaWithACapitalOnlyUntilItIsBet) {
  const Lance& lance = DatosPequena();
  EXPECT_EQ(Utf8(lance.Encabezado), "Pequeña \r\n");
  EXPECT_EQ(Utf8(lance.TituloApertura), "La Pequeña");
  EXPECT_EQ(Utf8(lance.TituloCantidad), "Envite a Pequeña");
  EXPECT_EQ(Utf8(lance.TituloRespuesta), "Envite a pequeña");
  EXPECT_EQ(Utf8(lance.TituloCantidadAlSubir), "Envite a pequeña");
}

}  // namespace
}  // namespace tasca::test
