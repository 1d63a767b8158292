// The slate: the state of each lance in every phase.
#include "scene/slate.h"

#include <gtest/gtest.h>

#include <string>

#include "cards/hand_text.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

std::string Name(EstadoLance estado) {
  switch (estado) {
    case EstadoLance::PorJugar:
      return "-";
    case EstadoLance::Declaran:
      return "declaran";
    case EstadoLance::Envite:
      return "envite";
    case EstadoLance::Ordago:
      return "ordago";
    case EstadoLance::Queridas:
      return "queridas";
    case EstadoLance::OrdagoQuerido:
      return "ordago querido";
    case EstadoLance::NoSeJugo:
      return "no se jugo";
    case EstadoLance::NoQuerida:
      return "no querida";
    case EstadoLance::NoHay:
      return "no hay";
    case EstadoLance::EnPaso:
      return "en paso";
    case EstadoLance::SinEnvite:
      return "sin envite";
  }
  return "?";
}

// A cell as text: in brackets if the lance is in play, after ">" if it is next. "envite 2 over 4 by
// 0" is a bet of 2 stones by pareja 0 over 4 accepted ones.
std::string Words(const CeldaPizarra& celda) {
  std::string texto = Name(celda.Estado);
  if (celda.Piedras != 0) texto += " " + std::to_string(celda.Piedras);
  if (celda.Vistas != 0) texto += " over " + std::to_string(celda.Vistas);
  if (celda.De) texto += " by " + std::to_string(*celda.De);
  if (celda.Marca == MarcaLance::EnJuego) return "[" + texto + "]";
  return celda.Marca == MarcaLance::Siguiente ? ">" + texto : texto;
}

// The cells in the order of the lances, separated by " | ".
std::string Slate(const Table& t, Momento momento) {
  std::string linea;
  int numero = 0;
  for (const CeldaPizarra& celda : PizarraDe(t, momento)) {
    EXPECT_EQ(static_cast<int>(celda.Lance), ++numero);
    if (!linea.empty()) linea += " | ";
    linea += Words(celda);
  }
  return linea;
}

// A table in this phase with these bets. Both parejas have pares and juego.
Table At(Fase fase, const Array<Integer, 1, 5>& apuesta = {}) {
  Table t = MesaDePrueba();
  t.Fase = fase;
  t.Apuesta = apuesta;
  t.OrdenPares = {1, 2, 0, 0};
  t.TurnoJuego = {1, 2, 0, 0};
  return t;
}

TEST(PizarraDe, IsBlankBeforeTheFirstLance) {
  EXPECT_EQ(Slate(At(Fase::Mus), Momento::Reposo), "- | - | - | -");
  EXPECT_EQ(Slate(At(Fase::Mus), Momento::Pregunta), "- | - | - | -");
}

TEST(PizarraDe, MarksTheNextLanceAtRestAndTheOneInPlayInABox) {
  EXPECT_EQ(Slate(At(Fase::Grande), Momento::Reposo), ">- | - | - | -");
  EXPECT_EQ(Slate(At(Fase::Grande), Momento::Pregunta), "[-] | - | - | -");
  EXPECT_EQ(Slate(At(Fase::Pequena), Momento::Aviso), "en paso | [-] | - | -");
  EXPECT_EQ(Slate(At(Fase::Pares), Momento::Reposo), "en paso | en paso | >- | -");
}

TEST(PizarraDe, SaysThatTheSeatsDeclare) {
  EXPECT_EQ(Slate(At(Fase::DeclaracionPares), Momento::Reposo),
            "en paso | en paso | >declaran | -");
  EXPECT_EQ(Slate(At(Fase::DeclaracionJuego), Momento::Pregunta),
            "en paso | en paso | en paso | [declaran]");
}

TEST(PizarraDe, ShowsAnUnansweredBet) {
  Table t = At(Fase::RespuestaGrande);
  t.SeguirLance = 2;
  t.ParejaEnvite = 0;
  EXPECT_EQ(Slate(t, Momento::Pregunta), "[envite 2 by 0] | - | - | -");
  t.Apuesta[NumeroLance::Grande] = 4;
  t.ParejaEnvite = 1;
  EXPECT_EQ(Slate(t, Momento::Pregunta), "[envite 2 over 4 by 1] | - | - | -");
  t.SeguirLance = EnviteOrdago;
  EXPECT_EQ(Slate(t, Momento::Pregunta), "[ordago by 1] | - | - | -");
}

