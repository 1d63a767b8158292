// Text that has to fit; here every letter is one pixel wide.
#include "ui/mesa/text_fit.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"

namespace tasca::test {
namespace {

double UnoPorLetra(std::u16string_view texto, Letra /*letra*/) {
  return static_cast<double>(texto.size());
}

std::string Short(std::u16string_view texto, double ancho) {
  return Utf8(Abreviado(texto, {}, ancho, UnoPorLetra));
}

std::string Lines(std::u16string_view texto, double ancho, int maximo) {
  std::string todas;
  for (const std::u16string& linea : EnLineas(texto, {}, ancho, maximo, UnoPorLetra)) {
    todas += Utf8(linea) + "|";
  }
  return todas;
}

TEST(Abreviado, CutsWhatDoesNotFit) {
  EXPECT_EQ(Short(u"Berta", 5), "Berta");
  EXPECT_EQ(Short(u"Berta", 4), "Ber…");
  EXPECT_EQ(Short(u"la Berta", 4), "la…");
  EXPECT_EQ(Short(u"Berta", 1), "…");
  EXPECT_EQ(Short(u"Berta", 0), "");
}

TEST(EnLineas, BreaksAtBlanks) {
  EXPECT_EQ(Lines(u"paso y ya", 9, 3), "paso y ya|");
  EXPECT_EQ(Lines(u"paso y ya", 6, 3), "paso y|ya|");
  EXPECT_EQ(Lines(u"paso  y  ya ", 4, 3), "paso|y ya|");
  EXPECT_EQ(Lines(u"", 4, 3), "");
}

TEST(EnLineas, CutsTheLastLineAndWordsThatAreTooWide) {
  EXPECT_EQ(Lines(u"uno dos tres cuatro", 5, 2), "uno|dos…|");
  EXPECT_EQ(Lines(u"extraordinario sí", 5, 3), "extr…|sí|");
}

TEST(AnchoMayor, IsThatOfTheWidestLine) {
  EXPECT_EQ(AnchoMayor({u"uno", u"cuatro", u"dos"}, {}, UnoPorLetra), 6);
  EXPECT_EQ(AnchoMayor({}, {}, UnoPorLetra), 0);
}

}  // namespace
}  // namespace tasca::test
