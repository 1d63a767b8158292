// The conversion of text between the game and Qt.
#include "ui/qt/qt_text.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

using namespace std::string_view_literals;

TEST(ToDisplay, ConvertsEveryLineBreakToALineFeed) {
  EXPECT_EQ(Utf8(ToDisplay(u"uno\r\ndos\rtres\ncuatro\r\n\r\n")), "uno\ndos\ntres\ncuatro\n\n");
  EXPECT_EQ(Utf8(ToDisplay(u"al final\r")), "al final\n");
}

TEST(ToDisplay, ShowsUndefinedCodesAsReplacementCharacters) {
  EXPECT_EQ(Utf8(ToDisplay(u"a\u0081\u008D\u008F\u0090\u009Db")), "a�����b");
  EXPECT_EQ(Utf8(ToDisplay(u"\u001B[2J")), "�[2J");
}

TEST(ToDisplay, DropsTheNulsOfATextNeverFilled) {
  EXPECT_EQ(Utf8(ToDisplay(u"\0\0hola\0"sv)), "hola");
}

TEST(ToDisplay, KeepsBlanksTabsAndSpanish) {
  EXPECT_EQ(Utf8(ToDisplay(u"  ¿Envido  más?\t ñ & Ñ ")), "  ¿Envido  más?\t ñ & Ñ ");
}

TEST(ToLabel, DoublesAmpersands) {
  EXPECT_EQ(Utf8(ToLabel(u"Pérez & hijos\r\n&")), "Pérez && hijos\n&&");
}

TEST(FromInput, ConvertsLineBreaksToBlanks) {
  EXPECT_EQ(Utf8(FromInput(QStringLiteral("Ana\r\nMaría\u2028\tB"))), "Ana  María  B");
  EXPECT_EQ(Utf8(FromInput(QStringLiteral("Iñaki Pérez"))), "Iñaki Pérez");
}

TEST(FromInput, KeepsUndefinedCodes) {
  EXPECT_EQ(FromInput(QStringLiteral("a\u0081b")), u"a\u0081b");
  EXPECT_EQ(FromInput(QStringLiteral("a\u007Fb")), u"a b") << "the last control code below them";
}

TEST(Scaled, EnlargesPointsAndPixels) {
  QFont fuente;
  fuente.setPointSizeF(10);
  EXPECT_DOUBLE_EQ(Scaled(fuente, 1.5).pointSizeF(), 15);
  fuente.setPixelSize(20);
  EXPECT_EQ(Scaled(fuente, 1.5).pixelSize(), 30);
}

}  // namespace
}  // namespace tasca::test
