// The decision rules that several lances share, on both sides of every limit.
#include "lances/decisions.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

struct CasoTanteo {
  int piedrasJuego;
  int propias;
  int contrarias;
  bool ordago;
};

constexpr std::array<CasoTanteo, 16> CasosTanteo{{
    {35, 0, 34, true},    // one stone is missing
    {35, 34, 34, true},   // ... whoever is ahead
    {35, 40, 34, true},   //
    {35, 0, 33, true},    // two are missing, and they are ahead
    {35, 33, 33, false},  // level
    {35, 34, 33, false},  // behind
    {35, 0, 29, true},    // six are missing
    {35, 28, 29, true},   //
    {35, 29, 29, false},  //
    {35, 30, 29, false},  //
    {35, 0, 28, false},   // seven are missing
    {35, 0, 0, false},    //
    {35, 34, 35, true},   // none is missing
    {35, 35, 35, false},  //
    {40, 0, 33, false},   // a longer juego
    {40, 0, 34, true},    //
}};

TEST(OrdagoPorTanteo, DependsOnWhatTheOpponentsNeedAndWhoIsAhead) {
  for (const CasoTanteo& caso : CasosTanteo) {
    SCOPED_TRACE(testing::Message()
                 << caso.propias << " to " << caso.contrarias << " of " << caso.piedrasJuego);
    Table t = MesaDePrueba();
    t.PiedrasJuego = caso.piedrasJuego;
    for (Seat asiento = 2; asiento <= 4; ++asiento) {
      t.Piedras[ParejaDe(asiento)] = caso.propias;
      t.Piedras[ParejaContraria(asiento)] = caso.contrarias;
      const auto decision = OrdagoPorTanteo(t, asiento);
      ASSERT_EQ(decision.has_value(), caso.ordago) << asiento;
      EXPECT_EQ(decision.value_or(Decision::Ordago), Decision::Ordago);
    }
  }
}

TEST(Marcador, SeesTheScoreFromTheSeatsOwnSide) {
  Table t = MesaDePrueba();
  Marcan(t, 10, 29);
  const Marcador contrario{t, 4};
  EXPECT_EQ(contrario.Propias, 10);
  EXPECT_EQ(contrario.Contrarias, 29);
  EXPECT_EQ(contrario.FaltanPropias, 25);
  EXPECT_EQ(contrario.FaltanContrarias, 6);
  EXPECT_TRUE(contrario.ContrariosCerca);

  const Marcador companero{t, 3};
  EXPECT_EQ(companero.Propias, 29);
  EXPECT_EQ(companero.Contrarias, 10);
  EXPECT_EQ(companero.FaltanPropias, 6);
  EXPECT_EQ(companero.FaltanContrarias, 25);
  EXPECT_FALSE(companero.ContrariosCerca);
}

TEST(Marcador, CallsTheOpponentsNearFromSixStonesOn) {
  Table t = MesaDePrueba();
  Marcan(t, 0, 28);
  EXPECT_FALSE((Marcador{t, 2}.ContrariosCerca));
  Marcan(t, 0, 29);
  EXPECT_TRUE((Marcador{t, 2}.ContrariosCerca));
}

Decision Abre(int cartas, float sacada) {
  DrawList rnd{sacada};
  return AperturaPorCartas(rnd, cartas);
}

TEST(AperturaPorCartas, PassesWithoutCardsWhateverTheDraw) {
  for (const int cartas : {-5, -3, -2, -1, 0}) {
    EXPECT_EQ(Abre(cartas, 0), Decision::Paso) << cartas;
    EXPECT_EQ(Abre(cartas, 0.5F), Decision::Paso) << cartas;
  }
  EXPECT_EQ(Abre(-1, Maxima), Decision::Paso);
  EXPECT_EQ(Abre(-2, Maxima), Decision::Paso);
  EXPECT_EQ(Abre(-5, Maxima), Decision::Paso);
}

// Twice the greatest draw is 2 - 2^-23, which is below 2.
TEST(AperturaPorCartas, PassesWithNoneEvenAtTheGreatestDraw) {
  EXPECT_EQ(Abre(0, Maxima), Decision::Paso);
}

