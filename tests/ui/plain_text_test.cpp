// Text for the terminal without control characters.
#include "ui/plain_text.h"

#include <gtest/gtest.h>

namespace tasca {
namespace {

TEST(PlainText, WritesSpanishAsUtf8) {
  EXPECT_EQ(PlainText(u"¿Órdago, señor?"), "¿Órdago, señor?");
}

TEST(PlainText, ConvertsEveryLineBreakToALineFeed) {
  EXPECT_EQ(PlainText(u"a\r\nb\rc\nd\r\r\ne\n\nf"), "a\nb\nc\nd\n\ne\n\nf");
}

TEST(PlainText, ReplacesEveryOtherControlCharacter) {
  for (char16_t letra = 0; letra < 0x20; ++letra) {
    if (letra == u'\r' || letra == u'\n') continue;
    EXPECT_EQ(PlainText(std::u16string(1, letra)), "\uFFFD") << static_cast<int>(letra);
  }
  for (char16_t letra = 0x7F; letra <= 0x9F; ++letra) {
    EXPECT_EQ(PlainText(std::u16string(1, letra)), "\uFFFD") << static_cast<int>(letra);
  }
}

TEST(PlainText, KeepsTheNeighboursOfTheControlCharacters) {
  EXPECT_EQ(PlainText(u" ~\u00A0"), " ~\u00A0");
}

TEST(PlainText, ReplacesTheFiveUndefinedCodesOfTheTextFiles) {
  EXPECT_EQ(PlainText(u"\u0081\u008D\u008F\u0090\u009D"), "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(PlainText, ReplacesALoneSurrogate) { EXPECT_EQ(PlainText(u"a\xD800z"), "a\uFFFDz"); }

TEST(PlainText, NeutralisesEscapeSequences) {
  EXPECT_EQ(PlainText(u"\x1B[31mrojo\u009B2J\b"), "\uFFFD[31mrojo\uFFFD2J\uFFFD");
}

TEST(LeadingBreak, CountsOneBreakOnly) {
  EXPECT_EQ(LeadingBreak(u"\r\n\r\na"), 2U);
  EXPECT_EQ(LeadingBreak(u"\r\ra"), 1U);
  EXPECT_EQ(LeadingBreak(u"\n\ra"), 1U);
  EXPECT_EQ(LeadingBreak(u"a\r\n"), 0U);
  EXPECT_EQ(LeadingBreak(u""), 0U);
}

TEST(WholeLines, DropsAnUnfinishedLastLine) {
  EXPECT_EQ(WholeLines(u"a\r\nb"), u"a\r\n");
  EXPECT_EQ(WholeLines(u"a\rb"), u"a\r");
  EXPECT_EQ(WholeLines(u"a\r\n"), u"a\r\n");
  EXPECT_EQ(WholeLines(u"a"), u"");
  EXPECT_EQ(WholeLines(u""), u"");
}

TEST(PlainText, RemovesThePaddingOfNames) {
  EXPECT_EQ(
      PlainText(u"Rey        de oros      , Sota       de copas     \r\nTres       de espadas   "),
      "Rey de oros, Sota de copas\nTres de espadas");
  EXPECT_EQ(PlainText(u"el Cojo          cambia 4 cartas."), "el Cojo cambia 4 cartas.");
}

TEST(PlainText, TreatsThreeBlanksAsPadding) {
  EXPECT_EQ(PlainText(u"Rey   de oros"), "Rey de oros");
  EXPECT_EQ(PlainText(u"Sabe   .\r\nCalla   \nMira   ,\rVe   "), "Sabe.\nCalla\nMira,\nVe");
  EXPECT_EQ(PlainText(u"   Rey"), " Rey");
}

TEST(PlainText, KeepsTheDoubledBlanksOfTheProse) {
  EXPECT_EQ(PlainText(u"La pareja 1 se saca  las 3 envidadas a grande "),
            "La pareja 1 se saca  las 3 envidadas a grande ");
}

TEST(PlainLine, ReplacesLineBreaks) {
  EXPECT_EQ(PlainLine(u"uno\r\ndos\ntres\rcuatro\x1B"),
            "uno\uFFFD\uFFFDdos\uFFFDtres\uFFFDcuatro\uFFFD");
}

}  // namespace
}  // namespace tasca
