// The discard pass.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mus/mus.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using Mano = Array<Integer, 1, 4>;
using Mazo = Array<Integer, 1, 40>;

// A table whose deck is 1 to 40 in order. Seat 1 holds Siete, Seis, Cinco, Cuatro de oros (7, 6, 5,
// 4). The other seats hold four Reyes and change nothing. The next card is at position 17, the
// Siete de copas.
struct Sala {
  Table t = MesaDePrueba();
  DrawList rnd;
  ScriptedPort port;
  Game g{t, rnd, port};

  Sala() : rnd{} {
    for (int i = 1; i <= 40; ++i) t.Baraja[i] = i;
    t.CartaSiguiente = 17;
    for (Seat asiento = 2; asiento <= 4; ++asiento) DarMano(t, asiento, "R R R R");
  }
  // Runs a discard pass in which the human types `respuesta`.
  void Pasar(std::u16string_view respuesta) {
    port.Types(respuesta);
    Descartar(g);
  }
};

constexpr auto PreguntaDescarte =
    "input[Sustituir cartas]: Sus cartas son: |1. Siete      de oros      |2. Seis       de oros   "
    "   |3. Cinco      de oros      |4. Cuatro     de oros      |introduzca los números de las "
    "cartas que quiere desechar:  (default )";

TEST(DecideDescarte, ThrowsAllButReyesAndTreses) {
  Table t = MesaDePrueba();
  DarMano(t, 2, "R 3 C A");
  EXPECT_EQ(DecideDescarte(t, 2), (Array<bool, 1, 4>{false, false, true, true}));
  DarMano(t, 2, "S 7 6 5");
  EXPECT_EQ(DecideDescarte(t, 2), (Array<bool, 1, 4>{true, true, true, true}));
  DarMano(t, 2, "R R 3 3");
  EXPECT_EQ(DecideDescarte(t, 2), (Array<bool, 1, 4>{}));
}

TEST(Descartar, AsksTheHumanWhichCardsToThrow) {
  Sala sala;
  sala.Pasar(u"");
  EXPECT_EQ(sala.port.TakeEvents().front(), PreguntaDescarte);
  EXPECT_EQ(sala.port.Preguntas, std::vector<Pregunta>{Pregunta::Descarte});
}

TEST(Descartar, ThrowsTheHumansCardsAndDealsNewOnes) {
  Sala sala;
  sala.Pasar(u"24");
  // The Seis and the Cuatro are discarded. The new cards are 17 and 18, a Siete and a Sota.
  EXPECT_EQ(sala.t.Baraja[1], 6);
  EXPECT_EQ(sala.t.Baraja[2], 4);
  EXPECT_EQ(sala.t.Baraja[3], 3);
  EXPECT_EQ(sala.t.DescarteSiguiente, 3);
  EXPECT_EQ(sala.t.CartaSiguiente, 19);
  EXPECT_EQ(sala.t.Manos[1], (Mano{18, 7, 17, 5}));
}

TEST(Descartar, TellsWhatEverySeatDid) {
  Sala sala;
  sala.t.Text2 = u"lo dicho.";
  sala.Pasar(u"24");
  EXPECT_EQ(Utf8(sala.t.Text2),
            "lo dicho.El jugador 1 cambia 2 cartas.\r\n"
            "Sus cartas son \r\n"
            "Sota       de copas     , Siete      de oros      , "
            "Siete      de copas     , Cinco      de oros      \r\n"
            "El jugador 2 cambia 0 cartas.\r\n"
            "El jugador 3 cambia 0 cartas.\r\n"
            "El jugador 4 cambia 0 cartas.\r\n");
}

TEST(Descartar, ShowsTheNewHandInTheInputLine) {
  Sala sala;
  sala.t.Text1 = u"lo de antes";
  sala.Pasar(u"24");
  EXPECT_EQ(Utf8(sala.t.Text1),
            "Sota       de copas     , Siete      de oros      , "
            "Siete      de copas     , Cinco      de oros      ");
}

TEST(Descartar, Kept_NamesTheComputerSeatsWithThePaddingOfTheirField) {
  Sala sala;
  sala.t.UsarNombres = true;
  sala.t.Personajes[0].Nombre = u"nadie";
  sala.Pasar(u"");
  const auto campo = [](std::string nombre) {
    nombre.resize(100, ' ');
    return nombre;
  };
  EXPECT_EQ(Utf8(sala.t.Text2),
            "Ana cambia 0 cartas.\r\n"
            "Sus cartas son \r\n"
            "Siete      de oros      , Seis       de oros      , "
            "Cinco      de oros      , Cuatro     de oros      \r\n" +
                campo("Berta") + " cambia 0 cartas.\r\n" + campo("el Cojo") +
                " cambia 0 cartas.\r\n" + campo("Dora") + " cambia 0 cartas.\r\n");
}

