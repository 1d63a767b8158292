// How each reader classifies the lines of a character file.
#include "characters/record_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Renglones = std::vector<std::u16string>;

std::string Word(const LineasPersonajes& lineas, ClaseLinea clase) {
  const std::string personaje = std::to_string(lineas.Personaje());
  switch (clase) {
    case ClaseLinea::Personaje:
      return "personaje " + personaje;
    case ClaseLinea::Nombre:
      return "nombre";
    case ClaseLinea::Ordaguero:
      return "ordaguero";
    case ClaseLinea::Historia:
      return "historia";
    case ClaseLinea::Categoria:
      return "categoria " + std::to_string(lineas.Categoria());
    case ClaseLinea::Desconocida:
      return "desconocida";
    case ClaseLinea::Frase:
      return "frase " + personaje + "." + std::to_string(lineas.Categoria()) + "." +
             std::to_string(lineas.Hueco());
    case ClaseLinea::Ajena:
      return "ajena";
  }
  return "?";
}

// The classes of the lines, separated by ", ".
std::string Read(LectorPersonajes lector, const Renglones& archivo) {
  LineasPersonajes lineas{lector};
  std::string todas;
  for (const std::u16string& linea : archivo) {
    if (!todas.empty()) todas += ", ";
    const ClaseLinea clase = lineas.Leer(linea);
    todas += Word(lineas, clase);
  }
  return todas;
}

const Renglones Registro{u"Datos>", u"Berta", u"040", u"Cuida cabras.", u"NMus>", u"no", u"nones"};

TEST(LineasPersonajes, FollowsARecordFromItsMarkerToItsPhrases) {
  for (const LectorPersonajes lector : {LectorPersonajes::Juego, LectorPersonajes::Editor}) {
    EXPECT_EQ(Read(lector, Registro),
              "personaje 1, nombre, ordaguero, historia, categoria 2, frase 1.2.1, frase 1.2.2");
  }
}

TEST(LineasPersonajes, GivesTheStartUpDialogNamesAndStoriesAlone) {
  EXPECT_EQ(Read(LectorPersonajes::Inicio, Registro),
            "personaje 1, nombre, ordaguero, historia, ajena, ajena, ajena");
}

TEST(LineasPersonajes, EndsADefaultRecordAtItsNameForTheStartUpDialog) {
  EXPECT_EQ(
      Read(LectorPersonajes::Inicio, {u"Datos>", u"el Default de todos", u"Datos>", u"Berta"}),
      "personaje 1, ajena, personaje 2, nombre");
  EXPECT_EQ(Read(LectorPersonajes::Inicio, {u"Datos>", u"default"}), "personaje 1, nombre");
}

TEST(LineasPersonajes, LetsTheStartUpDialogFindTheMarkerAnywhereInALine) {
  EXPECT_EQ(Read(LectorPersonajes::Inicio, {u"aquí hay Datos> de uno", u"Berta"}),
            "personaje 1, nombre");
  EXPECT_EQ(Read(LectorPersonajes::Juego, {u"aquí hay Datos> de uno"}), "desconocida");
}

TEST(LineasPersonajes, TakesHeadLinesByPositionWhateverTheyHold) {
  EXPECT_EQ(Read(LectorPersonajes::Juego, {u"Datos>", u"Datos>", u"QMus>", u"a>b", u"c"}),
            "personaje 1, nombre, ordaguero, historia, frase 1.1.1");
}

TEST(LineasPersonajes, Kept_IgnoresCaseForTheEditorAlone) {
  const Renglones archivo{u"datos>", u"Berta", u"040", u"", u"PASO>"};
  EXPECT_EQ(Read(LectorPersonajes::Editor, archivo),
            "personaje 1, nombre, ordaguero, historia, categoria 7");
  EXPECT_EQ(Read(LectorPersonajes::Juego, archivo),
            "desconocida, frase 0.1.1, frase 0.1.2, frase 0.1.3, desconocida");
}

TEST(LineasPersonajes, Kept_PutsAFourthPhraseInThePlaceOfTheThird) {
  EXPECT_EQ(Read(LectorPersonajes::Juego, {u"QMus>", u"a", u"b", u"c", u"d", u"e"}),
            "categoria 1, frase 0.1.1, frase 0.1.2, frase 0.1.3, frase 0.1.3, frase 0.1.3");
}

TEST(LineasPersonajes, RestartsThePhrasesAtAnyMarker) {
  EXPECT_EQ(Read(LectorPersonajes::Juego, {u"Derr>", u"a", u"nada>", u"b"}),
            "categoria 14, frase 0.14.1, desconocida, frase 0.14.1");
}

TEST(LineasPersonajes, Kept_KeepsTheKindOfPhraseOverANewRecord) {
  EXPECT_EQ(Read(LectorPersonajes::Juego, {u"Orda>", u"Datos>", u"Berta", u"1", u"", u"a"}),
            "categoria 10, personaje 1, nombre, ordaguero, historia, frase 1.10.1");
}

TEST(LineasPersonajes, TellsTheNextMissingLineOfAHead) {
  LineasPersonajes lineas{LectorPersonajes::Juego};
  EXPECT_EQ(lineas.CabeceraPendiente(), std::nullopt);
  lineas.Leer(u"Datos>");
  EXPECT_EQ(lineas.CabeceraPendiente(), ClaseLinea::Nombre);
  lineas.Leer(u"Berta");
  EXPECT_EQ(lineas.CabeceraPendiente(), ClaseLinea::Ordaguero);
  lineas.Leer(u"040");
  EXPECT_EQ(lineas.CabeceraPendiente(), ClaseLinea::Historia);
  lineas.Leer(u"");
  EXPECT_EQ(lineas.CabeceraPendiente(), std::nullopt);
}

TEST(NombreDe, NamesTheLinesOfAHead) {
  EXPECT_EQ(Utf8(NombreDe(ClaseLinea::Nombre)), "el nombre");
  EXPECT_EQ(Utf8(NombreDe(ClaseLinea::Ordaguero)), "el valor de ordaguero");
  EXPECT_EQ(Utf8(NombreDe(ClaseLinea::Historia)), "la historia");
}

TEST(CategoriaDe, NumbersTheTagsInTheOrderOfTheFile) {
  EXPECT_EQ(CategoriaDe(u"QMus", EqualExactly), 1);
  EXPECT_EQ(CategoriaDe(u"Derr", EqualExactly), 14);
  EXPECT_EQ(CategoriaDe(u"qmus", EqualExactly), 0);
  EXPECT_EQ(CategoriaDe(u"qmus", EqualIgnoringCase), 1);
  EXPECT_EQ(CategoriaDe(u"Datos", EqualIgnoringCase), 0);
}

}  // namespace
}  // namespace tasca::test
