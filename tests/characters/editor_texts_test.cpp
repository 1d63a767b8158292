// The character editor's three text boxes: refused values, and the question before changes are
// lost.
#include <gtest/gtest.h>

#include "characters/editor.h"
#include "tests/characters/taller.h"

namespace tasca::test {
namespace {

// The event of the message about an Ordaguero that the file cannot store.
std::string OrdagueroNoCabe(int valor) {
  return "box: El archivo solo puede guardar un valor de ordaguero de 0 a 999, y usted ha "
         "escrito " +
         std::to_string(valor) + ". Cámbielo y pruebe otra vez.";
}

void ExpectRefused(int valor) {
  Taller e{1};
  const Table antes = e.t;
  e.d.Text1 = u" Lola ";
  e.d.Text2 = Join(valor, u"x");
  e.d.Text3 = u"Baila.";
  Command1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(), Textos{OrdagueroNoCabe(valor)});
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(e.d.NumPersonajes, 1);
  EXPECT_EQ(Entradas(e.d.List1), Textos{"1. P1"});
  EXPECT_EQ(Campos(e.d), (Textos{" Lola ", std::to_string(valor) + "x", "Baila."}));
}

TEST(NuevoJugador, RefusesAnOrdagueroThatTheFileCannotHold) {
  for (const int valor : {-999, -100, -10, -9, -1, 1000, 32767}) ExpectRefused(valor);
}

TEST(NuevoJugador, TakesEveryOrdagueroThatComesBackFromTheFile) {
  for (const int valor : {0, 1, 10, 99, 100, 999}) {
    Taller e;
    e.d.Text2 = ToText(valor);
    Command1_Click(e.d, e.t, e.port, 0);
    Command3_Click(e.d, e.t, e.port, 0);
    e.t.Personajes[1].Ordaguero = -1;
    LeerPersonajes(e.t);
    EXPECT_EQ(e.t.Personajes[1].Ordaguero, valor);
  }
}

TEST(ReleerJugador, RefusesAnOrdagueroThatTheFileCannotHold) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 1);
  const Table antes = e.t;
  e.d.Text1 = u"Lola";
  e.d.Text2 = u"-10";
  Command1_Click(e.d, e.t, e.port, 2);
  EXPECT_EQ(e.port.TakeEvents(), Textos{OrdagueroNoCabe(-10)});
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(Campos(e.d), (Textos{"Lola", "-10", "H2"}));
}

// The event of the question about changed texts.
std::string PreguntaPor(const std::string& nombre) {
  return "confirm[Cambiar de jugador]: Los datos de " + nombre +
         " han cambiado. ¿Aplicarlos? Si pulsa Cancelar, se pierde lo escrito.";
}

// A text box, the text typed into it, and the character's data afterwards.
struct TextoNuevo {
  std::u16string Dialog1::*Caja;
  std::u16string Escrito;
  Textos Datos;
};

void ExpectStored(const TextoNuevo& nuevo) {
  Taller e{3};
  List1_Click(e.d, e.t, e.port, 0);
  e.d.*nuevo.Caja = nuevo.Escrito;
  e.port.Confirms(true);
  List1_Click(e.d, e.t, e.port, 2);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaPor("P1")});
  EXPECT_EQ(e.Datos(1), nuevo.Datos);
  EXPECT_EQ(e.Datos(3), (Textos{"P3", "30", "H3"}));
  EXPECT_EQ(e.d.List1.ListIndex, 2);
  EXPECT_EQ(Campos(e.d), (Textos{"P3", "30", "H3"}));
}

TEST(List1_Click, StoresChangedTextsWhenThatIsConfirmed) {
  ExpectStored({&Dialog1::Text1, u" Lola ", {"Lola", "10", "H1"}});
  ExpectStored({&Dialog1::Text2, u"7x", {"P1", "7", "H1"}});
  ExpectStored({&Dialog1::Text3, u" Baila. ", {"P1", "10", "Baila."}});
}