TEST(Descartar, Kept_SaysCartasForOneToo) {
  Sala sala;
  sala.Pasar(u"1");
  EXPECT_TRUE(sala.t.Text2.starts_with(u"El jugador 1 cambia 1 cartas.\r\n"));
}

struct CasoRespuesta {
  std::u16string_view Respuesta;
  std::vector<int> Tiradas;
};

// The discards of the human after an answer.
std::vector<int> ThrownFor(std::u16string_view respuesta) {
  Sala sala;
  sala.Pasar(respuesta);
  std::vector<int> tiradas;
  for (int i = 1; i < sala.t.DescarteSiguiente; ++i) tiradas.push_back(sala.t.Baraja[i]);
  EXPECT_EQ(sala.t.CartasCambiadas[1], static_cast<int>(tiradas.size()));
  return tiradas;
}

TEST(Descartar, FindsTheNumbersAnywhereInTheAnswer) {
  const std::vector<CasoRespuesta> casos{
      {u"13", {7, 5}},  {u"1 3", {7, 5}},          {u"3,1", {7, 5}},         {u"1133", {7, 5}},
      {u"2.4", {6, 4}}, {u"4321", {7, 6, 5, 4}},   {u"la 2 y la 4", {6, 4}}, {u"-1", {7}},
      {u"10", {7}},     {u"4 cartas: todas", {4}},
  };
  for (const CasoRespuesta& caso : casos) {
    EXPECT_EQ(ThrownFor(caso.Respuesta), caso.Tiradas) << Utf8(caso.Respuesta);
  }
}

TEST(Descartar, ThrowsNothingForAnAnswerThatNamesNoCard) {
  for (const auto* const respuesta : {u"", u"ninguna", u"0", u"567890", u"\uFF11"}) {
    EXPECT_EQ(ThrownFor(respuesta), std::vector<int>{}) << Utf8(respuesta);
  }
}

TEST(Descartar, DealsNothingWhenNothingWasThrown) {
  Sala sala;
  const Mazo antes = sala.t.Baraja;
  sala.Pasar(u"ninguna");
  EXPECT_EQ(sala.t.Baraja, antes);
  EXPECT_EQ(sala.t.CartaSiguiente, 17);
  EXPECT_EQ(sala.t.Manos[1], (Mano{7, 6, 5, 4}));
  EXPECT_TRUE(sala.t.Text2.starts_with(u"El jugador 1 cambia 0 cartas.\r\n"));
}

TEST(Descartar, SortsTheHumansHandByCardNumberBeforeNewCardsCome) {
  // Rey de oros (10), Tres de bastos (33), Cinco and Cuatro de oros; the Cinco is discarded. The
  // rest is sorted as 33, 10, 4: the Tres and the Rey have equal values, so that their order shows
  // the sort by number.
  Sala sala;
  sala.t.Manos[1] = {10, 33, 5, 4};
  sala.Pasar(u"3");
  EXPECT_EQ(sala.t.Manos[1], (Mano{33, 10, 17, 4}));
}

TEST(Descartar, KeepsTheReyesAndTresesOfTheComputerSeats) {
  Sala sala;
  // Rey, Tres, Sota, As: the As is discarded first, then the Sota. 17 and 18 are Siete and Sota.
  sala.t.Manos[2] = {10, 3, 8, 1};
  sala.Pasar(u"");
  EXPECT_EQ(sala.t.Baraja[1], 1);
  EXPECT_EQ(sala.t.Baraja[2], 8);
  EXPECT_EQ(sala.t.DescarteSiguiente, 3);
  EXPECT_EQ(sala.t.Manos[2], (Mano{10, 3, 18, 17}));
}

TEST(Descartar, ChangesAComputerHandWithoutReyesWhole) {
  Sala sala;
  DarMano(sala.t, 3, "C S 2 A");  // 9, 8, 2, 1
  sala.Pasar(u"");
  EXPECT_EQ(sala.t.Baraja[1], 1);
  EXPECT_EQ(sala.t.Baraja[2], 2);
  EXPECT_EQ(sala.t.Baraja[3], 8);
  EXPECT_EQ(sala.t.Baraja[4], 9);
  // 17 to 20: Siete, Sota, Caballo, Rey.
  EXPECT_EQ(sala.t.Manos[3], (Mano{20, 19, 18, 17}));
  EXPECT_EQ(sala.t.CartasCambiadas, (Mano{0, 0, 4, 0}));
}

