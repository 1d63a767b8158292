// Pares: the declaration and the best hand.
#include "lances/pares.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using PorAsiento = Array<Integer, 1, 4>;

TEST(TienePares, FindsTheOnePairAtAnyTwoSlots) {
  Table t = MesaDePrueba();
  for (const auto* mano : {"S S 5 4", "S 5 S 4", "S 5 4 S", "5 S S 4", "5 S 4 S", "5 4 S S"}) {
    DarMano(t, 3, mano);
    EXPECT_TRUE(TienePares(t, 3)) << mano;
  }
  DarMano(t, 3, "R C S 7");
  EXPECT_FALSE(TienePares(t, 3));
}

TEST(TienePares, PairsATresWithAReyAndADosWithAnAsButNoFigureWithAnother) {
  Table t = MesaDePrueba();
  DarMano(t, 2, "R 3 5 4");
  EXPECT_TRUE(TienePares(t, 2));
  DarMano(t, 2, "7 5 2 A");
  EXPECT_TRUE(TienePares(t, 2));
  DarMano(t, 2, "R C S A");
  EXPECT_FALSE(TienePares(t, 2));
}

TEST(TienePares, LooksAtTheSeatsOwnCardsOnly) {
  Table t = MesaDePrueba();
  DarMano(t, 1, "R R 5 4");
  for (const Seat asiento : {2, 3, 4}) EXPECT_FALSE(TienePares(t, asiento)) << asiento;
}

TEST(CartasIguales, GivesTheValueOfEveryTwoEqualCards) {
  const std::vector<std::pair<const char*, std::vector<int>>> casos{
      {"R C S 7", {}},           {"R 5 5 4", {5}},       {"R 3 5 5", {10, 5}},
      {"R R R 5", {10, 10, 10}}, {"R A A 2", {1, 1, 1}}, {"4 4 4 4", {4, 4, 4, 4, 4, 4}}};
  Table t = MesaDePrueba();
  for (const auto& [mano, valores] : casos) {
    DarMano(t, 4, mano);
    EXPECT_EQ(CartasIguales(t, 4), valores) << mano;
  }
}

// The winner if seats 1 and 2 have these hands and the others no pares.
Pareja Gana(std::string_view humano, std::string_view contrario, const PorAsiento& orden) {
  Table t = MesaDePrueba();
  DarMano(t, 1, humano);
  DarMano(t, 2, contrario);
  t.OrdenAsiento = orden;
  return GanaPares(t);
}

struct CasoPares {
  const char* mejor;
  const char* peor;
};

constexpr std::array<CasoPares, 17> CasosPares{{
    {"7 7 5 5", "R R R 5"},  // dúplex beats medias
    {"4 4 A A", "R R R C"},
    {"A A A A", "R R R C"},  // four equal cards are a dúplex
    {"A A A 4", "R R C S"},  // medias beat par
    {"R C A A", "7 6 5 4"},  // par beats nothing
    {"R R A A", "C C S S"},  // the higher first pair: 1010 to 980
    {"R R C C", "R R S S"},  // then the second: 1090 to 1080
    {"R R R R", "R R C C"},  // 1111 to 1090
    {"R R A A", "C C C C"},  // 1010 to 1000
    {"C C C C", "C C S S"},  // 1000 to 980
    {"5 5 5 5", "5 5 4 4"},  // 556 to 540
    {"6 6 A A", "5 5 5 5"},  // 610 to 556
    {"R R R 4", "C C C R"},  // 1110 to 999
    {"7 4 4 4", "R A A A"},  // 444 to 111
    {"R R 5 4", "C C S 7"},  // 1000 to 900
    {"7 5 5 4", "R C 4 4"},  // 500 to 400
    {"7 6 4 4", "R A A S"},  // 400 to 100
}};

TEST(GanaPares, RanksByClassAndThenByThePairs) {
  for (const CasoPares& caso : CasosPares) {
    SCOPED_TRACE(testing::Message() << caso.mejor << " before " << caso.peor);
    for (const PorAsiento& orden : {PorAsiento{1, 2, 3, 4}, PorAsiento{2, 3, 4, 1}}) {
      EXPECT_EQ(Gana(caso.mejor, caso.peor, orden), 1);
      EXPECT_EQ(Gana(caso.peor, caso.mejor, orden), 0);
    }
  }
}

