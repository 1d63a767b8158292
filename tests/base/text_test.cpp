// Text helpers.
#include "base/text.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"

namespace tasca {
namespace {

using test::Utf8;

TEST(Trim, TakesBlanksFromBothEnds) {
  EXPECT_EQ(Utf8(Trim(u"  tío Zarandel ")), "tío Zarandel");
  EXPECT_EQ(Trim(u"nada"), u"nada");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u""), u"");
}

TEST(Trim, KeepsEverythingThatIsNoBlank) {
  EXPECT_EQ(Trim(u" \t a \r\n "), u"\t a \r\n");
  EXPECT_EQ(Trim(u"\u00A0a\u00A0"), u"\u00A0a\u00A0");
  EXPECT_EQ(Trim(std::u16string_view(u" \0 ", 3)), std::u16string_view(u"\0", 1));
}

TEST(TrimRight, LeavesTheLeftEnd) {
  EXPECT_EQ(TrimRight(u"  envido  "), u"  envido");
  EXPECT_EQ(TrimRight(u"   "), u"");
  EXPECT_EQ(TrimRight(u""), u"");
}

TEST(ReplaceAll, ReplacesEveryOccurrence) {
  EXPECT_EQ(ReplaceAll(u"&, y & más&", u"&", u"12"), u"12, y 12 más12");
  EXPECT_EQ(ReplaceAll(u"aaaa", u"aa", u"b"), u"bb");
  EXPECT_EQ(ReplaceAll(u"sin nada", u"&", u"2"), u"sin nada");
  EXPECT_EQ(ReplaceAll(u"", u"&", u"2"), u"");
}

TEST(ReplaceAll, DoesNotRescanItsReplacements) {
  EXPECT_EQ(ReplaceAll(u"a&b", u"&", u"&&"), u"a&&b");
  EXPECT_EQ(ReplaceAll(u"aab", u"ab", u"b"), u"ab");
}

TEST(ReplaceAll, RemovesWithAnEmptyText) { EXPECT_EQ(ReplaceAll(u"a:b:", u":", u""), u"ab"); }

TEST(Contains, FindsAPieceAnywhere) {
  EXPECT_TRUE(Contains(u"3,1", u"1"));
  EXPECT_TRUE(Contains(u"Datos>", u"Datos>"));
  EXPECT_FALSE(Contains(u"datos>", u"Datos>"));
  EXPECT_FALSE(Contains(u"", u"1"));
}

TEST(Before, GivesTheTextBeforeTheFirstLetter) {
  EXPECT_EQ(Before(u"Ana> Nombre> y más", u'>'), u"Ana");
  EXPECT_EQ(Before(u">", u'>'), u"");
  EXPECT_EQ(Before(u"Ana", u'>'), u"Ana");
  EXPECT_EQ(Before(u"", u'>'), u"");
}

TEST(ToText, WritesPlainDigits) {
  EXPECT_EQ(ToText(0), u"0");
  EXPECT_EQ(ToText(7), u"7");
  EXPECT_EQ(ToText(-2), u"-2");
  EXPECT_EQ(ToText(32767), u"32767");
  EXPECT_EQ(ToText(-32768), u"-32768");
  EXPECT_EQ(ToText(-2147483647 - 1), u"-2147483648");
}

TEST(Join, ConcatenatesThePieces) {
  EXPECT_EQ(Join(u"La pareja ", 0, u"gana ", u" ", std::u16string{u"x"}), u"La pareja 0gana  x");
  EXPECT_EQ(Join(), u"");
  EXPECT_EQ(Join(-1, 2, CrLf), u"-12\r\n");
}

TEST(EqualExactly, IsCaseSensitive) {
  EXPECT_TRUE(EqualExactly(u"QMus", u"QMus"));
  EXPECT_FALSE(EqualExactly(u"QMus", u"qMus"));
}

TEST(EqualIgnoringCase, IgnoresAsciiCase) {
  EXPECT_TRUE(EqualIgnoringCase(u"QMus", u"qmUS"));
  EXPECT_TRUE(EqualIgnoringCase(u"AZaz", u"azAZ"));
  EXPECT_TRUE(EqualIgnoringCase(u"", u""));
}

TEST(EqualIgnoringCase, DistinguishesEverythingElse) {
  EXPECT_FALSE(EqualIgnoringCase(u"QMus", u"QMu"));
  EXPECT_FALSE(EqualIgnoringCase(u"QMus", u"QMus "));
  EXPECT_FALSE(EqualIgnoringCase(u"QMus", u"NMus"));
  EXPECT_FALSE(EqualIgnoringCase(u"@[", u"`{"));  // the neighbours of A and Z
  EXPECT_FALSE(EqualIgnoringCase(u"Ñ", u"ñ"));    // ASCII letters only
}

TEST(IsControl, IsTrueForC0DeleteAndC1) {
  for (const char16_t letra : {u'\0', u'\t', u'\r', u'\x1F', u'\x7F', u'\x80', u'\x9F'}) {
    EXPECT_TRUE(IsControl(letra)) << static_cast<int>(letra);
  }
  for (const char16_t letra : {u' ', u'~', u'\xA0', u'ñ', u'€'}) {
    EXPECT_FALSE(IsControl(letra)) << static_cast<int>(letra);
  }
}

}  // namespace
}  // namespace tasca