TEST(PizarraDe, ShowsAnOrdagoAcceptedWhileItsBoxIsOpen) {
  EXPECT_EQ(Slate(At(Fase::RespuestaPequena, {0, EnviteOrdago, 0, 0, 0}), Momento::Aviso),
            "en paso | [ordago querido] | - | -");
}

TEST(PizarraDe, ShowsHowClosedLancesEnded) {
  EXPECT_EQ(Slate(At(Fase::Cuenta, {5, ApuestaPagada, 0, 2, 0}), Momento::Reposo),
            "queridas 5 | no querida | en paso | queridas 2");
}

TEST(PizarraDe, SaysThatNobodyHasPares) {
  Table t = At(Fase::DeclaracionJuego, {0, 0, ApuestaPagada, 0, 0});
  EXPECT_EQ(Slate(t, Momento::Reposo), "en paso | en paso | no querida | >declaran");
  t.OrdenPares = {};
  EXPECT_EQ(Slate(t, Momento::Reposo), "en paso | en paso | no hay | >declaran");
}

TEST(PizarraDe, NamesTheOnlyParejaThatHasParesOrJuego) {
  Table t = At(Fase::Cuenta);
  t.OrdenPares = {0, 1, 0, 2};
  t.TurnoJuego = {0, 0, 1, 0};
  EXPECT_EQ(Slate(t, Momento::Reposo), "en paso | en paso | sin envite by 0 | sin envite by 1");
}

TEST(PizarraDe, HasAFifthCellForThePuntoWhenNobodyHasJuego) {
  Table t = At(Fase::Punto);
  t.SeJuegaPunto = true;
  EXPECT_EQ(Slate(t, Momento::Reposo), "en paso | en paso | en paso | no hay | >-");
}

TEST(PizarraDe, IgnoresThePuntoOfAnEarlierHand) {
  Table t = At(Fase::Punto, {0, 0, 0, 0, 4});
  t.SeJuegaPunto = true;
  EXPECT_EQ(Slate(t, Momento::Pregunta), "en paso | en paso | en paso | no hay | [-]");
  t.Apuesta[NumeroLance::Punto] = EnviteOrdago;
  EXPECT_EQ(Slate(t, Momento::Pregunta), "en paso | en paso | en paso | no hay | [-]");
}

TEST(PizarraDe, Kept_ShowsThePuntoAsTheCountWillPayIt) {
  Table t = At(Fase::RespuestaPunto, {0, 0, 0, 0, 4});
  t.SeJuegaPunto = true;
  t.SeguirLance = 2;
  t.ParejaEnvite = 1;
  EXPECT_EQ(Slate(t, Momento::Pregunta),
            "en paso | en paso | en paso | no hay | [envite 2 over 4 by 1]");
  t.SeguirLance = 0;
  t.Fase = Fase::Cuenta;
  EXPECT_EQ(Slate(t, Momento::Reposo), "en paso | en paso | en paso | no hay | queridas 4");
  t.Apuesta[NumeroLance::Punto] = EnviteOrdago;
  EXPECT_EQ(Slate(t, Momento::Reposo), "en paso | en paso | en paso | no hay | no querida");
}

TEST(PizarraDe, TellsOfTheLastHandOnlyWhileItsHandsLieOpen) {
  Table t = At(Fase::EmpezarMano, {5, 0, 0, ApuestaPagada, 0});
  EXPECT_EQ(Slate(t, Momento::Reposo), "- | - | - | -");
  MostrarManos(t, TodosLosAsientos);
  EXPECT_EQ(Slate(t, Momento::Reposo), "queridas 5 | en paso | en paso | no querida");
}

TEST(PizarraDe, ShowsLancesAfterAnAcceptedOrdagoAsNotPlayed) {
  Table t = At(Fase::EmpezarMano, {2, EnviteOrdago, 0, 0, 0});
  MostrarManos(t, TodosLosAsientos);
  EXPECT_EQ(Slate(t, Momento::Reposo), "queridas 2 | ordago querido | no se jugo | no se jugo");
}

TEST(AcaboAntesDe, LooksAtTheLancesBeforeIt) {
  const Table t = At(Fase::EmpezarMano, {0, 0, EnviteOrdago, 0, 0});
  EXPECT_FALSE(AcaboAntesDe(t, NumeroLance::Grande));
  EXPECT_FALSE(AcaboAntesDe(t, NumeroLance::Pares));
  EXPECT_TRUE(AcaboAntesDe(t, NumeroLance::Juego));
  EXPECT_TRUE(AcaboAntesDe(t, NumeroLance::Punto));
}

}  // namespace
}  // namespace tasca::test
