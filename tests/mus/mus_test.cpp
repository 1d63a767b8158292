// The mus phase: the questions, and the answers of the computer seats.
#include "mus/mus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using Orden = Array<Integer, 1, 4>;

constexpr auto PreguntaMus = "yesno[¿mus?]:  (icon, default yes)";
constexpr float Quiere = 0.0F;        // the draw of a seat that wants mus
constexpr float NoQuiere = 0.96875F;  // the draw of a seat that refuses
constexpr float Primera = 0.0F;       // the draw for the first phrase
constexpr float Segunda = 0.5F;       // ... the second
constexpr float Tercera = 0.75F;      // ... the third

Orden OrderFrom(Seat asiento) {
  Table t;
  OrdenarDesde(t, asiento);
  return t.OrdenAsiento;
}

TEST(OrdenarDesde, RunsRoundTheTableFromTheSeat) {
  EXPECT_EQ(OrderFrom(1), (Orden{1, 2, 3, 4}));
  EXPECT_EQ(OrderFrom(2), (Orden{2, 3, 4, 1}));
  EXPECT_EQ(OrderFrom(3), (Orden{3, 4, 1, 2}));
  EXPECT_EQ(OrderFrom(4), (Orden{4, 1, 2, 3}));
}

// A round of questions.

TEST(FaseMus, EndsWhenTheHumanRefuses) {
  Table t = MesaDePrueba();
  t.Text2 = u"lo de antes";
  t.ParejaCortaMus = 0;
  t.Dichos.resize(3);
  DrawList rnd{};
  ScriptedPort port;
  port.No();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(port.TakeEvents(), (Sucesos{PreguntaMus}));
  EXPECT_EQ(port.Preguntas, std::vector<Pregunta>{Pregunta::Mus});
  EXPECT_EQ(t.Dichos.size(), 1U) << "the older records are cleared";
  EXPECT_EQ(Utf8(t.Text2), "Ana: NMus1\r\nAna es mano\rPulse enter para continuar");
  EXPECT_EQ(t.Fase, Fase::Grande);
  EXPECT_EQ(t.ParejaCortaMus, 1);
  EXPECT_EQ(t.RondasMus, 0);
}

TEST(FaseMus, Kept_EndsTheManoLineWithALoneCarriageReturn) {
  Table t = MesaDePrueba();
  DrawList rnd{};
  ScriptedPort port;
  port.No();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_TRUE(t.Text2.ends_with(u"Ana es mano\rPulse enter para continuar"));
}

TEST(FaseMus, Kept_NamesThePersonajeOfTheManoWhateverTheOptions) {
  for (const bool usarNombres : {false, true}) {
    Table t = MesaDePrueba();
    t.UsarNombres = usarNombres;
    t.OrdenAsiento = {2, 3, 4, 1};
    DrawList rnd{NoQuiere, Primera, Primera};
    ScriptedPort port;
    Game g{t, rnd, port};
    FaseMus(g);
    EXPECT_EQ(Utf8(t.Text2), std::string{usarNombres ? "Berta" : "Jugador 2"} +
                                 ": NMus1\r\nBerta es mano\rPulse enter para continuar");
  }
}

TEST(FaseMus, Kept_NamesPersonaje0WhenTheHumanIsMano) {
  Table t = MesaDePrueba();
  t.Personajes[0].Nombre = u" Ana la del registro ";
  DrawList rnd{};
  ScriptedPort port;
  port.No();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(Utf8(t.Text2), "Ana: NMus1\r\nAna la del registro es mano\rPulse enter para continuar");
}

TEST(FaseMus, AsksNobodyAfterARefusal) {
  // Seat 2 refuses. Seats 3 and 4 are not asked and make no draws.
  Table t = MesaDePrueba();
  DrawList rnd{NoQuiere, Segunda, Segunda};
  ScriptedPort port;
  port.Yes();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(Utf8(t.Text2),
            "Ana: QMus1\r\nJugador 2: NMus2\r\nAna es mano\rPulse enter para continuar");
  EXPECT_EQ(t.Fase, Fase::Grande);
  EXPECT_EQ(t.ParejaCortaMus, 0);
  EXPECT_EQ(t.OrdenAsiento, (Orden{1, 2, 3, 4}));
}

