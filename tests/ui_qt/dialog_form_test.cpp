// The window of the bidding dialog.
#include "ui/qt/dialog_form.h"

#include <gtest/gtest.h>

#include <QTest>
#include <array>
#include <utility>
#include <vector>

#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

class DialogWindow : public testing::Test {
 protected:
  // Prepares the dialog for `modo` and opens its window.
  DialogForm& Open(ModoDialogo modo) {
    dialogo_.Caption = u"Los pares";
    dialogo_.Modo = modo;
    Form_Activate(dialogo_);
    ventana_.emplace(nullptr, dialogo_);
    ventana_->open();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&*ventana_));
    return *ventana_;
  }

  QPushButton* Boton(int indice) {
    return Control<QPushButton>(&*ventana_, ("Command1_" + std::to_string(indice)).c_str());
  }

  // The captions of the visible, enabled buttons, in order.
  std::string Captions() {
    std::string textos;
    for (int i = 0; i < 4; ++i) {
      const bool alcanzable = Boton(i)->isVisible() && Boton(i)->isEnabled();
      if (alcanzable) textos += Utf8(Boton(i)->text()) + "|";
    }
    return textos;
  }

  Dialog dialogo_;
  std::optional<DialogForm> ventana_;
};

TEST_F(DialogWindow, ShowsTheButtonsOfAnOpening) {
  EXPECT_EQ(Utf8(Open(ModoDialogo::Apertura).windowTitle()), "Los pares");
  EXPECT_EQ(Captions(), "Paso|Envido|Envido Más|Órdago|");
}

TEST_F(DialogWindow, NamesTheButtonsForScreenReaders) {
  dialogo_.Command1[2].Caption = u"Uno & más";
  Open(ModoDialogo::Apertura);
  EXPECT_EQ(Utf8(Boton(2)->text()), "Uno && más");
  EXPECT_EQ(Utf8(Boton(2)->accessibleName()), "Uno & más");
}

TEST_F(DialogWindow, ShowsTheButtonsOfAnAnswer) {
  Open(ModoDialogo::Respuesta);
  EXPECT_EQ(Captions(), "Paso|Quiero|Envido Más|Órdago|");
}

TEST_F(DialogWindow, ShowsOnlyPasoAndQuieroAgainstAnOrdago) {
  Open(ModoDialogo::RespuestaOrdago);
  EXPECT_EQ(Captions(), "Paso|Quiero|");
}

TEST_F(DialogWindow, IsModalAndOfFixedSize) {
  const DialogForm& ventana = Open(ModoDialogo::Apertura);
  EXPECT_TRUE(ventana.isModal());
  EXPECT_EQ(ventana.minimumSize(), ventana.maximumSize());
  EXPECT_GE(ventana.width(), 294);
  EXPECT_GE(ventana.height(), 142);
}

TEST_F(DialogWindow, PlacesTheButtonsInTwoRowsOfTwo) {
  Open(ModoDialogo::Apertura);
  EXPECT_EQ(Boton(0)->y(), Boton(1)->y());
  EXPECT_EQ(Boton(2)->y(), Boton(3)->y());
  EXPECT_EQ(Boton(0)->x(), Boton(2)->x());
  EXPECT_EQ(Boton(1)->x(), Boton(3)->x());
  EXPECT_LT(Boton(0)->geometry().right(), Boton(1)->x());
  EXPECT_LT(Boton(0)->geometry().bottom(), Boton(2)->y());
  EXPECT_LT(ventana_->width(), Boton(1)->geometry().right() + Boton(1)->width());
}

TEST_F(DialogWindow, FitsEveryCaptionInALargeFont) {
  const QFont normal = QApplication::font();
  QFont grande = normal;
  grande.setPointSize(40);
  QApplication::setFont(grande);
  Open(ModoDialogo::Apertura);
  for (int i = 0; i < 4; ++i) {
    EXPECT_GE(Boton(i)->width(), Boton(i)->sizeHint().width()) << i;
    EXPECT_GE(Boton(i)->height(), Boton(i)->sizeHint().height()) << i;
    EXPECT_TRUE(ventana_->rect().contains(Boton(i)->geometry())) << i;
  }
  QApplication::setFont(normal);
}

TEST_F(DialogWindow, StartsAtPasoAndAnswersItWithEnter) {
  DialogForm& ventana = Open(ModoDialogo::Apertura);
  EXPECT_TRUE(Boton(0)->hasFocus());
  dialogo_.Resultado = 3;
  Press(&ventana, Qt::Key_Return);
  EXPECT_EQ(dialogo_.Resultado, 0);
  EXPECT_FALSE(ventana.isVisible());
}

TEST_F(DialogWindow, StartsAtPasoAgainAfterAnotherAnswer) {
  Open(ModoDialogo::Apertura);
  QTest::mouseClick(Boton(3), Qt::LeftButton);
  EXPECT_EQ(dialogo_.Resultado, 3);
  Open(ModoDialogo::Respuesta);
  EXPECT_TRUE(Boton(0)->hasFocus());
}

TEST_F(DialogWindow, EnterAndSpacePressTheFocusedButton) {
  for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    for (int i = 0; i < 4; ++i) {
      DialogForm& ventana = Open(ModoDialogo::Apertura);
      Boton(i)->setFocus();
      Press(&ventana, tecla);
      EXPECT_EQ(dialogo_.Resultado, i);
      EXPECT_FALSE(ventana.isVisible());
    }
  }
}

