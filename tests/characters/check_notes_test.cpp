// Merging the faults that several readers find.
#include "characters/check_notes.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"

namespace tasca::test {
namespace {

TEST(NombreLectores, ListsTheReaders) {
  EXPECT_EQ(Utf8(NombreLectores(LectorJuego)), "el juego");
  EXPECT_EQ(Utf8(NombreLectores(LectorEditor)), "el editor");
  EXPECT_EQ(Utf8(NombreLectores(LectorInicio)), "el diálogo de inicio");
  EXPECT_EQ(Utf8(NombreLectores(LectorJuego | LectorInicio)), "el juego y el diálogo de inicio");
}

TEST(Cita, QuotesUpToFortyCharacters) {
  EXPECT_EQ(Utf8(Cita(u"")), "\"\"");
  EXPECT_EQ(Utf8(Cita(std::u16string(40, u'x'))), '"' + std::string(40, 'x') + '"');
  EXPECT_EQ(Utf8(Cita(std::u16string(41, u'x'))), '"' + std::string(40, 'x') + "…\"");
}

TEST(CuadernoFaltas, MergesEqualFaultsOfSeveralReaders) {
  CuadernoFaltas cuaderno;
  cuaderno.Linea = 7;
  cuaderno.Anotar(LectorJuego, u"está mal");
  cuaderno.Anotar(LectorEditor, u"está mal");
  cuaderno.Anotar(LectorEditor, u"está peor");
  cuaderno.Linea = 8;
  cuaderno.Anotar(LectorJuego, u"está mal");
  EXPECT_EQ(cuaderno.Cuantas(), 4U);
  EXPECT_EQ(cuaderno.Faltas(), (std::vector<Falta>{{7, u"está mal."},
                                                   {7, u"está peor (solo para el editor)."},
                                                   {8, u"está mal (solo para el juego)."}}));
}

TEST(CuadernoFaltas, NamesNoReadersWhenTheGameAndTheEditorAgree) {
  CuadernoFaltas cuaderno;
  cuaderno.Anotar(TodosLosLectores, u"uno");
  cuaderno.Anotar(LectorJuego | LectorEditor, u"dos");
  cuaderno.Anotar(LectorInicio, u"tres");
  EXPECT_EQ(cuaderno.Faltas(),
            (std::vector<Falta>{
                {0, u"uno."}, {0, u"dos."}, {0, u"tres (solo para el diálogo de inicio)."}}));
}

TEST(CuadernoFaltas, OrdersByLineAndThenAsNotedWithTheWholeFileLast) {
  CuadernoFaltas cuaderno;
  cuaderno.Anotar(TodosLosLectores, u"al final");
  cuaderno.Anotar(TodosLosLectores, 9, u"b");
  cuaderno.Anotar(TodosLosLectores, 9, u"a");
  cuaderno.Anotar(TodosLosLectores, 2, u"c");
  EXPECT_EQ(cuaderno.Faltas(),
            (std::vector<Falta>{{2, u"c."}, {9, u"b."}, {9, u"a."}, {0, u"al final."}}));
}

}  // namespace
}  // namespace tasca::test
