// The count of the juego.
#include <gtest/gtest.h>

#include "count/count.h"
#include "tests/count/recuento.h"

namespace tasca::test {
namespace {

const std::string SinJuego = "7 6 5 4";

// The given hands with juego played. The pares are settled for nobody.
struct RecuentoJuego : Recuento {
  RecuentoJuego(const std::array<std::string, 4>& manos, int apuesta) {
    for (Seat asiento = 1; asiento <= 4; ++asiento) {
      DarMano(t, asiento, manos.at(static_cast<std::size_t>(asiento - 1)));
    }
    t.SeJuegaPunto = false;
    t.Apuesta[NumeroLance::Juego] = apuesta;
  }
};

TEST(ContarJuego, PaysThreeForThirtyOneAndTwoForEveryOtherJuego) {
  struct Caso {
    std::string Mano;
    std::string Frase;
    int Piedras;
  };
  const std::vector<Caso> casos{
      {"R C 7 4", "tres de la treintayuna de", 3},  // 31
      {"R C S A", "tres de la treintayuna de", 3},  // 31
      {"R C 7 5", "dos del juego de", 2},           // 32
      {"R C 7 6", "dos del juego de", 2},           // 33
      {"R C S 4", "dos del juego de", 2},           // 34
      {"R C S 5", "dos del juego de", 2},           // 35
      {"R C S 6", "dos del juego de", 2},           // 36
      {"R C S 7", "dos del juego de", 2},           // 37
      {"R C C S", "dos del juego de", 2},           // 40
  };
  for (const Caso& caso : casos) {
    SCOPED_TRACE(caso.Mano);
    RecuentoJuego mano{{SinJuego, SinJuego, caso.Mano, SinJuego}, 0};
    EXPECT_EQ(mano.Contar(), Antes + "La pareja 1 se saca " + caso.Frase + "l jugador 3" +
                                 Tanteo(caso.Piedras, 0));
  }
}

TEST(ContarJuego, JoinsTwoSeatsByAndWhenEnPaso) {
  RecuentoJuego mano{{"R C S 7", SinJuego, "R C 7 4", SinJuego}, 0};
  EXPECT_EQ(mano.Contar(), Antes +
                               "La pareja 1 se saca dos del juego del jugador 1 y tres de la "
                               "treintayuna del jugador 3" +
                               Tanteo(5, 0));
}

TEST(ContarJuego, PutsAndBeforeTheOneSeatAfterABet) {
  RecuentoJuego mano{{"R C S 7", SinJuego, SinJuego, "R C 7 4"}, 6};
  EXPECT_EQ(mano.Contar(), Antes +
                               "La pareja 0 se saca  las 6 envidadas a juego  y tres de la "
                               "treintayuna del jugador 4" +
                               Tanteo(0, 9));
}

TEST(ContarJuego, PutsACommaAndAndBeforeTwoSeatsAfterABet) {
  RecuentoJuego mano{{"R C S 7", "R C S 4", "R C 7 4", SinJuego}, 2};
  EXPECT_EQ(mano.Contar(), Antes +
                               "La pareja 1 se saca  las 2 envidadas a juego , dos del juego del "
                               "jugador 1 y tres de la treintayuna del jugador 3" +
                               Tanteo(7, 0));
}

TEST(ContarJuego, PaysOnlyTheParejaThatWins) {
  RecuentoJuego mano{{"R C S 7", "R C 7 5", SinJuego, "R C S 4"}, 0};
  EXPECT_EQ(mano.Contar(),
            Antes +
                "La pareja 0 se saca dos del juego del jugador 2 y dos del juego del jugador 4" +
                Tanteo(0, 4));
}

TEST(ContarJuego, GivesEqualJuegosToTheSeatNearestTheMano) {
  RecuentoJuego mano{{"R C S 7", "R C S 7", SinJuego, SinJuego}, 0};
  mano.t.OrdenAsiento = {2, 3, 4, 1};
  EXPECT_EQ(mano.Contar(),
            Antes + "La pareja 0 se saca dos del juego del jugador 2" + Tanteo(0, 2));
}

TEST(ContarJuego, PaysTheParejaWhoseBetWasRefused) {
  RecuentoJuego mano{{"R C 7 4", "R C S 4", SinJuego, "R C S 5"}, ApuestaPagada};
  mano.t.Declaracion[NumeroLance::Juego] = 0;
  EXPECT_EQ(mano.Contar(),
            Antes +
                "La pareja 0 se saca dos del juego del jugador 2 y dos del juego del jugador 4" +
                Tanteo(0, 4));
}

TEST(ContarJuego, PaysTheHumansParejaWhenItsBetWasRefused) {
  RecuentoJuego mano{{SinJuego, "R C 7 4", "R C S 5", SinJuego}, ApuestaPagada};
  mano.t.Declaracion[NumeroLance::Juego] = 1;
  EXPECT_EQ(mano.Contar(),
            Antes + "La pareja 1 se saca dos del juego del jugador 3" + Tanteo(2, 0));
}

TEST(ContarJuego, WritesNoHeadingForATakerWithoutJuego) {
  for (const Pareja pareja : {0, 1}) {
    RecuentoJuego mano{{SinJuego, SinJuego, SinJuego, SinJuego}, ApuestaPagada};
    DarMano(mano.t, pareja == 0 ? 1 : 2, "R C S 7");
    mano.t.Declaracion[NumeroLance::Juego] = pareja;
    EXPECT_EQ(mano.Contar(), Antes + Tanteo(0, 0));
  }
}

TEST(ContarJuego, ReportsAPossibleErrorWhenItIsSettledForNobody) {
  RecuentoJuego mano{{"R C 7 4", "R C 7 4", "R C 7 4", "R C 7 4"}, ApuestaPagada};
  mano.t.Piedras = {35, 40};
  mano.t.Declaracion[NumeroLance::Juego] = SinDeclaracion;
  EXPECT_EQ(mano.Contar(), Antes + Tanteo(40, 35));
  EXPECT_EQ(mano.port.TakeEvents(), std::vector<std::string>{"box: Posible error "});
  EXPECT_EQ(mano.t.Fase, Fase::EmpezarMano);
}

TEST(ContarJuego, ReportsNoPossibleErrorWhenTheTakerIsKnown) {
  RecuentoJuego mano{{"R C 7 4", SinJuego, SinJuego, SinJuego}, ApuestaPagada};
  mano.t.Declaracion[NumeroLance::Juego] = 1;
  mano.Contar();
  EXPECT_EQ(mano.port.TakeEvents(), std::vector<std::string>{});
}

TEST(ContarJuego, PaysWhatWasDeclaredByOneParejaAlone) {
  RecuentoJuego mano{{SinJuego, "R C 7 5", SinJuego, SinJuego}, 0};
  mano.t.OrdenAsiento = {3, 4, 1, 2};
  EXPECT_EQ(mano.Contar(),
            Antes + "La pareja 0 se saca dos del juego del jugador 2" + Tanteo(0, 2));
}

}  // namespace
}  // namespace tasca::test
