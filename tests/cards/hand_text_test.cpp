// Hands as text.
#include "cards/hand_text.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"

namespace tasca::test {
namespace {

// Seat 1 holds a card of every suit, seat 2 four Reyes, seat 3 four Ases, seat 4 two empty slots.
Table MesaConManos() {
  Table t = MesaDePrueba();
  t.Manos[1] = {10, 19, 24, 31};
  DarMano(t, 2, "R R R R");
  DarMano(t, 3, "A A A A");
  DarMano(t, 4, "R 7 - -");
  return t;
}

constexpr auto TextoAna =
    "Rey        de oros      , Caballo    de copas     , "
    "Cuatro     de espadas   , As         de bastos    ";
constexpr auto TextoReyes =
    "Rey        de oros      , Rey        de copas     , "
    "Rey        de espadas   , Rey        de bastos    ";
constexpr auto TextoAses =
    "As         de oros      , As         de copas     , "
    "As         de espadas   , As         de bastos    ";
constexpr auto TextoConHuecos =
    "Rey        de oros      , Siete      de oros      , "
    "           de           ,            de           ";

TEST(TextoCarta, KeepsThePaddingOfBothNames) {
  const Table t = MesaConManos();
  EXPECT_EQ(Utf8(TextoCarta(t, 1, 1)), "Rey        de oros      ");
  EXPECT_EQ(Utf8(TextoCarta(t, 1, 2)), "Caballo    de copas     ");
}

TEST(TextoCarta, IsBlankForAnEmptySlot) {
  EXPECT_EQ(Utf8(TextoCarta(MesaConManos(), 4, 3)), "           de           ");
}

TEST(TextoMano, WritesTheHumansFourCardsInOneLine) {
  EXPECT_EQ(Utf8(TextoMano(MesaConManos())), TextoAna);
}

TEST(MostrarManos, ShowsTheHumansCardsWithoutAHeading) {
  Table t = MesaConManos();
  t.Text1 = u"lo de antes";
  MostrarManos(t, AsientoHumano);
  EXPECT_EQ(Utf8(t.Text1), TextoAna);
}

TEST(MostrarManos, LaysAllHandsOpenUnderSeatNumbers) {
  Table t = MesaConManos();
  t.Text1 = u"lo de antes";
  MostrarManos(t, TodosLosAsientos);
  EXPECT_EQ(Utf8(t.Text1), std::string{"Ana\r\n"} + TextoAna + "\r\nJugador 2\r\n" + TextoReyes +
                               "\r\nJugador 3\r\n" + TextoAses + "\r\nJugador 4\r\n" +
                               TextoConHuecos + "\r\n");
}

TEST(MostrarManos, LaysAllHandsOpenUnderTrimmedNames) {
  Table t = MesaConManos();
  t.UsarNombres = true;
  MostrarManos(t, -1);
  EXPECT_EQ(Utf8(t.Text1), std::string{"Ana\r\n"} + TextoAna + "\r\nBerta\r\n" + TextoReyes +
                               "\r\nel Cojo\r\n" + TextoAses + "\r\nDora\r\n" + TextoConHuecos +
                               "\r\n");
}

TEST(MostrarManos, NamesTheHumanAsTyped) {
  Table t = MesaConManos();
  t.NombreJugador = u"Doña Ana";
  t.Personajes[0].Nombre = u"otra";
  MostrarManos(t, TodosLosAsientos);
  EXPECT_TRUE(t.Text1.starts_with(u"Doña Ana\r\n"));
}

TEST(MostrarManos, ShowsAllHandsFaceUp) {
  Table t = MesaConManos();
  MostrarManos(t, TodosLosAsientos);
  EXPECT_EQ(t.CartasVistas, t.Manos);
}

TEST(MostrarManos, HidesTheOtherHandsWhenOnlyTheHumansIsShown) {
  Table t = MesaConManos();
  MostrarManos(t, TodosLosAsientos);
  MostrarManos(t, AsientoHumano);
  EXPECT_EQ(t.CartasVistas, (Array<Array<Integer, 1, 4>, 1, 4>{}));
}

TEST(MostrarManos, ChangesNothingButTheInputLineAndWhatLiesOpen) {
  Table t = MesaConManos();
  Table antes = t;
  MostrarManos(t, TodosLosAsientos);
  antes.Text1 = t.Text1;
  antes.CartasVistas = t.CartasVistas;
  EXPECT_EQ(t, antes);
}

}  // namespace
}  // namespace tasca::test