TEST(AperturaPorCartas, BetsFromTwoOn) {
  EXPECT_EQ(Abre(1, DrawBelow(2.0F / 3.0F)), Decision::Paso);
  EXPECT_EQ(Abre(1, DrawFrom(2.0F / 3.0F)), Decision::Envido);
  EXPECT_EQ(Abre(2, DrawBelow(0.5F)), Decision::Paso);
  EXPECT_EQ(Abre(2, 0.5F), Decision::Envido);
  EXPECT_EQ(Abre(3, DrawBelow(0.4F)), Decision::Paso);
  EXPECT_EQ(Abre(3, DrawFrom(0.4F)), Decision::Envido);
  EXPECT_EQ(Abre(4, DrawBelow(1.0F / 3.0F)), Decision::Paso);
  EXPECT_EQ(Abre(4, DrawFrom(1.0F / 3.0F)), Decision::Envido);
  EXPECT_EQ(Abre(5, DrawBelow(2.0F / 7.0F)), Decision::Paso);
  EXPECT_EQ(Abre(5, DrawFrom(2.0F / 7.0F)), Decision::Envido);
  EXPECT_EQ(Abre(6, DrawBelow(0.25F)), Decision::Paso);
  EXPECT_EQ(Abre(6, 0.25F), Decision::Envido);
}

TEST(AperturaPorCartas, NeverBetsMoreThanTheEnvidoWithUpToThree) {
  for (const int cartas : {1, 2, 3}) EXPECT_EQ(Abre(cartas, Maxima), Decision::Envido) << cartas;
}

TEST(AperturaPorCartas, BetsMoreFromFiveOn) {
  EXPECT_EQ(Abre(4, DrawBelow(5.0F / 6.0F)), Decision::Envido);
  EXPECT_EQ(Abre(4, DrawFrom(5.0F / 6.0F)), Decision::EnvidoMas);
  EXPECT_EQ(Abre(5, DrawBelow(5.0F / 7.0F)), Decision::Envido);
  EXPECT_EQ(Abre(5, DrawFrom(5.0F / 7.0F)), Decision::EnvidoMas);
  EXPECT_EQ(Abre(6, DrawBelow(0.625F)), Decision::Envido);
  EXPECT_EQ(Abre(6, 0.625F), Decision::EnvidoMas);
}

TEST(AperturaPorCartas, BetsAnOrdagoFromFiveAndAHalfOn) {
  EXPECT_EQ(Abre(5, DrawBelow(5.5F / 7.0F)), Decision::EnvidoMas);
  EXPECT_EQ(Abre(5, DrawFrom(5.5F / 7.0F)), Decision::Ordago);
  EXPECT_EQ(Abre(6, DrawBelow(0.6875F)), Decision::EnvidoMas);
  EXPECT_EQ(Abre(6, 0.6875F), Decision::Ordago);
  EXPECT_EQ(Abre(6, Maxima), Decision::Ordago);
}

// 15379114 x 6 = 92274684 is halfway between the floats 92274680 and 92274688 = 5.5 x 2^24, and is
// rounded to the even one.
TEST(AperturaPorCartas, MultipliesInSinglePrecision) {
  EXPECT_EQ(Abre(4, 15379113 * Minima), Decision::EnvidoMas);
  EXPECT_EQ(Abre(4, 15379114 * Minima), Decision::Ordago);
}

// Seat 2 answers a bet of two stones.
struct RespuestaPorCartas : testing::Test {
  Table t = MesaDePrueba();

  RespuestaPorCartas() { t.SeguirLance = 2; }

  Decision Responde(int cartas, std::initializer_list<float> sacadas = {}) const {
    DrawList rnd{sacadas};
    return tasca::RespuestaPorCartas(t, rnd, 2, cartas);
  }
};

TEST_F(RespuestaPorCartas, AcceptsWithTwoWithoutADraw) {
  for (const int cartas : {2, 3, 4}) EXPECT_EQ(Responde(cartas), Decision::Quiero) << cartas;
  EXPECT_EQ(Responde(1, {0}), Decision::NoQuiero);
}

TEST_F(RespuestaPorCartas, CountsEveryDiscardPassAgainstTheCards) {
  t.RondasMus = 1;
  EXPECT_EQ(Responde(3), Decision::Quiero);
  EXPECT_EQ(Responde(2, {0}), Decision::NoQuiero);
  t.RondasMus = 2;
  EXPECT_EQ(Responde(4), Decision::Quiero);
  EXPECT_EQ(Responde(3, {0}), Decision::NoQuiero);
  t.RondasMus = 3;
  EXPECT_EQ(Responde(4, {0}), Decision::NoQuiero);
}