TEST(GanaPares, FindsTheBestPairsAtEverySeat) {
  for (Seat mejor = 1; mejor <= 4; ++mejor) {
    Table t = MesaDePrueba();
    for (Seat asiento = 1; asiento <= 4; ++asiento) DarMano(t, asiento, "7 5 5 4");
    DarMano(t, mejor, "7 7 5 4");
    EXPECT_EQ(GanaPares(t), mejor % 2) << mejor;
  }
}

TEST(GanaPares, IsNobodyWithoutPares) { EXPECT_EQ(GanaPares(MesaDePrueba()), -1); }

TEST(GanaPares, GivesEqualParesToTheSeatNearestTheMano) {
  for (const auto* mano : {"R R 5 4", "R R 5 5", "R R R 5", "R R R R"}) {
    EXPECT_EQ(Gana(mano, mano, {1, 2, 3, 4}), 1) << mano;
    EXPECT_EQ(Gana(mano, mano, {2, 3, 4, 1}), 0) << mano;
    EXPECT_EQ(Gana(mano, mano, {3, 4, 1, 2}), 1) << mano;
    EXPECT_EQ(Gana(mano, mano, {4, 1, 2, 3}), 1) << mano;
  }
}

TEST(GanaPares, IgnoresTheCardsBesideThePairs) {
  EXPECT_EQ(Gana("R 4 4 A", "C 4 4 5", {2, 3, 4, 1}), 0);
  EXPECT_EQ(Gana("R 4 4 A", "C 4 4 5", {1, 2, 3, 4}), 1);
  EXPECT_EQ(Gana("R R 5 4", "R 3 5 4", {2, 3, 4, 1}), 0);
}

// Four Caballos give 900 + 90 + 9 + 0.9 + 0.09 + 0.009 = 999.999, rounded to 1000. Reyes with a
// second pair of value 0 give 1000 too.
TEST(GanaPares, RoundsTheTieValueOfFourEqualCards) {
  Table t = MesaDePrueba();
  for (int palo = 1; palo <= 4; ++palo) t.Cartas[NumeroDeCarta('4', palo)].ValorPares = 0;
  DarMano(t, 1, "C C C C");
  DarMano(t, 2, "R R 4 4");
  EXPECT_EQ(GanaPares(t), 1);
  t.OrdenAsiento = {2, 3, 4, 1};
  EXPECT_EQ(GanaPares(t), 0);
}

// The human has a par and seat 4 medias; seats 2 and 3 have no pares.
struct DeclaraPares : testing::Test {
  Mesa m;

  DeclaraPares() {
    m.t.Fase = Fase::DeclaracionPares;
    m.t.Text2 = u"lo de antes\r\n";
    m.t.OrdenPares = {9, 9, 9, 9};
    DarMano(m.t, 1, "R R 5 4");
    DarMano(m.t, 4, "5 5 5 A");
  }

  void Declaran() { m.Juega(tasca::DeclaraPares, {0, 0, 0, 0, 0, 0}); }
};

TEST_F(DeclaraPares, GoesOnToTheBetsWhenBothParejasHavePares) {
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: TPar1\r\n"
            "Jugador 2: NPar1\r\n"
            "Jugador 3: NPar1\r\n"
            "Jugador 4: TPar1\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"yesno[¿Tiene pares?]:  (icon, default yes)"}));
  EXPECT_EQ(m.port.Preguntas, std::vector<Pregunta>{Pregunta::Pares});
  EXPECT_EQ(m.t.Fase, Fase::Pares);
  EXPECT_EQ(m.t.OrdenPares, (PorAsiento{1, 0, 0, 2}));
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Pares], 0);
}

TEST_F(DeclaraPares, SkipsTheBetsWhenOnlyOneParejaHasPares) {
  DarMano(m.t, 3, "S S 5 4");
  DarMano(m.t, 4, "7 6 5 4");
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: TPar1\r\n"
            "Jugador 2: NPar1\r\n"
            "Jugador 3: TPar1\r\n"
            "Jugador 4: NPar1\r\n"
            "Una de las dos parejas no tiene pares\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.Fase, Fase::DeclaracionJuego);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Pares], 0);
  EXPECT_EQ(m.t.OrdenPares, (PorAsiento{1, 0, 2, 0}));
}

