// Reading typed answers.
#include "ui/terminal/answers.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"

namespace tasca {
namespace {

TEST(Fold, RemovesCaseAccentsAndOuterBlanks) {
  struct CasoOpcion {
    std::u16string_view Escrito;
    std::u16string_view Plegado;
  };
  for (const CasoOpcion& caso : {
           CasoOpcion{u"  Sí ", u"si"},
           CasoOpcion{u"ÓRDAGO", u"ordago"},
           CasoOpcion{u"Niño", u"nino"},
           CasoOpcion{u"ÀÉÎÖÜÝÇ", u"aeiouyc"},
           CasoOpcion{u"o\u0301rdago", u"ordago"},  // a combining accent
           CasoOpcion{u"Šž ŸŒ", u"sz yœ"},
           CasoOpcion{u"3×÷", u"3×÷"},
           CasoOpcion{u"", u""},
           CasoOpcion{u"el  Cojo", u"el  cojo"},
       }) {
    EXPECT_EQ(Fold(caso.Escrito), caso.Plegado) << test::Utf8(caso.Escrito);
  }
}

TEST(ReadYesNo, AcceptsTheUsualWords) {
  for (const auto* si : {u"s", u"S", u"si", u"sí", u"SÍ", u" sí ", u"y", u"yes", u"Yes"}) {
    EXPECT_EQ(ReadYesNo(si), true) << test::Utf8(si);
  }
  for (const auto* no : {u"n", u"N", u"no", u"NO", u" no "}) {
    EXPECT_EQ(ReadYesNo(no), false) << test::Utf8(no);
  }
}

TEST(ReadYesNo, RejectsEverythingElse) {
  for (const auto* otra : {u"", u"sip", u"nada", u"0", u"1", u"q", u"ye", u"-"}) {
    EXPECT_EQ(ReadYesNo(otra), std::nullopt) << test::Utf8(otra);
  }
}

using Numeros = std::vector<int>;

struct CasoOpcion {
  std::u16string_view Escrito;
  Numeros Hallados;
};

void ExpectAll(const std::vector<Option>& opciones, const std::vector<CasoOpcion>& casos) {
  for (const CasoOpcion& caso : casos) {
    EXPECT_EQ(FindOptions(opciones, caso.Escrito), caso.Hallados) << test::Utf8(caso.Escrito);
  }
}

TEST(FindOptions, FindsTheButtonsOfAnOpening) {
  ExpectAll({{0, u"Paso"}, {1, u"Envido"}, {2, u"Envido Más"}, {3, u"Órdago"}},
            {{u"0", {0}},
             {u"1", {1}},
             {u"2", {2}},
             {u"3", {3}},
             {u" 3 ", {3}},
             {u"p", {0}},
             {u"paso", {0}},
             {u"PASO", {0}},
             {u"e", {1}},
             {u"envido", {1}},
             {u"envido m", {2}},
             {u"Envido Más", {2}},
             {u"más", {2}},
             {u"m", {2}},
             {u"o", {3}},
             {u"órdago", {3}},
             {u"ordago", {3}}});
}

TEST(FindOptions, FindsNothingThatIsNotOffered) {
  ExpectAll({{0, u"Paso"}, {1, u"Quiero"}}, {{u"", {}},
                                             {u"2", {}},
                                             {u"3", {}},
                                             {u"-1", {}},
                                             {u"01", {}},
                                             {u"o", {}},
                                             {u"envido", {}},
                                             {u"pasó de largo", {}},
                                             {u"aso", {}},
                                             {u"ero", {}},
                                             {u"q", {1}},
                                             {u"quiero", {1}}});
}

TEST(FindOptions, TakesEnvidoForTheRaiseInAnAnswer) {
  ExpectAll({{0, u"Paso"}, {1, u"Quiero"}, {2, u"Envido Más"}, {3, u"Órdago"}},
            {{u"e", {2}}, {u"envido", {2}}, {u"q", {1}}});
}

TEST(FindOptions, FindsCharactersByTheirWords) {
  ExpectAll({{0, u"Aleatorio"},
             {1, u"el Cojo"},
             {2, u"el Conde"},
             {3, u"Ana"},
             {4, u"Ana María"},
             {5, u"Marisa"}},
            {{u"el cojo", {1}},
             {u"cojo", {1}},
             {u"co", {1, 2}},
             {u"el", {1, 2}},
             {u"ana", {3}},
             {u"ana m", {4}},
             {u"maría", {4}},
             {u"mari", {5}},  // the start of a name takes precedence over the start of a word
             {u"a", {0, 3, 4}},
             {u"al", {0}}});
}

TEST(FindOptions, TakesTheFirstOfTwoEqualNames) {
  ExpectAll({{1, u"Ana"}, {2, u"Ana"}}, {{u"ana", {1}}, {u"2", {2}}});
}

TEST(FindOptions, PrefersANumberToAName) {
  ExpectAll({{1, u"2 de mayo"}, {2, u"Ana"}}, {{u"2", {2}}, {u"2 d", {1}}});
}

}  // namespace
}  // namespace tasca