TEST(Descartar, Kept_ReportsZeroCartasForAComputerHandOfReyesAndTreses) {
  Sala sala;
  DarMano(sala.t, 4, "R 3 3 R");
  const Mano antes = sala.t.Manos[4];
  sala.Pasar(u"");
  EXPECT_EQ(sala.t.Manos[4], antes);
  EXPECT_TRUE(sala.t.Text2.ends_with(u"El jugador 4 cambia 0 cartas.\r\n"));
}

TEST(Descartar, GoesRoundFromTheMano) {
  Sala sala;
  sala.t.OrdenAsiento = {3, 4, 1, 2};
  DarMano(sala.t, 3, "R R R 7");
  DarMano(sala.t, 2, "R R R 7");
  sala.Pasar(u"1");
  EXPECT_EQ(Utf8(sala.t.Text2),
            "El jugador 3 cambia 1 cartas.\r\n"
            "El jugador 4 cambia 0 cartas.\r\n"
            "El jugador 1 cambia 1 cartas.\r\n"
            "Sus cartas son \r\n"
            "Sota       de copas     , Seis       de oros      , "
            "Cinco      de oros      , Cuatro     de oros      \r\n"
            "El jugador 2 cambia 1 cartas.\r\n");
  // Each seat gets its cards before the next one discards.
  EXPECT_EQ(sala.t.Manos[3][4], 17);
  EXPECT_EQ(sala.t.Manos[2][4], 19);
}

TEST(Descartar, SoundsTheCardsFromTheMano) {
  Sala sala;
  sala.t.OrdenAsiento = {3, 4, 1, 2};
  DarMano(sala.t, 3, "R R 5 7");
  DarMano(sala.t, 2, "R 4 5 7");
  sala.Pasar(u"1234");
  EXPECT_EQ(sala.port.TakeEvents().back(), "sound: Son_DaUnaCarta.wav x2 balance 0 volume -700");
  EXPECT_EQ(sala.t.CartasCambiadas, (Mano{4, 3, 2, 0}));
  EXPECT_EQ(sala.t.PosicionSonido, 3);
  EXPECT_EQ(sala.t.SonidoActual, 0);
}

// Stores the hands while a message box is open.
class PuertoQueMira : public ScriptedPort {
 public:
  std::vector<decltype(Table::Manos)> Vistas;

  void MsgBox(const Table& t, std::u16string_view texto) override {
    Vistas.push_back(t.Manos);
    ScriptedPort::MsgBox(t, texto);
  }
};

// The card at position 40 goes to slot 4; then the box about the end of the deck opens.
TEST(Descartar, LeavesTheThrownCardsSlotsEmptyUntilTheyAreDealtInto) {
  for (const bool tiraElHumano : {true, false}) {
    Table t = MesaDePrueba();
    t.Baraja[40] = 40;
    t.CartaSiguiente = 40;
    DarMano(t, 2, tiraElHumano ? "R R R R" : "R R 5 4");
    for (const Seat asiento : {3, 4}) DarMano(t, asiento, "R R R R");
    DrawList rnd{};
    PuertoQueMira port;
    port.Types(tiraElHumano ? u"12" : u"");
    Game g{t, rnd, port};
    Descartar(g);
    ASSERT_EQ(port.Vistas.size(), 1U);
    EXPECT_EQ(port.Vistas[0][1], tiraElHumano ? (Mano{5, 4, 0, 40}) : (Mano{7, 6, 5, 4}));
    EXPECT_EQ(port.Vistas[0][2], tiraElHumano ? (Mano{10, 20, 30, 40}) : (Mano{10, 20, 0, 40}));
  }
}

// The pile of discards.

TEST(Descartar, LeavesThePileAtPosition36AfterTheHuman) {
  Sala sala;
  sala.t.DescarteSiguiente = 34;
  sala.Pasar(u"12");
  EXPECT_EQ(sala.t.Baraja[34], 7);
  EXPECT_EQ(sala.t.Baraja[35], 6);
  EXPECT_EQ(sala.t.DescarteSiguiente, 36);
}

TEST(Descartar, Kept_RestartsThePileBeyondPosition36AfterTheHuman) {
  Sala sala;
  sala.t.DescarteSiguiente = 34;
  sala.Pasar(u"123");
  EXPECT_EQ(sala.t.Baraja[36], 5);
  EXPECT_EQ(sala.t.DescarteSiguiente, 1);
}

