// The state of a match and its look-ups.
#include "table/table.h"

#include <gtest/gtest.h>

#include "cards/hand.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

TEST(ParejaDe, IsTheRemainderOfTheSeat) {
  EXPECT_EQ(ParejaDe(1), 1);
  EXPECT_EQ(ParejaDe(2), 0);
  EXPECT_EQ(ParejaDe(3), 1);
  EXPECT_EQ(ParejaDe(4), 0);
}

TEST(ParejaContraria, IsTheOther) {
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    EXPECT_EQ(ParejaContraria(asiento), 1 - ParejaDe(asiento));
  }
}

TEST(Table, StartsEmpty) {
  const Table t;
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_EQ(t.SeguirLance, 0);
  EXPECT_FALSE(t.ManoPorDecidir);
  EXPECT_FALSE(t.SeJuegaPunto);
  EXPECT_EQ(t.Declaracion[NumeroLance::Pares], 0);
  EXPECT_EQ(t.Declaracion[NumeroLance::Punto], 0);
  EXPECT_EQ(t.Text1, u"");
  EXPECT_EQ(t.Text2, u"");
  EXPECT_EQ(t.Text3, u"");
  EXPECT_EQ(t.PersonajeAsiento[0], 0);
  EXPECT_FALSE(t.EstiloDirecto);
}

TEST(Table, ChecksTheBoundsOfItsArrays) {
  Table t;
  EXPECT_THROW(t.Manos[0][1] = 1, RunTimeError);
  EXPECT_THROW(t.Manos[4][5] = 1, RunTimeError);
  EXPECT_THROW(t.Baraja[0] = 1, RunTimeError);
  EXPECT_THROW(t.Baraja[41] = 1, RunTimeError);
  EXPECT_THROW(t.Apuesta[6] = 1, RunTimeError);
  EXPECT_THROW(t.Declaracion[NumeroLance::Pequena] = 1, RunTimeError);
  EXPECT_THROW(t.Piedras[2] = 1, RunTimeError);
  EXPECT_THROW(t.Personajes[101].Ordaguero = 1, RunTimeError);
  EXPECT_THROW(t.Mensajes[0][1][1] = u"x", RunTimeError);
  EXPECT_THROW(t.PersonajeAsiento[4] = 1, RunTimeError);
  EXPECT_NO_THROW(t.Cartas[0].Numero = 1);
  EXPECT_NO_THROW(t.Cartas[40].Numero = 1);
  EXPECT_NO_THROW(t.Declaracion[NumeroLance::Punto] = 1);
}

TEST(Table, KeepsScoresIn16Bits) {
  Table t;
  t.Piedras[1] = 32766;
  t.Piedras[1] += 1;
  EXPECT_THROW(t.Piedras[1] += 1, RunTimeError);
}

TEST(Table, ResetsForm1ByOneAssignment) {
  Table t = MesaDePrueba();
  const Module1State programa = static_cast<const Module1State&>(t);
  t.Fase = Fase::RespuestaPares;
  t.Juegos = {1, 1};
  static_cast<Form1State&>(t) = {};
  EXPECT_EQ(static_cast<const Form1State&>(t), Form1State{});
  EXPECT_EQ(static_cast<const Module1State&>(t), programa);
}

TEST(Table, CanBeCompared) {
  const Table una = MesaDePrueba();
  Table otra = una;
  EXPECT_EQ(una, otra);
  otra.Mensajes[100][14][3] = u"x";
  EXPECT_NE(una, otra);
}

TEST(Table, PadsNamesToTheirField) {
  const Table t = MesaDePrueba();
  EXPECT_EQ(t.Personajes[3].Nombre.Full(), u"Berta" + std::u16string(95, u' '));
  EXPECT_EQ(t.Cartas[10].Figura.Full(), u"Rey       ");
}

TEST(Table, Kept_KeepsTheRecordsOfThePuntoFromHandToHand) {
  Table t = MesaDePrueba();
  t.Apuesta = {1, 2, 3, 4, 5};
  t.Declaracion[NumeroLance::Pares] = 1;
  t.Declaracion[NumeroLance::Juego] = 1;
  t.Declaracion[NumeroLance::Punto] = 1;
  Rnd rnd;
  ScriptedPort port;
  Game g{t, rnd, port};
  EmpezarMano(g);
  EXPECT_EQ(t.Apuesta, (Array<Integer, 1, 5>{0, 0, 0, 0, 5}));
  EXPECT_EQ(t.Declaracion, (Array<Integer, 3, 5>{-2, -2, 1}));
}

