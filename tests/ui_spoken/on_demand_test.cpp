// The hand, the score and the mano on demand.
#include "ui/spoken/on_demand.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"
#include "tests/ui_mesa/scenes.h"

namespace tasca::test {
namespace {

// Rey and sota of copas, the six of copas, the as of oros.
Escena ConMano() {
  Table t = MesaDePrueba();
  t.Manos[AsientoHumano] = {NumeroDeCarta('R', 2), NumeroDeCarta('S', 2), NumeroDeCarta('6', 2),
                            NumeroDeCarta('A', 1)};
  return EscenaDe(t, Momento::Reposo);
}

TEST(ManoDicha, IsOneSentenceInTheOrderOfTheHand) {
  EXPECT_EQ(Utf8(ManoDicha(ConMano())), "Rey de copas, sota de copas, seis de copas, as de oros.");
}

TEST(ManoDicha, SaysThatThereIsNone) {
  Escena escena = EscenaInicial();
  escena.Asientos[AsientoHumano].Naipes = {};
  EXPECT_EQ(Utf8(ManoDicha(escena)), "No tiene cartas.");
}

TEST(TanteoDicho, IsTheScoreBeforeTheFirstBet) {
  Escena escena = EscenaInicial();
  escena.Tanteo[1].Piedras = 12;
  escena.Tanteo[0].Juegos = 1;
  for (CeldaPizarra& celda : escena.Pizarra) celda.Estado = EstadoLance::PorJugar;
  const std::string tanteo = Utf8(TanteoDicho(escena));
  EXPECT_NE(tanteo.find("Pareja 1: nosotros. 12 piedras,"), std::string::npos) << tanteo;
  EXPECT_LT(tanteo.find("Pareja 1"), tanteo.find("Pareja 0: ellos."));
  EXPECT_EQ(tanteo.find("Grande"), std::string::npos) << tanteo;
}

TEST(TanteoDicho, TellsTheBetsAfterTheScore) {
  Escena escena = EscenaInicial();
  escena.Pizarra = {{.Lance = NumeroLance::Grande, .Estado = EstadoLance::Queridas, .Piedras = 2},
                    {.Lance = NumeroLance::Pequena,
                     .Marca = MarcaLance::EnJuego,
                     .Estado = EstadoLance::Envite,
                     .Piedras = 5,
                     .Vistas = 2,
                     .De = 0},
                    {.Lance = NumeroLance::Pares}};
  const std::string tanteo = Utf8(TanteoDicho(escena));
  const std::string lances =
      "Grande: 2 queridas. Pequeña, en juego: 5 de la pareja 0 sobre 2 vistas.";
  ASSERT_GE(tanteo.size(), lances.size());
  EXPECT_EQ(tanteo.substr(tanteo.size() - lances.size()), lances) << tanteo;
}

TEST(ManoDichaPorNombre, NamesTheSeatAndWhereItIs) {
  Escena escena = EscenaInicial();
  EXPECT_EQ(Utf8(ManoDichaPorNombre(escena)),
            "Es mano Dora, de la pareja contraria, a su izquierda.");
  escena.Asientos[4].EsMano = false;
  EXPECT_EQ(Utf8(ManoDichaPorNombre(escena)),
            "Todavía no se sabe quién es mano: lo será el primero que no quiera mus.");
  escena.Asientos[AsientoHumano].EsMano = true;
  EXPECT_EQ(Utf8(ManoDichaPorNombre(escena)), "Es usted mano.");
}

// The answers come from the scene, which has no secrets.
TEST(OnDemand, DoesNotDependOnTheHandsOfTheOthers) {
  Table t = MesaDePrueba();
  const Escena antes = EscenaDe(t, Momento::Reposo);
  for (Seat asiento = 2; asiento <= 4; ++asiento) DarMano(t, asiento, "R R A A");
  const Escena ahora = EscenaDe(t, Momento::Reposo);
  EXPECT_EQ(ManoDicha(antes), ManoDicha(ahora));
  EXPECT_EQ(TanteoDicho(antes), TanteoDicho(ahora));
}

}  // namespace
}  // namespace tasca::test
