// The name's input field: what it shows and what it gives back.
#include "ui/qt/name_edit.h"

#include <gtest/gtest.h>

#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

TEST(NameEdit, LeavesTheCursorWhereItIsIfTheNameIsShownAlready) {
  NameEdit nombre{nullptr, [](std::u16string_view) {}};
  nombre.ShowText(u"Ana");
  nombre.setCursorPosition(1);
  nombre.ShowText(u"Ana");
  EXPECT_EQ(nombre.cursorPosition(), 1);
  nombre.ShowText(u"Eva");
  EXPECT_EQ(nombre.cursorPosition(), 3);
  EXPECT_EQ(Utf8(nombre.text()), "Eva");
}

TEST(NameEdit, GivesBackBytesThatItCannotShow) {
  NameEdit nombre{nullptr, [](std::u16string_view) {}};
  nombre.ShowText(u"A\u0081B");
  EXPECT_EQ(Utf8(nombre.text()), "A\uFFFDB");
  EXPECT_EQ(nombre.Text(), u"A\u0081B");
  nombre.setText(nombre.text() + QChar{u'C'});
  EXPECT_EQ(nombre.Text(), u"ABC") << "a changed name is what was typed";
}

}  // namespace
}  // namespace tasca::test
