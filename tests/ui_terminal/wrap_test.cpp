// Line wrapping between words.
#include "ui/terminal/wrap.h"

#include <gtest/gtest.h>

namespace tasca {
namespace {

TEST(Wrap, BreaksALineAtTheBlankBeforeTheWordThatDoesNotFit) {
  EXPECT_EQ(Wrap("Enter sigue la mano", 11), "Enter sigue\nla mano");
  EXPECT_EQ(Wrap("Enter sigue la mano", 10), "Enter\nsigue la\nmano");
  EXPECT_EQ(Wrap("Enter sigue la mano", 19), "Enter sigue la mano");
}

TEST(Wrap, CountsCharactersAndNotBytes) {
  EXPECT_EQ(Wrap("órdago niño año", 11), "órdago niño\naño");
  EXPECT_EQ(Wrap("\U0001F0A1\U0001F0A2 €", 4), "\U0001F0A1\U0001F0A2 €");
  EXPECT_EQ(Wrap("\U0001F0A1\U0001F0A2 €", 3), "\U0001F0A1\U0001F0A2\n€");
}

TEST(Wrap, KeepsExistingLineBreaks) {
  EXPECT_EQ(Wrap("uno\n\ndos tres\n", 5), "uno\n\ndos\ntres\n");
  EXPECT_EQ(Wrap("\nuno", 5), "\nuno");
  EXPECT_EQ(Wrap("", 5), "");
}

TEST(Wrap, KeepsTheBlanksWithinALineAndAtItsStart) {
  EXPECT_EQ(Wrap("  se saca  las 3", 13), "  se saca\nlas 3");
  EXPECT_EQ(Wrap("  se saca  las 3", 16), "  se saca  las 3");
}

TEST(Wrap, KeepsTheBlankAfterAPromptIfItFits) {
  EXPECT_EQ(Wrap("¿mus? [S/n] ", 12), "¿mus? [S/n] ");
  EXPECT_EQ(Wrap("¿mus? [S/n] ", 11), "¿mus? [S/n]");
}

TEST(Wrap, DoesNotBreakAWord) {
  EXPECT_EQ(Wrap("a desproporcionado b", 6), "a\ndesproporcionado\nb");
  EXPECT_EQ(Wrap("desproporcionado", 6), "desproporcionado");
}

TEST(Wrap, DoesNotWrapWithoutAWidth) {
  const std::string larga(300, 'x');
  EXPECT_EQ(Wrap(larga + " " + larga, 0), larga + " " + larga);
}

}  // namespace
}  // namespace tasca
