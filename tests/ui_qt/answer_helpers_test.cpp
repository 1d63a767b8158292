// Answering input boxes by mouse.
#include "ui/qt/answer_helpers.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QToolButton>
#include <utility>

#include "table/dialog.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/boxes.h"
#include "ui/qt/qt_port.h"

namespace tasca::test {
namespace {

void Click(QWidget* caja, const char* nombre) {
  auto* const boton = Control<QToolButton>(caja, nombre);
  ASSERT_TRUE(boton->isVisible());
  QTest::mouseClick(boton, Qt::LeftButton);
}

QString FieldOf(QWidget* caja) { return caja->findChild<QLineEdit*>()->text(); }

std::u16string AskForDiscards(const std::function<void(QWidget*)>& jugar) {
  QtPort port;
  Table t = MesaDePrueba();
  t.Manos[1] = {20, 18, 16, 1};
  const BoxAnswerer jugador{jugar};
  return port.InputBox(t, Pregunta::Descarte,
                       {.Titulo = u"Sustituir cartas", .Texto = u"¿Cuáles?", .PorDefecto = u""});
}

TEST(CardsToClick, WriteTheirDigits) {
  EXPECT_EQ(Utf8(AskForDiscards([](QWidget* caja) {
              Click(caja, "Carta3");
              Click(caja, "Carta1");
              EXPECT_EQ(Utf8(FieldOf(caja)), "31");
              Click(caja, "Carta3");
              Click(caja, "Carta4");
              Press(caja, Qt::Key_Return);
            })),
            "14");
}

TEST(CardsToClick, FollowWhatIsTyped) {
  EXPECT_EQ(
      Utf8(AskForDiscards([](QWidget* caja) {
        QTest::keyClicks(caja->focusWidget(), QStringLiteral("24"));
        for (const auto& [carta, marcada] :
             {std::pair{"Carta1", false}, {"Carta2", true}, {"Carta3", false}, {"Carta4", true}}) {
          EXPECT_EQ(Control<QToolButton>(caja, carta)->isChecked(), marcada) << carta;
        }
        Press(caja, Qt::Key_Backspace);
        EXPECT_FALSE(Control<QToolButton>(caja, "Carta4")->isChecked());
        Press(caja, Qt::Key_Return);
      })),
      "2");
}

TEST(CardsToClick, AreNamedAndLeaveTheKeysToTheField) {
  AskForDiscards([](QWidget* caja) {
    EXPECT_EQ(Utf8(Control<QToolButton>(caja, "Carta2")->accessibleName()),
              "Carta 2: Sota de copas");
    Click(caja, "Carta2");
    EXPECT_TRUE(caja->findChild<QLineEdit*>()->hasFocus());
    Press(caja, Qt::Key_Return);
  });
}

std::u16string AskForAnAmount(const std::function<void(QWidget*)>& jugar) {
  QtPort port;
  const BoxAnswerer jugador{jugar};
  return port.InputBox(MesaDePrueba(), Pregunta::Cantidad,
                       {.Titulo = u"Envite", .Texto = u"¿Cuántas envida?", .PorDefecto = u"2"});
}

TEST(Steps, CountUpAndDown) {
  EXPECT_EQ(Utf8(AskForAnAmount([](QWidget* caja) {
              EXPECT_EQ(Utf8(Control<QToolButton>(caja, "Mas")->text()), "+");
              EXPECT_EQ(Utf8(Control<QToolButton>(caja, "Menos")->text()), "−");
              for (int i = 0; i < 4; ++i) Click(caja, "Mas");
              Click(caja, "Menos");
              Press(caja, Qt::Key_Return);
            })),
            "5");
}

TEST(Steps, CountByTheKeysUpAndDown) {
  EXPECT_EQ(Utf8(AskForAnAmount([](QWidget* caja) {
              for (int i = 0; i < 4; ++i) Press(caja, Qt::Key_Up);
              EXPECT_EQ(Utf8(FieldOf(caja)), "6");
              Press(caja, Qt::Key_Down);
              Press(caja, Qt::Key_Return);
            })),
            "5");
}

TEST(Steps, StopAtOneByTheKeyDownToo) {
  EXPECT_EQ(Utf8(AskForAnAmount([](QWidget* caja) {
              for (int i = 0; i < 4; ++i) Press(caja, Qt::Key_Down);
              Press(caja, Qt::Key_Return);
            })),
            "1");
}

TEST(Steps, StopAtOne) {
  EXPECT_EQ(Utf8(AskForAnAmount([](QWidget* caja) {
              for (int i = 0; i < 4; ++i) Click(caja, "Menos");
              Press(caja, Qt::Key_Return);
            })),
            "1");
}

TEST(Steps, BeginAnewAfterWhatIsNoNumber) {
  EXPECT_EQ(Utf8(AskForAnAmount([](QWidget* caja) {
              QTest::keyClicks(caja->focusWidget(), QStringLiteral("mil"));
              Click(caja, "Mas");
              Press(caja, Qt::Key_Return);
            })),
            "1");
}

}  // namespace
}  // namespace tasca::test