TEST(Descartar, Kept_TestsTheHumansLimitOnceAfterAllTheCards) {
  Sala sala;
  sala.t.DescarteSiguiente = 36;
  sala.Pasar(u"1234");
  EXPECT_EQ(sala.t.Baraja[36], 7);
  EXPECT_EQ(sala.t.Baraja[37], 6);
  EXPECT_EQ(sala.t.Baraja[38], 5);
  EXPECT_EQ(sala.t.Baraja[39], 4);
  EXPECT_EQ(sala.t.Baraja[1], 1);
  EXPECT_EQ(sala.t.DescarteSiguiente, 1);
}

TEST(Descartar, Kept_TestsTheHumansLimitAlsoWhenNothingWasThrown) {
  Sala sala;
  sala.t.DescarteSiguiente = 37;
  sala.Pasar(u"");
  EXPECT_EQ(sala.t.DescarteSiguiente, 1);
}

TEST(Descartar, Kept_PutsTheHumansCardBeyondTheDeckOnPosition1) {
  Sala sala;
  sala.t.DescarteSiguiente = 39;
  sala.Pasar(u"1234");
  EXPECT_EQ(sala.t.Baraja[39], 7);
  EXPECT_EQ(sala.t.Baraja[40], 6);
  EXPECT_EQ(sala.t.Baraja[1], 5);
  EXPECT_EQ(sala.t.Baraja[2], 4);
  EXPECT_EQ(sala.t.DescarteSiguiente, 3);
}

TEST(Descartar, RestartsThePileWhenTheHumansLastCardFillsIt) {
  Sala sala;
  sala.t.DescarteSiguiente = 40;
  sala.Pasar(u"2");
  EXPECT_EQ(sala.t.Baraja[40], 6);
  EXPECT_EQ(sala.t.Baraja[1], 1);
  EXPECT_EQ(sala.t.DescarteSiguiente, 1);
}

TEST(Descartar, Kept_LetsAComputerSeatFillThePileTo40) {
  Sala sala;
  sala.t.OrdenAsiento = {2, 3, 4, 1};
  sala.t.DescarteSiguiente = 36;
  DarMano(sala.t, 2, "7 6 5 4");
  DarMano(sala.t, 3, "R R R 4");
  sala.Pasar(u"");
  EXPECT_EQ(sala.t.Baraja[36], 4);
  EXPECT_EQ(sala.t.Baraja[39], 7);
  EXPECT_EQ(sala.t.Baraja[40], 4);
  EXPECT_EQ(sala.t.Baraja[1], 1);
  EXPECT_EQ(sala.t.DescarteSiguiente, 1);
}

TEST(Descartar, RestartsThePileInTheMiddleOfAComputerHand) {
  Sala sala;
  sala.t.OrdenAsiento = {2, 3, 4, 1};
  sala.t.DescarteSiguiente = 39;
  DarMano(sala.t, 2, "7 6 5 4");
  sala.Pasar(u"");
  EXPECT_EQ(sala.t.Baraja[39], 4);
  EXPECT_EQ(sala.t.Baraja[40], 5);
  EXPECT_EQ(sala.t.Baraja[1], 6);
  EXPECT_EQ(sala.t.Baraja[2], 7);
  EXPECT_EQ(sala.t.DescarteSiguiente, 3);
}

TEST(Descartar, LeavesThePileAtPosition40AfterAComputerSeat) {
  Sala sala;
  sala.t.OrdenAsiento = {1, 2, 3, 4};
  sala.t.DescarteSiguiente = 36;
  DarMano(sala.t, 2, "7 6 5 4");
  sala.Pasar(u"");
  EXPECT_EQ(sala.t.DescarteSiguiente, 40);
}

TEST(Descartar, DealsTheDiscardsAgainAtTheEndOfTheDeck) {
  Sala sala;
  sala.t.CartaSiguiente = 40;
  sala.t.Baraja[40] = 38;
  DarMano(sala.t, 4, "R R R 6");
  sala.Pasar(u"1");
  // The human discards the Siete to position 1 and gets the Sota of position 40. Seat 4 discards
  // the Seis to position 2 and gets the human's Siete.
  EXPECT_EQ(sala.t.Manos[1], (Mano{38, 6, 5, 4}));
  EXPECT_EQ(sala.t.Manos[4][4], 7);
  const Sucesos sucesos = sala.port.TakeEvents();
  ASSERT_EQ(sucesos.size(), 3U);
  EXPECT_EQ(sucesos[1], "box: Necesario recoger y barajar cartas descartadas");
}

}  // namespace
}  // namespace tasca::test