TEST(PersonajeDe, FindsWhoSitsAtASeat) {
  const Table t = MesaDePrueba();
  EXPECT_EQ(PersonajeDe(t, 1).Nombre.Trimmed(), u"Ana");
  EXPECT_EQ(PersonajeDe(t, 2).Nombre.Trimmed(), u"Berta");
  EXPECT_EQ(PersonajeDe(t, 3).Nombre.Trimmed(), u"el Cojo");
  EXPECT_EQ(PersonajeDe(t, 4).Nombre.Trimmed(), u"Dora");
}

TEST(PersonajeDe, RefusesAnInvalidSeat) {
  const Table t = MesaDePrueba();
  EXPECT_THROW(PersonajeDe(t, 0), RunTimeError);
  EXPECT_THROW(PersonajeDe(t, 5), RunTimeError);
}

TEST(NombreAsiento, IsThePlayersOrTheCharactersOrTheSeats) {
  Table t = MesaDePrueba();
  t.NombreJugador = u"Ana";
  t.PersonajeAsiento[2] = 7;
  t.Personajes[7].Nombre = u"el Cojo";
  t.UsarNombres = true;
  EXPECT_EQ(Utf8(NombreAsiento(t, 1)), "Ana");
  EXPECT_EQ(Utf8(NombreAsiento(t, 3)), "el Cojo");
  t.UsarNombres = false;
  EXPECT_EQ(Utf8(NombreAsiento(t, 1)), "Ana");
  EXPECT_EQ(Utf8(NombreAsiento(t, 3)), "Jugador 3");
}

TEST(Mensaje, FindsAPhraseByItsKindAndSlot) {
  Table t = MesaDePrueba();
  t.Mensajes[4][13][2] = u"¡Ganamos!";
  EXPECT_EQ(Utf8(Mensaje(t, 4, MessageCategory::Vict, 2).Trimmed()), "¡Ganamos!");
  EXPECT_EQ(Utf8(Mensaje(t, 4, MessageCategory::QMus, 1).Trimmed()), "QMus1");
  EXPECT_EQ(Utf8(Mensaje(t, 5, MessageCategory::Derr, 3).Trimmed()), "Derr3");
}

TEST(Mensaje, NumbersTheKindsInTheOrderOfTheFile) {
  EXPECT_EQ(static_cast<int>(MessageCategory::QMus), 1);
  EXPECT_EQ(static_cast<int>(MessageCategory::NMus), 2);
  EXPECT_EQ(static_cast<int>(MessageCategory::TPar), 3);
  EXPECT_EQ(static_cast<int>(MessageCategory::NPar), 4);
  EXPECT_EQ(static_cast<int>(MessageCategory::TJue), 5);
  EXPECT_EQ(static_cast<int>(MessageCategory::NJue), 6);
  EXPECT_EQ(static_cast<int>(MessageCategory::Paso), 7);
  EXPECT_EQ(static_cast<int>(MessageCategory::Envi), 8);
  EXPECT_EQ(static_cast<int>(MessageCategory::EnvM), 9);
  EXPECT_EQ(static_cast<int>(MessageCategory::Orda), 10);
  EXPECT_EQ(static_cast<int>(MessageCategory::NQui), 11);
  EXPECT_EQ(static_cast<int>(MessageCategory::SQui), 12);
  EXPECT_EQ(static_cast<int>(MessageCategory::Vict), 13);
  EXPECT_EQ(static_cast<int>(MessageCategory::Derr), 14);
}

TEST(Mensaje, RefusesTheHumanAndAFourthSlot) {
  const Table t = MesaDePrueba();
  EXPECT_THROW(Mensaje(t, 0, MessageCategory::Vict, 1), RunTimeError);
  EXPECT_THROW(Mensaje(t, 3, MessageCategory::Vict, 4), RunTimeError);
  EXPECT_THROW(Mensaje(t, 3, MessageCategory::Vict, 0), RunTimeError);
}

}  // namespace
}  // namespace tasca::test
