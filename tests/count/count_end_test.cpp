// The end of a juego during the count, and of the vaca and the match.
#include <gtest/gtest.h>

#include "base/errors.h"
#include "count/count.h"
#include "tests/count/recuento.h"

namespace tasca::test {
namespace {

using Parejas = Array<Integer, 0, 1>;
using Sucesos = std::vector<std::string>;

// Every lance is en paso, and pareja 1 wins it: grande, pequeña, the par of seat 1 and, if
// `conJuego`, the 32 points of seat 3.
struct TodoNuestro : Recuento {
  explicit TodoNuestro(bool conJuego) {
    DarMano(t, 1, "7 6 4 4");
    if (conJuego) DarMano(t, 3, "R C 7 5");
    t.Apuesta = {0, 0, 0, 0, 0};
    t.SeJuegaPunto = !conJuego;
    t.OrdenAsiento = {3, 1, 2, 4};
  }
};

TEST(ContarMano, EndsTheJuegoAtTheLanceThatPassesTheTarget) {
  const std::string grande = "La pareja 1 se saca  una de la grande en paso\r\n";
  const std::string pequena = "La pareja 1 se saca  una de la pequeña en paso\r\n";
  const std::string pares = "La pareja 1 se saca  una del par del jugador 1\r\n";
  const std::string juego = "La pareja 1 se saca dos del juego del jugador 3";
  struct Caso {
    int Piedras;
    std::string Texto;
    int Final;
  };
  const std::vector<Caso> casos{
      {35, grande, 36},
      {34, grande + pequena, 36},
      {33, grande + pequena + pares, 36},
      {32, grande + pequena + pares + juego, 37},
      {31, grande + pequena + pares + juego, 36},
  };
  for (const Caso& caso : casos) {
    SCOPED_TRACE(caso.Piedras);
    TodoNuestro mano{true};
    mano.t.Piedras = {7, caso.Piedras};
    mano.t.Fase = Fase::Cuenta;
    EXPECT_EQ(mano.Contar(), caso.Texto);
    EXPECT_EQ(mano.port.TakeEvents(), Sucesos{"box: La pareja 1 gana este juego por " +
                                              std::to_string(caso.Final) + " a 7"});
    EXPECT_EQ(mano.t.Fase, Fase::EmpezarMano);
  }
}

TEST(ContarMano, DoesNotEndTheJuegoAtExactlyTheTarget) {
  TodoNuestro mano{true};
  mano.t.Piedras = {7, 30};  // 1 + 1 + 1 + 2 make 35
  EXPECT_TRUE(mano.Contar().ends_with(Tanteo(35, 7)));
  EXPECT_EQ(mano.port.TakeEvents(), Sucesos{});
  EXPECT_EQ(mano.t.Juegos, (Parejas{0, 0}));
}

TEST(ContarMano, TakesTheTargetFromTheMatch) {
  for (const int objetivo : {3, 4}) {
    TodoNuestro mano{false};
    mano.t.PiedrasJuego = objetivo;
    mano.t.Piedras = {0, 1};  // 1 + 1 + 1 make 4
    mano.Contar();
    EXPECT_EQ(mano.t.Juegos[1], objetivo == 3 ? 1 : 0);
  }
}

TEST(ContarMano, CreditsTheJuegoAndStartsBothParejasAtNoStones) {
  TodoNuestro mano{false};
  mano.t.Piedras = {30, 35};
  mano.Contar();
  EXPECT_EQ(mano.t.Juegos, (Parejas{0, 1}));
  EXPECT_EQ(mano.t.Piedras, (Parejas{0, 0}));
  EXPECT_EQ(Utf8(mano.t.Text3), "Piedras: 0 / 0;    juegos: 1 / 0;    Vacas: 0 / 0");
}

TEST(ContarMano, TellsTheOpponentsJuegoWithTheirStonesFirst) {
  Recuento mano;
  DarMano(mano.t, 2, "R C S 7");
  mano.t.Apuesta[NumeroLance::Grande] = 10;
  mano.t.Piedras = {29, 33};
  EXPECT_EQ(mano.Contar(), "La pareja 0 se saca  las 10 envidadas a grande \r\n");
  EXPECT_EQ(mano.port.TakeEvents(), Sucesos{"box: La pareja 0 gana este juego por 39 a 33"});
  EXPECT_EQ(mano.t.Juegos, (Parejas{1, 0}));
}

// The other pareja may have better cards in all later lances.
TEST(ContarMano, Kept_TheRestOfTheHandIsLostOnceTheJuegoIsWon) {
  Recuento mano;
  DarMano(mano.t, 1, "R 6 5 4");
  DarMano(mano.t, 2, "C C A A");
  mano.t.Piedras = {34, 35};
  mano.t.Apuesta = {0, 20, 20, 0, 20};
  EXPECT_EQ(mano.Contar(), "La pareja 1 se saca  una de la grande en paso\r\n");
  EXPECT_EQ(mano.port.TakeEvents(), Sucesos{"box: La pareja 1 gana este juego por 36 a 34"});
  EXPECT_EQ(mano.t.Piedras, (Parejas{0, 0}));
}

TEST(ContarMano, Kept_LooksOnlyAtTheParejaThatHasJustTakenStones) {
  TodoNuestro mano{true};
  mano.t.Piedras = {60, 0};
  EXPECT_TRUE(mano.Contar().ends_with(Tanteo(5, 60)));
  EXPECT_EQ(mano.t.Juegos, (Parejas{0, 0}));
}

TEST(ContarMano, CompletesAVaca) {
  TodoNuestro mano{false};
  mano.t.Piedras = {0, 35};
  mano.t.Juegos = {1, 1};
  EXPECT_EQ(mano.Contar(), "La pareja 1 se saca  una de la grande en paso\r\n");
  EXPECT_EQ(mano.port.TakeEvents(),
            (Sucesos{"box: La pareja 1 gana este juego por 36 a 0",
                     "box: La pareja 1 gana esta vaca. El resultado ha sido de 2 a 1 partidas.|1 a "
                     "0 vaca."}));
  EXPECT_EQ(mano.t.Vacas, (Parejas{0, 1}));
  EXPECT_EQ(mano.t.Fase, Fase::EmpezarMano);
  EXPECT_EQ(Utf8(mano.t.Text3), "Piedras: 0 / 0;    juegos: 0 / 0;    Vacas: 1 / 0");
}

TEST(ContarMano, LooksForAVacaAlsoAtItsOrdinaryEnd) {
  Recuento mano;
  mano.t.Piedras = {5, 3};
  mano.t.Juegos = {2, 0};
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas + "\r\n" + PuntoYaContado + Tanteo(3, 5));
  EXPECT_EQ(mano.port.TakeEvents(),
            Sucesos{"box: La pareja 0 gana esta vaca. El resultado ha sido de 0 a 2 partidas.|0 a "
                    "1 vaca."});
  EXPECT_EQ(mano.t.Fase, Fase::EmpezarMano);
  EXPECT_EQ(Utf8(mano.t.Text3), "Piedras: 3 / 5;    juegos: 0 / 0;    Vacas: 0 / 1");
}

// Pareja 1 wins the vaca and the match with the grande.
struct UltimaVaca : TodoNuestro {
  UltimaVaca() : TodoNuestro{false} {
    t.Piedras = {0, 35};
    t.Juegos = {0, 1};
    t.Vacas = {0, 1};
  }
};

TEST(ContarMano, EndsTheProgramWhenThePlayerWantsNoOtherMatch) {
  UltimaVaca mano;
  mano.port.No();
  EXPECT_THROW(mano.Contar(), LeaveProgram);
  EXPECT_EQ(Utf8(mano.t.Text2), "Hasta pronto");
}

TEST(ContarMano, RunsToItsEndWhenOtherPlayersAreWanted) {
  UltimaVaca mano;
  mano.port.Yes().Yes();
  EXPECT_EQ(mano.Contar(), "La pareja 1 se saca  una de la grande en paso\r\n");
  const Sucesos sucesos = mano.port.TakeEvents();
  ASSERT_GE(sucesos.size(), 2U);
  EXPECT_EQ(sucesos.front(), "box: La pareja 1 gana este juego por 36 a 0");
  EXPECT_EQ(sucesos.at(sucesos.size() - 2), "change players");
  EXPECT_EQ(sucesos.back(),
            "box: La pareja 1 gana esta vaca. El resultado ha sido de 2 a 0 partidas.|2 a 0 vaca.");
  EXPECT_EQ(mano.t.Fase, Fase::EmpezarMano);
}

// The count deals the first hand of the next match; the next Enter deals again.
TEST(ContarMano, Kept_TheFirstHandOfTheNextMatchIsDealtAgain) {
  UltimaVaca mano;
  mano.port.Yes().No();
  Rnd rnd;
  Game g{mano.t, rnd, mano.port};
  ContarMano(g);
  EXPECT_TRUE(mano.t.Text2.starts_with(u"Sus cartas son\r\n"));
  EXPECT_TRUE(mano.t.Text2.ends_with(u"pulse Enter para empezar"));
  EXPECT_EQ(mano.t.Fase, Fase::EmpezarMano);
  EXPECT_EQ(mano.t.Vacas, (Parejas{0, 0}));
  EXPECT_EQ(mano.port.TakeEvents().back(),
            "box: La pareja 1 gana esta vaca. El resultado ha sido de 0 a 0 partidas.|0 a 0 vaca.");
}

TEST(ContarMano, OverflowsWhenTheStonesDoNotFitAnInteger) {
  Recuento mano;
  mano.t.Piedras = {0, 2};
  mano.t.Apuesta[NumeroLance::Grande] = 32766;
  EXPECT_THROW(mano.Contar(), RunTimeError);
}

}  // namespace
}  // namespace tasca::test
