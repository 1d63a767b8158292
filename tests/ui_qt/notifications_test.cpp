// What an assistive technology gets of what is said.
#include "ui/qt/notifications.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

std::string Name(const QAccessibleInterface& parte) { return Utf8(parte.text(QAccessible::Name)); }

struct SpeakingWindow : testing::Test {
  QAccessibleInterface& Shown(const char* texto) {
    return *QAccessible::accessibleInterface(avisos_.Show(QString::fromUtf8(texto)));
  }

  QWidget ventana_;
  Notifications avisos_{ventana_};
};

TEST_F(SpeakingWindow, ShowsATextAsALabelInANotification) {
  QAccessibleInterface& aviso = Shown("Ana: paso.");
  EXPECT_TRUE(aviso.isValid());
  EXPECT_EQ(aviso.object(), nullptr);
  EXPECT_EQ(aviso.role(), QAccessible::Notification);
  EXPECT_EQ(Name(aviso), "") << "braille shows the label only without it";
  ASSERT_EQ(aviso.childCount(), 1);
  EXPECT_EQ(aviso.child(1), nullptr);
  QAccessibleInterface& rotulo = *aviso.child(0);
  EXPECT_EQ(rotulo.role(), QAccessible::StaticText);
  EXPECT_EQ(Name(rotulo), "Ana: paso.");
  EXPECT_EQ(Utf8(rotulo.text(QAccessible::Description)), "");
  EXPECT_TRUE(rotulo.state().readOnly);
  EXPECT_FALSE(rotulo.state().invisible);
  EXPECT_EQ(rotulo.parent(), &aviso);
  EXPECT_EQ(aviso.indexOfChild(&rotulo), 0);
  EXPECT_EQ(aviso.indexOfChild(&aviso), -1);
}

TEST_F(SpeakingWindow, HasNothingBelowALabel) {
  QAccessibleInterface& rotulo = *Shown("Ana: paso.").child(0);
  EXPECT_EQ(rotulo.childCount(), 0);
  EXPECT_EQ(rotulo.child(0), nullptr);
  EXPECT_EQ(rotulo.childAt(0, 0), nullptr);
  EXPECT_EQ(rotulo.indexOfChild(&rotulo), -1);
  rotulo.setText(QAccessible::Name, QStringLiteral("otra cosa"));
  EXPECT_EQ(Name(rotulo), "Ana: paso.") << "it is read-only";
}

TEST_F(SpeakingWindow, HasOneStatusBarForAllOfThem) {
  const QAccessibleInterface* const barra = Shown("Ana: paso.").parent();
  EXPECT_EQ(barra->role(), QAccessible::StatusBar);
  EXPECT_EQ(barra->parent(), QAccessible::queryAccessibleInterface(&ventana_));
  EXPECT_EQ(barra->rect(), barra->parent()->rect());
  EXPECT_EQ(Shown("Dora: paso.").parent(), barra);
}

TEST_F(SpeakingWindow, KeepsTheLastTwentyTexts) {
  std::vector<QAccessible::Id> dichos;
  for (int i = 0; i <= 20; ++i) dichos.push_back(avisos_.Show(QString::number(i)));
  EXPECT_EQ(QAccessible::accessibleInterface(dichos.front()), nullptr);
  for (std::size_t i = 1; i <= 20; ++i) {
    const QAccessibleInterface* const aviso = QAccessible::accessibleInterface(dichos.at(i));
    ASSERT_NE(aviso, nullptr) << i;
    EXPECT_EQ(Name(*aviso->child(0)), std::to_string(i));
  }
}

TEST(Notifications, GoWithTheirOwner) {
  QWidget ventana;
  QAccessible::Id aviso = 0;
  {
    Notifications avisos{ventana};
    aviso = avisos.Show(QStringLiteral("Ana: paso."));
    EXPECT_NE(QAccessible::accessibleInterface(aviso), nullptr);
  }
  EXPECT_EQ(QAccessible::accessibleInterface(aviso), nullptr);
}

}  // namespace
}  // namespace tasca::test
