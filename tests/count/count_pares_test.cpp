// The count of the pares.
#include <gtest/gtest.h>

#include "count/count.h"
#include "tests/count/recuento.h"

namespace tasca::test {
namespace {

const std::string SinPares = "7 6 5 4";

// The line of the pares and the stones after the count.
struct CasoPares {
  std::array<std::string, 4> Manos;
  int Apuesta;
  std::string Linea;
  int Nuestras;
  int Contrarias;
};

// `declaracion` is the pareja recorded as the winner of a refused bet.
void Probar(const CasoPares& caso, int declaracion = SinDeclaracion) {
  Recuento mano;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    DarMano(mano.t, asiento, caso.Manos.at(static_cast<std::size_t>(asiento - 1)));
  }
  mano.t.Apuesta[NumeroLance::Pares] = caso.Apuesta;
  mano.t.Declaracion[NumeroLance::Pares] = declaracion;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas + caso.Linea + PuntoYaContado +
                               Tanteo(caso.Nuestras, caso.Contrarias));
}

TEST(ContarPares, PaysEveryKindWhenEnPaso) {
  struct Caso {
    std::string Mano;
    std::string Frase;
    int Piedras;
  };
  const std::vector<Caso> casos{
      {"7 7 5 4", "una del par de", 1},        {"7 6 5 5", "una del par de", 1},
      {"7 6 6 6", "dos de las medias de", 2},  {"6 6 6 4", "dos de las medias de", 2},
      {"7 7 5 5", "tres de los dúplex de", 3}, {"6 6 6 6", "tres de los dúplex de", 3},
      {"R 3 5 4", "una del par de", 1},  // a Tres pairs with a Rey
      {"7 5 2 A", "una del par de", 1},  // a Dos pairs with an As
      {"3 R 3 4", "dos de las medias de", 2},  {"6 2 A 2", "dos de las medias de", 2},
      {"R 3 A 2", "tres de los dúplex de", 3}, {"2 A 2 A", "tres de los dúplex de", 3},
  };
  for (const Caso& caso : casos) {
    SCOPED_TRACE(caso.Mano);
    Probar({.Manos = {SinPares, SinPares, caso.Mano, SinPares},
            .Apuesta = 0,
            .Linea = "La pareja 1 se saca  " + caso.Frase + "l jugador 3\r\n",
            .Nuestras = caso.Piedras,
            .Contrarias = 0});
  }
}

TEST(ContarPares, TakesFiguresForDifferentThoughTheyCountTheSameForJuego) {
  Probar({.Manos = {"C S 5 4", "7 7 5 4", SinPares, SinPares},
          .Apuesta = 0,
          .Linea = "La pareja 0 se saca  una del par del jugador 2\r\n",
          .Nuestras = 0,
          .Contrarias = 1});
}

TEST(ContarPares, JoinsTwoSeatsByAndWhenEnPaso) {
  Probar({.Manos = {"7 7 5 4", SinPares, "6 6 6 4", SinPares},
          .Apuesta = 0,
          .Linea = "La pareja 1 se saca  una del par del jugador 1 y dos de las medias del "
                   "jugador 3\r\n",
          .Nuestras = 3,
          .Contrarias = 0});
}

TEST(ContarPares, PaysOnlyTheParejaThatWins) {
  Probar({.Manos = {"R R 5 4", "7 7 6 6", "4 4 4 A", "6 6 5 4"},
          .Apuesta = 0,
          .Linea = "La pareja 0 se saca  tres de los dúplex del jugador 2 y una del par del "
                   "jugador 4\r\n",
          .Nuestras = 0,
          .Contrarias = 4});
}

TEST(ContarPares, PutsAndBeforeTheOneSeatAfterABet) {
  Probar({.Manos = {"7 6 5 4", "6 6 5 4", "R R 5 4", "7 6 5 4"},
          .Apuesta = 5,
          .Linea = "La pareja 1 se saca  las 5 envidadas a pares y una del par del jugador 3\r\n",
          .Nuestras = 6,
          .Contrarias = 0});
}

TEST(ContarPares, PutsACommaAndAndBeforeTwoSeatsAfterABet) {
  Probar({.Manos = {"R R 5 4", "7 7 5 5", SinPares, "6 6 6 A"},
          .Apuesta = 4,
          .Linea = "La pareja 0 se saca  las 4 envidadas a pares, tres de los dúplex del jugador 2 "
                   "y dos de las medias del jugador 4\r\n",
          .Nuestras = 0,
          .Contrarias = 9});
}

TEST(ContarPares, GivesEqualParesToTheSeatNearestTheMano) {
  Recuento mano;
  DarMano(mano.t, 1, "7 7 5 4");
  DarMano(mano.t, 4, "7 7 5 4");
  mano.t.OrdenAsiento = {2, 3, 4, 1};
  mano.t.Apuesta[NumeroLance::Pares] = 2;
  EXPECT_EQ(mano.Contar(),
            GrandeYPequenaPagadas +
                "La pareja 0 se saca  las 2 envidadas a pares y una del par del jugador 4\r\n" +
                PuntoYaContado + Tanteo(0, 3));
}

TEST(ContarPares, LeavesOnlyALineBreakWhenNobodyDeclaredAny) {
  Probar({.Manos = {SinPares, SinPares, SinPares, SinPares},
          .Apuesta = ApuestaPagada,
          .Linea = "\r\n",
          .Nuestras = 0,
          .Contrarias = 0});
}

