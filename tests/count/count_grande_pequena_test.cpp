// The count of grande and pequeña.
#include <gtest/gtest.h>

#include "count/count.h"
#include "tests/count/recuento.h"

namespace tasca::test {
namespace {

const std::string TrasLaGrande = "la pequeña ya estaba contada \r\n\r\n" + PuntoYaContado;
const std::string TrasLaPequena = "\r\n" + PuntoYaContado;

TEST(ContarGrande, GivesOneStoneWhenEnPaso) {
  Recuento mano;
  DarMano(mano.t, 2, "R 6 5 4");
  mano.t.Apuesta[NumeroLance::Grande] = 0;
  EXPECT_EQ(mano.Contar(),
            "La pareja 0 se saca  una de la grande en paso\r\n" + TrasLaGrande + Tanteo(0, 1));
}

TEST(ContarGrande, GivesTheStonesOfAnAcceptedBet) {
  Recuento mano;
  DarMano(mano.t, 4, "R 6 5 4");
  mano.t.Apuesta[NumeroLance::Grande] = 17;
  EXPECT_EQ(mano.Contar(),
            "La pareja 0 se saca  las 17 envidadas a grande \r\n" + TrasLaGrande + Tanteo(0, 17));
}

TEST(ContarGrande, WritesASingleStoneBetInThePluralToo) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Grande] = 1;
  EXPECT_EQ(mano.Contar(),
            "La pareja 1 se saca  las 1 envidadas a grande \r\n" + TrasLaGrande + Tanteo(1, 0));
}

TEST(ContarGrande, GivesEqualHandsToTheSeatNearestTheMano) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Grande] = 0;
  mano.t.OrdenAsiento = {4, 1, 2, 3};
  EXPECT_EQ(mano.Contar(),
            "La pareja 0 se saca  una de la grande en paso\r\n" + TrasLaGrande + Tanteo(0, 1));
}

TEST(ContarGrande, GivesNothingMoreAfterARefusedBet) {
  Recuento mano;
  DarMano(mano.t, 2, "R 6 5 4");
  mano.t.Piedras = {4, 1};
  EXPECT_EQ(mano.Contar(), "la grande ya estaba contada \r\n" + TrasLaGrande + Tanteo(1, 4));
}

TEST(ContarPequena, GivesOneStoneWhenEnPaso) {
  Recuento mano;
  DarMano(mano.t, 2, "7 6 5 A");
  mano.t.Apuesta[NumeroLance::Pequena] = 0;
  EXPECT_EQ(mano.Contar(),
            "la grande ya estaba contada \r\nLa pareja 0 se saca  una de la pequeña en paso\r\n" +
                TrasLaPequena + Tanteo(0, 1));
}

TEST(ContarPequena, GivesTheStonesOfAnAcceptedBet) {
  Recuento mano;
  DarMano(mano.t, 3, "7 6 5 A");
  mano.t.Apuesta[NumeroLance::Pequena] = 8;
  EXPECT_EQ(mano.Contar(),
            "la grande ya estaba contada \r\nLa pareja 1 se saca  las 8 envidadas a pequeña \r\n" +
                TrasLaPequena + Tanteo(8, 0));
}

TEST(ContarPequena, GivesEqualHandsToTheSeatNearestTheMano) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Pequena] = 0;
  mano.t.OrdenAsiento = {2, 3, 4, 1};
  EXPECT_EQ(mano.Contar(),
            "la grande ya estaba contada \r\nLa pareja 0 se saca  una de la pequeña en paso\r\n" +
                TrasLaPequena + Tanteo(0, 1));
}

TEST(ContarPequena, GivesNothingMoreAfterARefusedBet) {
  Recuento mano;
  DarMano(mano.t, 2, "7 6 5 A");
  mano.t.Piedras = {4, 1};
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas + TrasLaPequena + Tanteo(1, 4));
}

TEST(ContarPequena, IsWonApartFromTheGrande) {
  Recuento mano;
  DarMano(mano.t, 1, "R 6 5 4");
  DarMano(mano.t, 2, "7 6 5 A");
  mano.t.Apuesta[NumeroLance::Grande] = 3;
  mano.t.Apuesta[NumeroLance::Pequena] = 2;
  EXPECT_EQ(mano.Contar(),
            "La pareja 1 se saca  las 3 envidadas a grande \r\n"
            "La pareja 0 se saca  las 2 envidadas a pequeña \r\n" +
                TrasLaPequena + Tanteo(3, 2));
}

// A refused bet can take the opponents past the target before the count. A settled lance does not
// check for the end of the juego, so that theirs does not end here.
TEST(ContarGrande, Kept_CountsThePequenaBeforeARefusedBetEndsTheJuego) {
  Recuento mano;
  mano.t.Piedras = {36, 35};
  mano.t.Apuesta[NumeroLance::Pequena] = 0;  // the mano, seat 1, wins it
  EXPECT_EQ(mano.Contar(),
            "la grande ya estaba contada \r\nLa pareja 1 se saca  una de la pequeña en paso\r\n");
  EXPECT_EQ(mano.port.TakeEvents(),
            std::vector<std::string>{"box: La pareja 1 gana este juego por 36 a 36"});
  EXPECT_EQ(mano.t.Juegos, (Array<Integer, 0, 1>{0, 1}));
}

TEST(ContarPequena, Kept_CountsTheParesBeforeARefusedBetEndsTheJuego) {
  Recuento mano;
  mano.t.Piedras = {36, 30};
  DarMano(mano.t, 4, "7 5 4 4");
  mano.t.Apuesta[NumeroLance::Pares] = 0;
  EXPECT_EQ(mano.Contar(),
            GrandeYPequenaPagadas + "La pareja 0 se saca  una del par del jugador 4\r\n");
  EXPECT_EQ(mano.port.TakeEvents(),
            std::vector<std::string>{"box: La pareja 0 gana este juego por 37 a 30"});
  EXPECT_EQ(mano.t.Juegos, (Array<Integer, 0, 1>{1, 0}));
}

}  // namespace
}  // namespace tasca::test