TEST(FaseMus, RecordsTheParejaThatRefused) {
  Table t = MesaDePrueba();
  t.ParejaCortaMus = 0;
  t.OrdenAsiento = {4, 1, 2, 3};
  DrawList rnd{Quiere, Primera, Primera, Quiere, Primera, Primera, NoQuiere, Primera, Primera};
  ScriptedPort port;
  port.Yes();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(Utf8(t.Text2),
            "Jugador 4: QMus1\r\nAna: QMus1\r\nJugador 2: QMus1\r\nJugador 3: NMus1\r\n"
            "Dora es mano\rPulse enter para continuar");
  EXPECT_EQ(t.ParejaCortaMus, 1);
}

TEST(FaseMus, MakesTheFirstToRefuseManoInTheFirstHand) {
  Table t = MesaDePrueba();
  t.ManoPorDecidir = true;
  DrawList rnd{Quiere, Primera, Primera, NoQuiere, Tercera, Tercera};
  ScriptedPort port;
  port.Yes();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(t.OrdenAsiento, (Orden{3, 4, 1, 2}));
  EXPECT_FALSE(t.ManoPorDecidir);
  EXPECT_EQ(Utf8(t.Text2),
            "Ana: QMus1\r\nJugador 2: QMus1\r\nJugador 3: NMus3\r\n"
            "el Cojo es mano\rPulse enter para continuar");
}

TEST(FaseMus, MakesTheHumanManoInTheFirstHand) {
  Table t = MesaDePrueba();
  t.ManoPorDecidir = true;
  t.OrdenAsiento = {4, 1, 2, 3};
  DrawList rnd{Quiere, Primera, Primera};
  ScriptedPort port;
  port.No();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(t.OrdenAsiento, (Orden{1, 2, 3, 4}));
  EXPECT_FALSE(t.ManoPorDecidir);
  EXPECT_EQ(Utf8(t.Text2),
            "Jugador 4: QMus1\r\nAna: NMus1\r\nAna es mano\rPulse enter para continuar");
}

TEST(FaseMus, Kept_LeavesTheManoAloneFromTheSecondHandOn) {
  Table t = MesaDePrueba();
  t.OrdenAsiento = {4, 1, 2, 3};
  DrawList rnd{Quiere, Primera, Primera};
  ScriptedPort port;
  port.No();
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(t.OrdenAsiento, (Orden{4, 1, 2, 3}));
  EXPECT_TRUE(t.Text2.ends_with(u"Dora es mano\rPulse enter para continuar"));
}

TEST(FaseMus, KeepsTheManoOpenWhileAllWantMus) {
  Table t = MesaDePrueba();
  t.ManoPorDecidir = true;
  DrawList rnd{Quiere, Primera, Primera, Quiere, Primera, Primera, Quiere, Primera, Primera};
  ScriptedPort port;
  port.Yes().Types(u"");
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_TRUE(t.ManoPorDecidir);
  EXPECT_EQ(t.OrdenAsiento, (Orden{1, 2, 3, 4}));
}

