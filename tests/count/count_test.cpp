// The whole count: its order, its transcript and the state after it.
#include "count/count.h"

#include <gtest/gtest.h>

#include "tests/count/recuento.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

TEST(ContarMano, TellsAHandThatEndsWithThePunto) {
  Recuento mano;
  DarMano(mano.t, 3, "6 6 6 4");
  DarMano(mano.t, 4, "7 6 5 A");
  mano.t.Apuesta = {3, 0, 0, 0, 4};
  EXPECT_EQ(mano.Contar(),
            "La pareja 1 se saca  las 3 envidadas a grande \r\n"
            "La pareja 0 se saca  una de la pequeña en paso\r\n"
            "La pareja 1 se saca  dos de las medias del jugador 3\r\n"
            "La pareja 1 se saca  las 4 envidadas a Punto \r\n"
            "\r\n"
            "El tanteo actual es de 9 a 1. \r\n"
            "Pulse enter para empezar una nueva mano");
}

TEST(ContarMano, TellsAHandThatEndsWithTheJuego) {
  Recuento mano;
  DarMano(mano.t, 1, "R R 7 5");  // par, 32 points
  DarMano(mano.t, 2, "C C 4 4");  // dúplex, 28 points: the best pares
  DarMano(mano.t, 3, "R S 7 4");  // 31 points
  DarMano(mano.t, 4, "7 6 A A");  // par, and the best pequeña
  mano.t.Apuesta = {0, 6, 5, 2, 0};
  mano.t.SeJuegaPunto = false;
  mano.t.UsarNombres = true;
  EXPECT_EQ(mano.Contar(),
            "La pareja 1 se saca  una de la grande en paso\r\n"
            "La pareja 0 se saca  las 6 envidadas a pequeña \r\n"
            "La pareja 0 se saca  las 5 envidadas a pares, tres de los dúplex de Berta y una del "
            "par de Dora\r\n"
            "La pareja 1 se saca  las 2 envidadas a juego , dos del juego de Ana y tres de la "
            "treintayuna del Cojo\r\n"
            "El tanteo actual es de 8 a 15. \r\n"
            "Pulse enter para empezar una nueva mano");
}

TEST(ContarMano, TellsAHandThatWasSettledInTheBidding) {
  Recuento mano;
  EXPECT_EQ(mano.Contar(),
            "la grande ya estaba contada \r\n"
            "la pequeña ya estaba contada \r\n"
            "\r\n"
            "El Punto ya estaba contado \r\n"
            "\r\n"
            "El tanteo actual es de 0 a 0. \r\n"
            "Pulse enter para empezar una nueva mano");
}

TEST(ContarMano, AddsToTheStonesOfEarlierHands) {
  Recuento mano;
  mano.t.Piedras = {12, 20};
  mano.t.Apuesta = {3, 0, ApuestaPagada, 0, 0};
  mano.Contar();
  EXPECT_EQ(mano.t.Piedras, (Array<Integer, 0, 1>{12, 24}));
  EXPECT_TRUE(mano.t.Text2.ends_with(
      u"El tanteo actual es de 24 a 12. \r\nPulse enter para empezar una nueva mano"));
}

TEST(ContarMano, ReplacesTheTranscriptOfTheLances) {
  Recuento mano;
  mano.t.Text2 = u"envite querido\r\nPulse enter para contar";
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas + "\r\n" + PuntoYaContado + Tanteo(0, 0));
}

TEST(ContarMano, LaysAllFourHandsOpen) {
  Recuento mano;
  mano.t.Text1 = u"antes";
  mano.Contar();
  const std::string cartas =
      "Siete      de oros      , Seis       de oros      , Cinco      de oros      , "
      "Cuatro     de oros      \r\n";
  EXPECT_EQ(Utf8(mano.t.Text1), "Ana\r\n" + cartas + "Jugador 2\r\n" + cartas + "Jugador 3\r\n" +
                                    cartas + "Jugador 4\r\n" + cartas);
}

TEST(ContarMano, LaysTheHandsOpenAlsoWhenTheJuegoEndsAtOnce) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Grande] = 36;
  mano.Contar();
  EXPECT_TRUE(mano.t.Text1.starts_with(u"Ana\r\nSiete "));
}

TEST(ContarMano, WritesTheScoreboardAndLeavesThePhaseForANewHand) {
  Recuento mano;
  mano.t.Fase = Fase::Cuenta;
  mano.t.Juegos = {0, 1};
  mano.t.Vacas = {1, 0};
  mano.t.Apuesta[NumeroLance::Grande] = 3;
  mano.Contar();
  EXPECT_EQ(mano.t.Fase, Fase::EmpezarMano);
  EXPECT_EQ(Utf8(mano.t.Text3), "Piedras: 3 / 0;    juegos: 1 / 0;    Vacas: 0 / 1");
  EXPECT_EQ(mano.port.TakeEvents(), Sucesos{});
}

TEST(ContarMano, LeavesTheRecordsOfTheBidding) {
  Recuento mano;
  mano.t.Apuesta = {3, 0, 2, 0, 4};
  mano.t.Declaracion = {SinDeclaracion, SinDeclaracion, 1};
  const Table antes = mano.t;
  mano.Contar();
  EXPECT_EQ(mano.t.Apuesta, antes.Apuesta);
  EXPECT_EQ(mano.t.Declaracion, antes.Declaracion);
  EXPECT_EQ(mano.t.Manos, antes.Manos);
}

TEST(ContarMano, CountsTheJuegoOrThePuntoNeverBoth) {
  Recuento mano;
  DarMano(mano.t, 2, "R C 7 4");
  mano.t.Apuesta[NumeroLance::Punto] = 9;
  mano.t.SeJuegaPunto = false;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "\r\nLa pareja 0 se saca tres de la treintayuna del jugador 2" +
                               Tanteo(0, 3));
}

TEST(ContarMano, SkipsTheJuegoWhenNobodyHasIt) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Juego] = 5;
  mano.t.SeJuegaPunto = true;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas + "\r\n" + PuntoYaContado + Tanteo(0, 0));
}

}  // namespace
}  // namespace tasca::test