TEST_F(RespuestaPorCartas, NeedsOneMoreAgainstAnOrdagoAndNeverDraws) {
  t.SeguirLance = -1;
  t.OrdagueroAsiento[2] = 100;
  EXPECT_EQ(Responde(3), Decision::Quiero);
  EXPECT_EQ(Responde(2), Decision::NoQuiero);
  t.RondasMus = 1;
  EXPECT_EQ(Responde(4), Decision::Quiero);
  EXPECT_EQ(Responde(3), Decision::NoQuiero);
}

TEST_F(RespuestaPorCartas, AnswersWithOrdagoByTheScore) {
  Marcan(t, 0, 34);
  EXPECT_EQ(Responde(4), Decision::Ordago);
  Marcan(t, 28, 29);
  EXPECT_EQ(Responde(0), Decision::Ordago);
  Marcan(t, 29, 29);
  EXPECT_EQ(Responde(4), Decision::Quiero);
}

TEST_F(RespuestaPorCartas, IgnoresTheScoreAgainstAnOrdago) {
  t.SeguirLance = -1;
  Marcan(t, 0, 34);
  EXPECT_EQ(Responde(2), Decision::NoQuiero);
  EXPECT_EQ(Responde(3), Decision::Quiero);
}

// Ordaguero 50: 12.5 - 100 r + 4 is positive for r < 0.165.
TEST_F(RespuestaPorCartas, Kept_RaisesOrRefusesWithPoorCards) {
  t.OrdagueroAsiento[2] = 50;
  EXPECT_EQ(Responde(1, {DrawBelow(0.165F)}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(1, {DrawFrom(0.165F)}), Decision::NoQuiero);
  EXPECT_EQ(Responde(0, {0}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(0, {Maxima}), Decision::NoQuiero);
}

// Ordaguero 100: 25 - 100 r + 8. For r = 5536481 / 2^24 the single-precision product 100 r is 33.
TEST_F(RespuestaPorCartas, AddsEightHundredthsOfTheOrdagueroInSinglePrecision) {
  t.OrdagueroAsiento[2] = 100;
  EXPECT_EQ(Responde(1, {5536480 * Minima}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(1, {5536481 * Minima}), Decision::NoQuiero);
}

TEST_F(RespuestaPorCartas, AlwaysRefusesWithoutAnyOrdaguero) {
  t.OrdagueroAsiento[2] = 0;
  EXPECT_EQ(Responde(1, {0}), Decision::NoQuiero);
  EXPECT_EQ(Responde(1, {Minima}), Decision::NoQuiero);
}

TEST_F(RespuestaPorCartas, LooksAtTheOrdagueroOfItsOwnSeat) {
  t.OrdagueroAsiento = {100, 0, 100, 100};
  EXPECT_EQ(Responde(1, {0}), Decision::NoQuiero);
}

// Ordaguero 100: 25 - 100 r is positive for r < 0.25.
TEST_F(RespuestaPorCartas, AnswersWithOrdagoWhenBehindOpponentsAlmostOut) {
  t.OrdagueroAsiento[2] = 100;
  Marcan(t, 26, 27);
  EXPECT_EQ(Responde(1, {DrawBelow(0.25F)}), Decision::Ordago);
  EXPECT_EQ(Responde(1, {0.25F}), Decision::EnvidoMas);
  EXPECT_EQ(Responde(1, {Maxima}), Decision::NoQuiero);
}

TEST_F(RespuestaPorCartas, NeedsTheOpponentsToBeAheadForThatOrdago) {
  t.OrdagueroAsiento[2] = 100;
  Marcan(t, 27, 27);
  EXPECT_EQ(Responde(1, {0}), Decision::EnvidoMas);
  Marcan(t, 28, 27);
  EXPECT_EQ(Responde(1, {0}), Decision::EnvidoMas);
}

// Three quarters of 35 are 26.25, of 40 exactly 30.
TEST_F(RespuestaPorCartas, NeedsTheOpponentsToHaveMoreThanThreeQuarters) {
  t.OrdagueroAsiento[2] = 100;
  Marcan(t, 0, 26);
  EXPECT_EQ(Responde(1, {0}), Decision::EnvidoMas);
  Marcan(t, 0, 27);
  EXPECT_EQ(Responde(1, {0}), Decision::Ordago);
  t.PiedrasJuego = 40;
  Marcan(t, 0, 30);
  EXPECT_EQ(Responde(1, {0}), Decision::EnvidoMas);
  Marcan(t, 0, 31);
  EXPECT_EQ(Responde(1, {0}), Decision::Ordago);
}

// Seat 2 answers by strength: y = 2 r + fuerza.
struct RespuestaPorFuerza : testing::Test {
  Table t = MesaDePrueba();

  RespuestaPorFuerza() { t.SeguirLance = 2; }

  Decision Responde(int fuerza, float sacada) const {
    DrawList rnd{sacada};
    return tasca::RespuestaPorFuerza(t, rnd, 2, fuerza);
  }
};

TEST_F(RespuestaPorFuerza, AnswersWithOrdagoBelowOnePointThree) {
  constexpr float Limite = (1.3F - 1.0F) / 2.0F;
  EXPECT_EQ(Responde(1, 0), Decision::Ordago);
  EXPECT_EQ(Responde(1, DrawBelow(Limite)), Decision::Ordago);
  EXPECT_EQ(Responde(1, DrawFrom(Limite)), Decision::EnvidoMas);
}

// Above 2 the single-precision sum keeps only every second draw: the draw just below a limit is
// rounded up to it.
TEST_F(RespuestaPorFuerza, RaisesBelowTwoAndAHalf) {
  EXPECT_EQ(Responde(1, 0.75F - 2 * Minima), Decision::EnvidoMas);
  EXPECT_EQ(Responde(1, 0.75F - Minima), Decision::Quiero);
  EXPECT_EQ(Responde(1, 0.75F), Decision::Quiero);
  EXPECT_EQ(Responde(2, 0), Decision::EnvidoMas);
  EXPECT_EQ(Responde(2, 0.25F - 2 * Minima), Decision::EnvidoMas);
  EXPECT_EQ(Responde(2, 0.25F), Decision::Quiero);
}

TEST_F(RespuestaPorFuerza, AcceptsBelowFour) {
  EXPECT_EQ(Responde(1, Maxima), Decision::Quiero);
  EXPECT_EQ(Responde(2, Maxima - Minima), Decision::Quiero);
  EXPECT_EQ(Responde(2, Maxima), Decision::NoQuiero);
  EXPECT_EQ(Responde(3, 0), Decision::Quiero);
  EXPECT_EQ(Responde(3, 0.5F - 2 * Minima), Decision::Quiero);
  EXPECT_EQ(Responde(3, 0.5F), Decision::NoQuiero);
  EXPECT_EQ(Responde(4, 0), Decision::NoQuiero);
  EXPECT_EQ(Responde(40, 0), Decision::NoQuiero);
}

TEST_F(RespuestaPorFuerza, OnlyAcceptsOrRefusesAnOrdago) {
  t.SeguirLance = -1;
  EXPECT_EQ(Responde(1, 0), Decision::Quiero);
  EXPECT_EQ(Responde(1, 0.5F), Decision::Quiero);
  EXPECT_EQ(Responde(1, Maxima), Decision::Quiero);
  EXPECT_EQ(Responde(4, 0), Decision::NoQuiero);
}

TEST_F(RespuestaPorFuerza, AnswersWithOrdagoByTheScoreWithoutADraw) {
  DrawList rnd{};
  Marcan(t, 0, 34);
  EXPECT_EQ(tasca::RespuestaPorFuerza(t, rnd, 2, 40), Decision::Ordago);
  Marcan(t, 28, 29);
  EXPECT_EQ(tasca::RespuestaPorFuerza(t, rnd, 2, 40), Decision::Ordago);
}

TEST_F(RespuestaPorFuerza, IgnoresTheScoreAgainstAnOrdago) {
  t.SeguirLance = -1;
  Marcan(t, 0, 34);
  EXPECT_EQ(Responde(4, 0), Decision::NoQuiero);
  EXPECT_EQ(Responde(1, 0), Decision::Quiero);
}

}  // namespace
}  // namespace tasca::test