TEST(FaseMus, PlaysADiscardPassWhenAllWantMus) {
  Table t = MesaDePrueba();
  t.Text2 = u"lo de antes";
  t.Fase = Fase::Mus;
  t.RondasMus = 2;  // three Reyes no longer refuse
  for (Seat asiento = 2; asiento <= 4; ++asiento) DarMano(t, asiento, "3 3 3 A");
  for (int i = 1; i <= 40; ++i) t.Baraja[i] = i;
  t.CartaSiguiente = 17;
  DrawList rnd{Quiere, Primera, Primera, Quiere, Segunda, Segunda, Quiere, Tercera, Tercera};
  ScriptedPort port;
  port.Yes().Types(u"");
  Game g{t, rnd, port};
  FaseMus(g);
  EXPECT_EQ(Utf8(t.Text2),
            "Ana: QMus1\r\nJugador 2: QMus1\r\nJugador 3: QMus2\r\nJugador 4: QMus3\r\n"
            "El jugador 1 cambia 0 cartas.\r\n"
            "Sus cartas son \r\n"
            "Siete      de oros      , Seis       de oros      , "
            "Cinco      de oros      , Cuatro     de oros      \r\n"
            "El jugador 2 cambia 1 cartas.\r\n"
            "El jugador 3 cambia 1 cartas.\r\n"
            "El jugador 4 cambia 1 cartas.\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_EQ(t.RondasMus, 3);
}

TEST(FaseMus, AsksAgainInTheSameOrderOnTheNextRound) {
  Table t = MesaDePrueba();
  t.OrdenAsiento = {1, 2, 3, 4};
  for (Seat asiento = 2; asiento <= 4; ++asiento) DarMano(t, asiento, "3 3 3 A");
  for (int i = 1; i <= 40; ++i) t.Baraja[i] = i;
  t.CartaSiguiente = 24;  // each seat gets a Cuatro: no juego with three Treses
  t.Baraja[25] = 34;
  t.Baraja[26] = 4;
  DrawList rnd{Quiere, Primera, Primera, Quiere,   Primera, Primera,
               Quiere, Primera, Primera, NoQuiere, Primera, Primera};
  ScriptedPort port;
  port.Yes().Types(u"").Yes();
  Game g{t, rnd, port};
  t.RondasMus = 2;  // three Reyes no longer refuse
  FaseMus(g);
  EXPECT_EQ(t.RondasMus, 3);
  FaseMus(g);
  EXPECT_EQ(t.RondasMus, 3);
  EXPECT_EQ(Utf8(t.Text2),
            "Ana: QMus1\r\nJugador 2: NMus1\r\nAna es mano\rPulse enter para continuar");
  EXPECT_EQ(t.Fase, Fase::Grande);
}

// The answer of a computer seat, without pares and juego unless stated.

// Whether a seat wants mus with the draw `r`.
bool Wants(const Table& t, Seat asiento, float r = Quiere) {
  DrawList rnd{r};
  return DecideMus(t, rnd, asiento);
}

TEST(DecideMus, WantsMusNineteenTimesOutOfTwenty) {
  const Table t = MesaDePrueba();
  for (Seat asiento = 2; asiento <= 4; ++asiento) {
    EXPECT_TRUE(Wants(t, asiento, DrawBelow(0.95F))) << asiento;
    EXPECT_FALSE(Wants(t, asiento, DrawFrom(0.95F))) << asiento;
  }
}

TEST(DecideMus, Kept_IgnoresTheScoreOfTheHand) {
  // The mano has 31 near the end of the juego, without pares and with one Rey: the best score.
  Table t = MesaDePrueba();
  DarMano(t, 2, "R C S A");
  t.OrdenAsiento = {2, 3, 4, 1};
  t.Piedras = {34, 0};
  ASSERT_GT(PuntuacionMus(t, 2), 0);
  EXPECT_TRUE(Wants(t, 2, DrawBelow(0.95F)));
  EXPECT_FALSE(Wants(t, 2, DrawFrom(0.95F)));
}

TEST(DecideMus, Kept_IgnoresWhoIsMano) {
  Table t = MesaDePrueba();
  for (const Orden& orden : {Orden{1, 2, 3, 4}, Orden{2, 3, 4, 1}}) {
    t.OrdenAsiento = orden;
    EXPECT_FALSE(Wants(t, 2, DrawFrom(0.95F)));
    EXPECT_TRUE(Wants(t, 2, DrawBelow(0.95F)));
  }
}

// The seat has pares, 31 points and only one Rey.
Table MesaConParesYJuego(Seat asiento) {
  Table t = MesaDePrueba();
  DarMano(t, asiento, "R C C 2");
  return t;
}

TEST(DecideMus, WantsMusWithParesAndJuegoAndALowOrdagueroWhenNotBehind) {
  Table t = MesaConParesYJuego(2);
  t.OrdagueroAsiento[2] = 50;
  EXPECT_TRUE(Wants(t, 2));
  t.Piedras = {10, 10};
  EXPECT_TRUE(Wants(t, 2));
  t.Piedras = {11, 10};
  EXPECT_TRUE(Wants(t, 2));
}

TEST(DecideMus, RefusesWithParesAndJuegoWhenBehind) {
  Table t = MesaConParesYJuego(2);
  t.OrdagueroAsiento[2] = 50;
  t.Piedras = {10, 11};  // seat 2 is of pareja 0
  EXPECT_FALSE(Wants(t, 2));
}

TEST(DecideMus, RefusesAsTheHumansPartnerWhenBehind) {
  Table t = MesaConParesYJuego(3);
  t.Piedras = {11, 10};  // seat 3 is of pareja 1
  EXPECT_FALSE(Wants(t, 3));
  t.Piedras = {10, 11};
  EXPECT_TRUE(Wants(t, 3));
}

TEST(DecideMus, RefusesWithParesAndJuegoAndAnOrdagueroAbove50) {
  Table t = MesaConParesYJuego(4);
  t.OrdagueroAsiento = {0, 0, 0, 51};
  EXPECT_FALSE(Wants(t, 4));
  t.OrdagueroAsiento = {51, 51, 51, 50};
  EXPECT_TRUE(Wants(t, 4));
}

TEST(DecideMus, RefusesForItsOrdagueroOnlyWithBothParesAndJuego) {
  Table t = MesaDePrueba();
  t.OrdagueroAsiento[2] = 100;
  t.Piedras = {0, 30};
  DarMano(t, 2, "C C 6 4");  // pares, 30 points
  EXPECT_TRUE(Wants(t, 2));
  DarMano(t, 2, "R C S A");  // 31 points, no pares
  EXPECT_TRUE(Wants(t, 2));
  DarMano(t, 2, "C C S A");  // both
  EXPECT_FALSE(Wants(t, 2));
}

TEST(DecideMus, RefusesWithJuegoAndMoreReyesThanDiscardPassesPlusOne) {
  // 31 points with two Reyes, which are pares too. The seat's ordaguero is 0.
  Table t = MesaDePrueba();
  DarMano(t, 2, "R 3 7 4");
  t.RondasMus = 0;
  EXPECT_FALSE(Wants(t, 2));
  t.RondasMus = 1;
  EXPECT_TRUE(Wants(t, 2));
}

TEST(DecideMus, NeedsMoreReyesAfterEveryDiscardPass) {
  Table t = MesaDePrueba();
  DarMano(t, 2, "R R 3 A");  // 31, three Reyes
  t.RondasMus = 1;
  EXPECT_FALSE(Wants(t, 2));
  t.RondasMus = 2;
  EXPECT_TRUE(Wants(t, 2));
  DarMano(t, 2, "R R 3 3");  // 40, four Reyes
  EXPECT_FALSE(Wants(t, 2));
  t.RondasMus = 3;
  EXPECT_TRUE(Wants(t, 2));
}

TEST(DecideMus, WantsMusWithOneRey) {
  Table t = MesaDePrueba();
  DarMano(t, 2, "R C S A");
  t.RondasMus = 0;
  EXPECT_TRUE(Wants(t, 2));
}

TEST(DecideMus, CountsReyesOnlyWithJuego) {
  Table t = MesaDePrueba();
  DarMano(t, 2, "R R 6 4");  // 30
  EXPECT_TRUE(Wants(t, 2));
  DarMano(t, 2, "R R 7 4");  // 31
  EXPECT_FALSE(Wants(t, 2));
}

// The score of seat 2 with this hand, these stones and this mano.

int ScoreOf(std::string_view cartas, int piedras, Seat mano) {
  Table t = MesaDePrueba();
  OrdenarDesde(t, mano);
  DarMano(t, 2, cartas);
  t.Piedras[0] = piedras;
  return PuntuacionMus(t, 2);
}

TEST(PuntuacionMus, AddsForTheBestJuegos) {
  EXPECT_EQ(ScoreOf("7 6 5 4", 0, 2), 0);
  EXPECT_EQ(ScoreOf("R C S A", 0, 2), 2);  // 31
  EXPECT_EQ(ScoreOf("R S 7 5", 0, 2), 1);  // 32
  EXPECT_EQ(ScoreOf("R S 7 6", 0, 2), 0);  // 33
  EXPECT_EQ(ScoreOf("R R R R", 0, 2), 0);  // 40
}

TEST(PuntuacionMus, AddsNearTheEndOfTheJuego) {
  EXPECT_EQ(ScoreOf("7 6 5 4", 28, 2), 0);  // seven to go
  EXPECT_EQ(ScoreOf("7 6 5 4", 29, 2), 2);  // six to go
}

TEST(PuntuacionMus, SubtractsForEachLaterPosition) {
  EXPECT_EQ(ScoreOf("7 6 5 4", 0, 2), 0);
  EXPECT_EQ(ScoreOf("7 6 5 4", 0, 1), -1);
  EXPECT_EQ(ScoreOf("7 6 5 4", 0, 4), -2);
  EXPECT_EQ(ScoreOf("7 6 5 4", 0, 3), -3);
}

}  // namespace
}  // namespace tasca::test