// The bidding never leaves such a record; the count must continue nevertheless.
TEST(ContarPares, ReportsNoParesWhenTheRecordMissesIt) {
  Recuento mano;
  mano.t.Piedras = {40, 40};
  mano.t.Apuesta[NumeroLance::Pares] = 0;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "Ninguna de las dos parejas tiene pares\r\n\r\n" + PuntoYaContado +
                               Tanteo(40, 40));
  EXPECT_EQ(mano.port.TakeEvents(), std::vector<std::string>{});
}

TEST(ContarPares, PaysNoOldPuntoWhenNoParejaWasCounted) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Pares] = 0;
  mano.t.Apuesta[NumeroLance::Punto] = ApuestaPagada;
  mano.t.Declaracion[NumeroLance::Punto] = SinDeclaracion;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "Ninguna de las dos parejas tiene pares\r\n\r\n" + Tanteo(0, 0));
}

// The winner of refused pares is not recorded: they are paid to the pareja counted last.
TEST(ContarPares, Kept_ARefusedBetPaysThePareja0WhenNothingWasCountedBefore) {
  Probar({.Manos = {"R R 5 4", "7 7 5 4", SinPares, SinPares},
          .Apuesta = ApuestaPagada,
          .Linea = " una del par del jugador 2\r\n",
          .Nuestras = 0,
          .Contrarias = 1});
}

TEST(ContarPares, Kept_TwoSeatsAfterARefusedBetAreNotJoinedByAnd) {
  Probar({.Manos = {"R R 5 4", "7 7 5 4", SinPares, "6 6 6 4"},
          .Apuesta = ApuestaPagada,
          .Linea = " una del par del jugador 2 dos de las medias del jugador 4\r\n",
          .Nuestras = 0,
          .Contrarias = 3});
}

TEST(ContarPares, Kept_ARefusedBetPaysTheParejaOfThePequena) {
  Recuento mano;
  DarMano(mano.t, 1, "R R 5 4");
  DarMano(mano.t, 2, "7 7 5 4");
  DarMano(mano.t, 3, "7 6 4 A");  // the pequeña is pareja 1's
  mano.t.Apuesta[NumeroLance::Pequena] = 0;
  EXPECT_EQ(mano.Contar(),
            "la grande ya estaba contada \r\nLa pareja 1 se saca  una de la pequeña en paso\r\n"
            " una del par del jugador 1\r\n" +
                PuntoYaContado + Tanteo(2, 0));
}

TEST(ContarPares, Kept_ARefusedBetPaysTheParejaOfTheGrandeWhenThePequenaWasRefusedToo) {
  Recuento mano;
  DarMano(mano.t, 2, "7 7 5 4");
  DarMano(mano.t, 3, "R R 5 4");  // the grande is pareja 1's
  mano.t.Apuesta[NumeroLance::Grande] = 0;
  EXPECT_EQ(mano.Contar(),
            "La pareja 1 se saca  una de la grande en paso\r\nla pequeña ya estaba contada \r\n"
            " una del par del jugador 3\r\n" +
                PuntoYaContado + Tanteo(2, 0));
}

TEST(ContarPares, Kept_ARefusedBetPaysNobodyWhenThatParejaHasNoPares) {
  Probar({.Manos = {"R R 5 4", SinPares, "7 7 5 4", SinPares},
          .Apuesta = ApuestaPagada,
          .Linea = "\r\n",
          .Nuestras = 0,
          .Contrarias = 0});
}

TEST(ContarPares, PaysTheParejaRecordedAsWinner) {
  Probar({.Manos = {"6 6 5 4", "R R 5 4", SinPares, SinPares},
          .Apuesta = ApuestaPagada,
          .Linea = "La pareja 1 se saca  una del par del jugador 1\r\n",
          .Nuestras = 1,
          .Contrarias = 0},
         1);
  Probar({.Manos = {"R R 5 4", "6 6 5 4", SinPares, "7 7 7 4"},
          .Apuesta = ApuestaPagada,
          .Linea = "La pareja 0 se saca  una del par del jugador 2 y dos de las medias del jugador "
                   "4\r\n",
          .Nuestras = 0,
          .Contrarias = 3},
         0);
}

TEST(ContarPares, UsesTheRecordedWinnerOnlyAfterARefusedBet) {
  Probar({.Manos = {"R R 5 4", "6 6 5 4", SinPares, SinPares},
          .Apuesta = EnviteOrdago,
          .Linea = " una del par del jugador 2\r\n",
          .Nuestras = 0,
          .Contrarias = 1},
         1);
}

// The opponents are past the target by a refused bet. After the pares the stones of the pareja
// counted last are checked, even if no pares were paid.
TEST(ContarPares, Kept_SettledParesEndTheJuegoOfTheParejaCountedBefore) {
  Recuento mano;
  mano.t.Piedras = {36, 2};
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas + "\r\n");
  EXPECT_EQ(mano.port.TakeEvents(),
            std::vector<std::string>{"box: La pareja 0 gana este juego por 36 a 2"});
}

TEST(ContarPares, Kept_SettledParesDoNotEndTheJuegoOfTheOtherPareja) {
  Recuento mano;
  mano.t.Piedras = {2, 36};
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas + "\r\n" + PuntoYaContado + Tanteo(36, 2));
  EXPECT_EQ(mano.port.TakeEvents(), std::vector<std::string>{});
}

}  // namespace
}  // namespace tasca::test
