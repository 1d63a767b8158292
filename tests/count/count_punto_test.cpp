// The count of the punto, and the records that it keeps from hand to hand.
#include <gtest/gtest.h>

#include "count/count.h"
#include "tests/count/recuento.h"

namespace tasca::test {
namespace {

TEST(ContarPunto, GivesTheStonesOfAnAcceptedBet) {
  Recuento mano;
  DarMano(mano.t, 4, "7 7 5 4");  // 23 points
  mano.t.Apuesta[NumeroLance::Pares] = ApuestaPagada;
  mano.t.Declaracion[NumeroLance::Pares] = 1;  // the pares of seat 4 are not paid
  mano.t.Apuesta[NumeroLance::Punto] = 6;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "La pareja 1 se saca \r\n"
                               "La pareja 0 se saca  las 6 envidadas a Punto \r\n" +
                               Tanteo(0, 6));
}

TEST(ContarPunto, GivesEqualPointsToTheSeatNearestTheMano) {
  Recuento mano;
  mano.t.OrdenAsiento = {2, 3, 4, 1};
  mano.t.Apuesta[NumeroLance::Punto] = 2;
  EXPECT_EQ(mano.Contar(),
            Antes + "La pareja 0 se saca  las 2 envidadas a Punto \r\n" + Tanteo(0, 2));
}

TEST(ContarPunto, GivesOneStoneToTheParejaWhoseBetWasRefused) {
  for (const Pareja pareja : {0, 1}) {
    Recuento mano;
    mano.t.Apuesta[NumeroLance::Punto] = ApuestaPagada;
    mano.t.Declaracion[NumeroLance::Punto] = pareja;
    EXPECT_EQ(mano.Contar(), Antes + "La pareja " + std::to_string(pareja) +
                                 " se saca una del punto" + Tanteo(pareja, 1 - pareja));
  }
}

TEST(ContarPunto, WritesNothingWhenItIsSettledForNobody) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Punto] = ApuestaPagada;
  mano.t.Declaracion[NumeroLance::Punto] = SinDeclaracion;
  EXPECT_EQ(mano.Contar(), Antes + Tanteo(0, 0));
}

TEST(ContarPunto, GivesNoStoneEnPasoWhileItHasNeverBeenBet) {
  Recuento mano;
  EXPECT_EQ(mano.Contar(), Antes + "El Punto ya estaba contado \r\n" + Tanteo(0, 0));
}

// The punto's records are not reset: a punto en paso is paid like the last punto that was bet.
TEST(ContarPunto, Kept_APuntoEnPasoIsPaidLikeTheLastAcceptedBet) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Punto] = 4;
  mano.Contar();
  DarMano(mano.t, 2, "7 7 6 4");               // 24 points: the opponents have the best punto
  mano.t.Declaracion[NumeroLance::Pares] = 1;  // their pares are not paid
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "La pareja 1 se saca \r\n"
                               "La pareja 0 se saca  las 4 envidadas a Punto \r\n" +
                               Tanteo(4, 4));
}

TEST(ContarPunto, Kept_APuntoEnPasoIsPaidLikeTheLastRefusedBet) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Punto] = ApuestaPagada;
  mano.t.Declaracion[NumeroLance::Punto] = 1;
  mano.Contar();
  DarMano(mano.t, 2, "7 7 6 4");
  mano.t.Declaracion[NumeroLance::Pares] = 1;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "La pareja 1 se saca \r\n"
                               "La pareja 1 se saca una del punto" +
                               Tanteo(2, 0));
}

// An accepted órdago leaves -1. The pareja is that of the last refused punto, or pareja 0 if none
// was refused.
TEST(ContarPunto, Kept_APuntoEnPasoAfterAnAcceptedOrdagoGivesOneStone) {
  Recuento mano;
  mano.t.Apuesta[NumeroLance::Punto] = EnviteOrdago;
  EXPECT_EQ(mano.Contar(), Antes + "La pareja 0 se saca una del punto" + Tanteo(0, 1));
  mano.t.Declaracion[NumeroLance::Punto] = 1;
  EXPECT_EQ(mano.Contar(), Antes + "La pareja 1 se saca una del punto" + Tanteo(1, 1));
}

TEST(ContarPunto, CanEndTheJuegoByABet) {
  Recuento mano;
  mano.t.Piedras = {0, 33};
  mano.t.Apuesta[NumeroLance::Punto] = 3;
  EXPECT_EQ(mano.Contar(), Antes + "La pareja 1 se saca  las 3 envidadas a Punto \r\n");
  EXPECT_EQ(mano.port.TakeEvents(),
            std::vector<std::string>{"box: La pareja 1 gana este juego por 36 a 0"});
}

TEST(ContarPunto, CanEndTheJuegoByItsOneStone) {
  Recuento mano;
  mano.t.Piedras = {35, 0};
  mano.t.Apuesta[NumeroLance::Punto] = ApuestaPagada;
  mano.t.Declaracion[NumeroLance::Punto] = 0;
  EXPECT_EQ(mano.Contar(), Antes + "La pareja 0 se saca una del punto");
  EXPECT_EQ(mano.port.TakeEvents(),
            std::vector<std::string>{"box: La pareja 0 gana este juego por 36 a 0"});
}

TEST(ContarPunto, EndsNoJuegoWhenItIsSettledForNobody) {
  Recuento mano;
  mano.t.Piedras = {35, 36};  // the pareja counted last is 0
  mano.t.Apuesta[NumeroLance::Punto] = ApuestaPagada;
  mano.t.Declaracion[NumeroLance::Punto] = SinDeclaracion;
  EXPECT_EQ(mano.Contar(), Antes + Tanteo(36, 35));
}

}  // namespace
}  // namespace tasca::test