TEST(List1_Click, DropsChangedTextsWhenThatIsNotConfirmed) {
  Taller e{3};
  List1_Click(e.d, e.t, e.port, 0);
  const Table antes = e.t;
  e.d.Text3 = u"Baila.";
  e.port.Confirms(false);
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaPor("P1")});
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(Campos(e.d), (Textos{"P2", "20", "H2"}));
}

TEST(List1_Click, KeepsTextsThatCannotBeStoredAndTheSelection) {
  Taller e{3};
  List1_Click(e.d, e.t, e.port, 0);
  const Table antes = e.t;
  e.d.Text1 = u"Lola";
  e.d.Text2 = u"-10";
  e.port.Confirms(true);
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{PreguntaPor("P1"), OrdagueroNoCabe(-10)}));
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(e.d.List1.ListIndex, 0);
  EXPECT_EQ(Campos(e.d), (Textos{"Lola", "-10", "H1"}));
}

TEST(List1_Click, AsksNothingAboutTextsThatChangeNothing) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 0);
  e.d.Text1 = u" P1  ";
  e.d.Text2 = u"010 puntos";
  e.d.Text3 = u"H1 ";
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), Textos{});
}

TEST(List1_Click, AsksNothingAboutACharacterNeverFilled) {
  Taller e{2};
  CargarPersonajes(e.d, e.t, e.port);
  List1_Click(e.d, e.t, e.port, 2);  // stands for character 3
  e.d.Text1.clear();                 // a text box drops the NULs
  e.d.Text3.clear();
  e.port.TakeEvents();
  List1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(), Textos{});
}

// After loading, character 1 is shown and none is selected.
TEST(List1_Click, AsksAboutTheCharacterThatLoadingShows) {
  Taller e{2};
  e.d.Text1 = u"Lola";
  e.port.Confirms(true);
  List1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaPor("P1")});
  EXPECT_EQ(Campos(e.d), (Textos{"Lola", "10", "H1"}));
}

TEST(List1_Click, AsksAboutACharacterWithoutAName) {
  Taller e{2};
  e.t.Personajes[2].Nombre = u"";
  List1_Click(e.d, e.t, e.port, 1);
  e.d.Text1 = u"Lola";
  e.port.Confirms(true);
  List1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaPor("este jugador")});
  EXPECT_EQ(e.Nombre(2), "Lola");
}

TEST(List1_Click, AsksBeforeReloadingTheSameCharacter) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 1);
  e.d.Text1 = u"Lola";
  e.port.Confirms(false);
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaPor("P2")});
  EXPECT_EQ(Campos(e.d), (Textos{"P2", "20", "H2"}));
}

TEST(List1_Click, AsksNothingAfterTheTextsAreStored) {
  Taller e{3};
  List1_Click(e.d, e.t, e.port, 1);
  e.d.Text1 = u"Lola";
  Command1_Click(e.d, e.t, e.port, 2);
  List1_Click(e.d, e.t, e.port, 0);
  e.d.Text1 = u"Pepe";
  Command1_Click(e.d, e.t, e.port, 0);
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), Textos{});
  EXPECT_EQ(e.Nombre(1), "P1");
}

TEST(List1_Click, AsksAboutANewCharacterByItsName) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 0);
  e.d.Text1 = u"Pepe";
  Command1_Click(e.d, e.t, e.port, 0);
  e.d.Text3 = u"Canta.";
  e.port.Confirms(true);
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaPor("Pepe")});
  EXPECT_EQ(e.Datos(1), (Textos{"P1", "10", "H1"}));
  EXPECT_EQ(e.Datos(3), (Textos{"Pepe", "10", "Canta."}));
}

TEST(List1_Click, AsksNothingAboutTextsReplacedByDeletingOrLoading) {
  Taller e{3};
  List1_Click(e.d, e.t, e.port, 1);
  e.d.Text1 = u"Lola";
  e.port.Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaEliminar("2. P2")});
  e.d.Text1 = u"Lola";
  Command3_Click(e.d, e.t, e.port, 1);
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"box: se han cargado 3 jugadores"}));
}

}  // namespace
}  // namespace tasca::test