TEST_F(DeclaraPares, SkipsTheBetsWhenOnlyTheOpponentsHavePares) {
  DarMano(m.t, 1, "7 6 5 4");
  m.port.No();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: NPar1\r\n"
            "Jugador 2: NPar1\r\n"
            "Jugador 3: NPar1\r\n"
            "Jugador 4: TPar1\r\n"
            "Una de las dos parejas no tiene pares\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.t.Fase, Fase::DeclaracionJuego);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Pares], 0);
  EXPECT_EQ(m.t.OrdenPares, (PorAsiento{0, 0, 0, 1}));
}

TEST_F(DeclaraPares, PaysNoParesWhenNobodyHasThem) {
  m.DarATodos("7 6 5 4");
  m.port.No();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: NPar1\r\n"
            "Jugador 2: NPar1\r\n"
            "Jugador 3: NPar1\r\n"
            "Jugador 4: NPar1\r\n"
            "Ninguna de las dos parejas tiene pares\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"yesno[¿Tiene pares?]:  (icon, default no)"}));
  EXPECT_EQ(m.t.Fase, Fase::DeclaracionJuego);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Pares], -2);
  EXPECT_EQ(m.t.OrdenPares, (PorAsiento{0, 0, 0, 0}));
}

TEST_F(DeclaraPares, CorrectsTheHumanWhoDeniesAPair) {
  m.port.No();
  Declaran();
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"yesno[¿Tiene pares?]:  (icon, default yes)",
                     "box: En realidad sí tiene pares, y eso es lo que dice (por lo que pudiera "
                     "pasar...)"}));
  EXPECT_TRUE(m.Texto().starts_with("Ana: TPar1\r\n"));
  EXPECT_EQ(m.t.OrdenPares, (PorAsiento{1, 0, 0, 2}));
  EXPECT_EQ(m.t.Fase, Fase::Pares);
}

TEST_F(DeclaraPares, CorrectsTheHumanWhoClaimsAPair) {
  DarMano(m.t, 1, "7 6 5 4");
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"yesno[¿Tiene pares?]:  (icon, default no)",
                     "box: En realidad no tiene pares y eso es lo que dice (por lo que pudiera "
                     "pasar...)"}));
  EXPECT_TRUE(m.Texto().starts_with("Ana: NPar1\r\n"));
  EXPECT_EQ(m.t.OrdenPares, (PorAsiento{0, 0, 0, 1}));
}

TEST_F(DeclaraPares, NumbersTheSeatsInTheOrderInWhichTheyDeclare) {
  m.DarATodos("R R 5 4");
  m.Hablan({3, 4, 1, 2});
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.t.OrdenPares, (PorAsiento{3, 4, 1, 2}));
  EXPECT_EQ(m.Texto(),
            "Jugador 3: TPar1\r\n"
            "Jugador 4: TPar1\r\n"
            "Ana: TPar1\r\n"
            "Jugador 2: TPar1\r\n"
            "Pulse enter para continuar");
}

TEST_F(DeclaraPares, FindsBothParejasWhoeverIsMano) {
  for (const PorAsiento& orden :
       {PorAsiento{2, 3, 4, 1}, PorAsiento{3, 4, 1, 2}, PorAsiento{4, 1, 2, 3}}) {
    m.Hablan(orden);
    m.t.Fase = Fase::DeclaracionPares;
    m.port.Yes();
    Declaran();
    EXPECT_EQ(m.t.Fase, Fase::Pares) << orden[1];
  }
}

TEST_F(DeclaraPares, SpeaksWithTwoDrawsForEveryComputerSeat) {
  m.port.Yes();
  m.Juega(tasca::DeclaraPares, {0.9F, 0, 0.5F, 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Ana: TPar1\r\n"
            "Jugador 2: NPar3\r\n"
            "Jugador 3: NPar2\r\n"
            "Jugador 4: TPar1\r\n"
            "Pulse enter para continuar");
}

TEST_F(DeclaraPares, LeavesTheDeclarationOfTheCountAlone) {
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.t.Declaracion[NumeroLance::Pares], -2);
}

}  // namespace
}  // namespace tasca::test