TEST_F(DialogWindow, TheLettersPressTheButtonsOfAnOpening) {
  const std::array<std::pair<Qt::Key, int>, 4> letras{
      {{Qt::Key_P, 0}, {Qt::Key_E, 1}, {Qt::Key_M, 2}, {Qt::Key_O, 3}}};
  for (const auto& [tecla, resultado] : letras) {
    DialogForm& ventana = Open(ModoDialogo::Apertura);
    Boton(resultado == 0 ? 1 : 0)->setFocus();
    dialogo_.Resultado = -1;
    Press(&ventana, tecla);
    EXPECT_EQ(dialogo_.Resultado, resultado);
    EXPECT_FALSE(ventana.isVisible());
  }
}

TEST_F(DialogWindow, TheLettersPressTheButtonsOfAnAnswer) {
  const std::array<std::pair<Qt::Key, int>, 4> letras{
      {{Qt::Key_P, 0}, {Qt::Key_Q, 1}, {Qt::Key_M, 2}, {Qt::Key_O, 3}}};
  for (const auto& [tecla, resultado] : letras) {
    DialogForm& ventana = Open(ModoDialogo::Respuesta);
    Boton(resultado == 0 ? 1 : 0)->setFocus();
    dialogo_.Resultado = -1;
    Press(&ventana, tecla, Qt::ShiftModifier);
    EXPECT_EQ(dialogo_.Resultado, resultado);
    EXPECT_FALSE(ventana.isVisible());
  }
}

TEST_F(DialogWindow, ALetterWithoutAVisibleButtonAnswersNothing) {
  const std::array<std::pair<ModoDialogo, std::vector<Qt::Key>>, 3> casos{
      {{ModoDialogo::Apertura, {Qt::Key_Q, Qt::Key_S, Qt::Key_N, Qt::Key_X}},
       {ModoDialogo::Respuesta, {Qt::Key_E, Qt::Key_S, Qt::Key_N, Qt::Key_X}},
       {ModoDialogo::RespuestaOrdago, {Qt::Key_E, Qt::Key_M, Qt::Key_O}}}};
  for (const auto& [modo, teclas] : casos) {
    DialogForm& ventana = Open(modo);
    for (const Qt::Key tecla : teclas) {
      Press(&ventana, tecla);
      EXPECT_TRUE(ventana.isVisible()) << tecla;
    }
    Press(&ventana, Qt::Key_P);
    EXPECT_FALSE(ventana.isVisible());
  }
}

TEST_F(DialogWindow, ALetterWithCtrlOrAltAnswersNothing) {
  DialogForm& ventana = Open(ModoDialogo::Respuesta);
  Press(&ventana, Qt::Key_Q, Qt::ControlModifier);
  Press(&ventana, Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(ventana.isVisible());
  Press(&ventana, Qt::Key_Q);
  EXPECT_EQ(dialogo_.Resultado, 1);
}

TEST_F(DialogWindow, ArrowKeysMoveBetweenNeighbours) {
  DialogForm& ventana = Open(ModoDialogo::Apertura);
  Press(&ventana, Qt::Key_Right);
  EXPECT_TRUE(Boton(1)->hasFocus());
  Press(&ventana, Qt::Key_Down);
  EXPECT_TRUE(Boton(3)->hasFocus());
  Press(&ventana, Qt::Key_Left);
  EXPECT_TRUE(Boton(2)->hasFocus());
  Press(&ventana, Qt::Key_Up);
  EXPECT_TRUE(Boton(0)->hasFocus());
}

TEST_F(DialogWindow, ArrowKeysGoAroundInTheirRow) {
  DialogForm& ventana = Open(ModoDialogo::Apertura);
  Press(&ventana, Qt::Key_Left);
  EXPECT_TRUE(Boton(1)->hasFocus());
  Press(&ventana, Qt::Key_Right);
  EXPECT_TRUE(Boton(0)->hasFocus());
  Press(&ventana, Qt::Key_Up);
  EXPECT_TRUE(Boton(2)->hasFocus());
}

TEST_F(DialogWindow, ArrowKeysStayOnVisibleButtons) {
  DialogForm& ventana = Open(ModoDialogo::RespuestaOrdago);
  Press(&ventana, Qt::Key_Down);
  EXPECT_TRUE(Boton(0)->hasFocus());
  Press(&ventana, Qt::Key_Right);
  EXPECT_TRUE(Boton(1)->hasFocus());
}

TEST_F(DialogWindow, TabMovesInTheOrderOfTheAnswers) {
  DialogForm& ventana = Open(ModoDialogo::Apertura);
  for (const int siguiente : {1, 2, 3, 0}) {
    Press(&ventana, Qt::Key_Tab);
    EXPECT_TRUE(Boton(siguiente)->hasFocus()) << siguiente;
  }
}

TEST_F(DialogWindow, IsNotAnsweredByEscOrItsCloseBox) {
  DialogForm& ventana = Open(ModoDialogo::Respuesta);
  dialogo_.Resultado = 2;
  Press(&ventana, Qt::Key_Escape);
  EXPECT_TRUE(ventana.isVisible());
  EXPECT_FALSE(ventana.close());
  EXPECT_TRUE(ventana.isVisible());
  EXPECT_TRUE(dialogo_.Visible);
  EXPECT_EQ(dialogo_.Resultado, 2);
  EXPECT_FALSE(ventana.windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

}  // namespace
}  // namespace tasca::test
