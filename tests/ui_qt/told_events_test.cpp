// The events that screen readers are told.
#include "ui/qt/told_events.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <array>

#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/boxes.h"
#include "ui/qt/form1.h"

namespace tasca::test {
namespace {

// Whether all events about the text of a field are told like that.
bool TextIsTold(QLineEdit& campo, Telling como) {
  const QString texto = QStringLiteral("2");
  const QAccessibleTextCursorEvent cursor{&campo, 0};
  const QAccessibleTextInsertEvent nuevo{&campo, 0, texto};
  const QAccessibleTextRemoveEvent borrado{&campo, 0, texto};
  const QAccessibleTextSelectionEvent elegido{&campo, 0, 1};
  const QAccessibleTextUpdateEvent cambiado{&campo, 0, texto, texto};
  const std::array<const QAccessibleEvent*, 5> sucesos{&cursor, &nuevo, &borrado, &elegido,
                                                       &cambiado};
  return std::all_of(sucesos.begin(), sucesos.end(),
                     [&](const QAccessibleEvent* suceso) { return TellingOf(*suceso) == como; });
}

TEST(TellingOf, IsNothingForTheTextOfAFieldBeforeItsBoxIsActive) {
  QLineEdit campo;
  campo.setText(QStringLiteral("2"));
  EXPECT_TRUE(TextIsTold(campo, Telling::Not));
  EXPECT_EQ(TellingOf(QAccessibleEvent{&campo, QAccessible::Focus}), Telling::AsItIs);
  EXPECT_EQ(TellingOf(QAccessibleEvent{&campo, QAccessible::NameChanged}), Telling::AsItIs);
  campo.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&campo));
  EXPECT_TRUE(TextIsTold(campo, Telling::AsItIs));
}

struct ToldForm1 : testing::Test {
  ToldForm1() {
    ventana_.ShowTable(MesaDePrueba(), Momento::Reposo);
    ventana_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  }
  Telling OfFocus() {
    return TellingOf({Control<QWidget>(&ventana_, "Text1"), QAccessible::Focus});
  }

  Form1 ventana_{
      {.Text1_KeyDown = [](Integer&, Integer) {}, .Sonido_Click = [](bool) {}, .Closed = [] {}}};
};

TEST_F(ToldForm1, ReadsTheHandWhenThePlayerGoesToIt) {
  EXPECT_EQ(OfFocus(), Telling::Silently) << "the opening tells the cards";
  Press(&ventana_, Qt::Key_Tab);
  Press(&ventana_, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(OfFocus(), Telling::AsItIs);
}

TEST_F(ToldForm1, DoesNotReadTheHandAgainAfterABox) {
  Press(&ventana_, Qt::Key_Tab);
  Press(&ventana_, Qt::Key_Backtab, Qt::ShiftModifier);
  const BoxAnswerer jugador{[](QWidget* caja) { Press(caja, Qt::Key_Return); }};
  ShowMessage(&ventana_, u"La pareja 1 gana");
  ventana_.activateWindow();  // the offscreen platform does not do it
  ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  EXPECT_EQ(OfFocus(), Telling::Silently);
}

TEST_F(ToldForm1, ReadsTheHandWhenThePlayerComesFromAnotherWindow) {
  QWidget otra;
  otra.show();
  otra.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&otra));
  ventana_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  EXPECT_EQ(OfFocus(), Telling::AsItIs);
}

// Every event passes the filter, which passes it on and stays.
TEST_F(ToldForm1, StaysInPlaceAfterAnEvent) {
  const QAccessible::UpdateHandler filtro = QAccessible::installUpdateHandler(nullptr);
  ASSERT_NE(filtro, nullptr);
  auto* const linea = Control<QWidget>(&ventana_, "Text1");
  QLineEdit campo;
  QAccessibleEvent callado{linea, QAccessible::Focus};
  QAccessibleTextInsertEvent ninguno{&campo, 0, QStringLiteral("2")};
  QAccessibleEvent corriente{linea, QAccessible::NameChanged};
  for (QAccessibleEvent* const suceso :
       std::array<QAccessibleEvent*, 3>{&callado, &ninguno, &corriente}) {
    filtro(suceso);
    EXPECT_EQ(QAccessible::installUpdateHandler(nullptr), filtro);
  }
  QAccessible::installUpdateHandler(filtro);
}

}  // namespace
}  // namespace tasca::test
