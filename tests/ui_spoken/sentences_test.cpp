// The game's texts without padding and line breaks.
#include "ui/spoken/sentences.h"

#include <gtest/gtest.h>

namespace tasca::test {
namespace {

TEST(SinRelleno, KeepsOneBlankOfARun) {
  EXPECT_EQ(SinRelleno(u"Rey        de oros      , Seis      de copas     "),
            u"Rey de oros, Seis de copas");
  EXPECT_EQ(SinRelleno(u"Dora" + std::u16string(96, u' ') + u" cambia 2 cartas."),
            u"Dora cambia 2 cartas.");
}

TEST(SinRelleno, LeavesTheLinesWhereTheyAre) {
  EXPECT_EQ(SinRelleno(u"  La grande  \r\n  Paso \r\n\r\n"), u"La grande\r\nPaso\r\n\r\n");
}

TEST(SinRelleno, LeavesATextWithoutPaddingAsItIs) {
  EXPECT_EQ(SinRelleno(u"Ana: paso. Dora: ¿mus?"), u"Ana: paso. Dora: ¿mus?");
  EXPECT_EQ(SinRelleno(u""), u"");
  EXPECT_EQ(SinRelleno(u"    "), u"");
}

TEST(SitiosSinRelleno, ArePositionsInTheTextItself) {
  EXPECT_EQ(SitiosSinRelleno(u" a  b ,"), (std::vector<int>{1, 3, 4, 6}));
}

TEST(Renglones, AreLinesWithoutTheEmptyOnes) {
  const std::vector<std::u16string> renglones{u"Sus cartas son", u"Rey de oros", u"Pulse enter"};
  EXPECT_EQ(Renglones(u"\r\nSus cartas son \r\n\r\nRey        de oros      \rPulse enter"),
            renglones);
  EXPECT_TRUE(Renglones(u" \r\n \r\n").empty());
}

TEST(Seguido, EndsEveryLineWithAPause) {
  EXPECT_EQ(Seguido({u"La grande", u"¿mus?", u"Dora: paso.", u"Sus cartas:"}),
            u"La grande. ¿mus? Dora: paso. Sus cartas:");
  EXPECT_EQ(Seguido({}), u"");
}

}  // namespace
}  // namespace tasca::test
