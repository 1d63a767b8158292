// Text fields of a fixed width.
#include "base/fixed_text.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/tables.h"

namespace tasca {
namespace {

using test::Utf8;

TEST(FixedText, HoldsNulsUntilItIsAssigned) {
  const FixedText<3> campo;
  EXPECT_EQ(campo.Full(), std::u16string_view(u"\0\0\0", 3));
  EXPECT_EQ(campo.Trimmed(), std::u16string_view(u"\0\0\0", 3));
}

TEST(FixedText, PadsAShortTextWithBlanksOnTheRight) {
  FixedText<10> campo;
  campo = u"Rey";
  EXPECT_EQ(Utf8(campo.Full()), "Rey       ");
  EXPECT_EQ(Utf8(campo.Trimmed()), "Rey");
}

TEST(FixedText, KeepsATextOfItsWidth) {
  FixedText<4> campo;
  campo = u"oros";
  EXPECT_EQ(Utf8(campo.Full()), "oros");
}

TEST(FixedText, CutsALongText) {
  FixedText<4> campo;
  campo = u"bastos";
  EXPECT_EQ(Utf8(campo.Full()), "bast");
}

TEST(FixedText, PadsOverWhatItHeldBefore) {
  FixedText<6> campo;
  campo = u"copas";
  campo = u"as";
  EXPECT_EQ(Utf8(campo.Full()), "as    ");
}

TEST(FixedText, IsBlankForAnEmptyText) {
  FixedText<3> campo;
  campo = u"";
  EXPECT_EQ(Utf8(campo.Full()), "   ");
  EXPECT_EQ(campo.Trimmed(), u"");
}

TEST(FixedText, TrimsBothEndsButKeepsInnerBlanks) {
  FixedText<12> campo;
  campo = u"  el tío  ";
  EXPECT_EQ(Utf8(campo.Trimmed()), "el tío");
}

TEST(FixedText, KeepsNulsThatWereAssigned) {
  FixedText<4> campo;
  campo = std::u16string_view(u"\0a", 2);
  EXPECT_EQ(campo.Trimmed(), std::u16string_view(u"\0a", 2));
}

TEST(FixedText, CountsUtf16Units) {
  FixedText<3> campo;
  campo = u"a\U0001F0A1b";  // a playing card: a surrogate pair
  EXPECT_EQ(campo.Full(), std::u16string_view(u"a\U0001F0A1"));
}

TEST(FixedText, ComparesPaddedTexts) {
  FixedText<5> una;
  FixedText<5> otra;
  una = u"as";
  otra = u"as   ";
  EXPECT_EQ(una, otra);
  otra = u"dos";
  EXPECT_NE(una, otra);
  EXPECT_NE(una, FixedText<5>{});
}

}  // namespace
}  // namespace tasca
