// The size of the letters, set by the player.
#include "ui/qt/zoom.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <cmath>
#include <memory>
#include <utility>

#include "startup/dlg_inicio.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/boxes.h"
#include "ui/qt/dialog_form.h"
#include "ui/qt/dlg_inicio_form.h"
#include "ui/qt/form1.h"
#include "ui/qt/manual_text.h"
#include "ui/qt/manual_window.h"

namespace tasca::test {
namespace {

double Points() { return QApplication::font().pointSizeF(); }

void TurnWheel(QWidget* control, int cuanto, Qt::KeyboardModifiers con = Qt::ControlModifier) {
  QWheelEvent giro{QPointF{5, 5},
                   control->mapToGlobal(QPointF{5, 5}),
                   {},
                   {0, cuanto},
                   Qt::NoButton,
                   con,
                   Qt::NoScrollPhase,
                   false};
  QApplication::sendEvent(control, &giro);
}

// Waits until a control has letters of that size: the windows get their font from the event loop.
void ExpectLetters(const QWidget* control, double puntos) {
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(control->font().pointSizeF() - puntos) < 0.1; },
                              20'000))
      << control->font().pointSizeF() << " instead of " << puntos;
}

// Letters of 10 points, and the main window with its menu.
class ZoomedWindow : public testing::Test {
 public:
  ZoomedWindow(const ZoomedWindow&) = delete;
  ZoomedWindow& operator=(const ZoomedWindow&) = delete;
  ~ZoomedWindow() override {
    form1_.reset();
    zoom_.reset();
    QApplication::setFont(antes_);
  }

 protected:
  ZoomedWindow() {
    QFont fuente = antes_;
    fuente.setPointSizeF(10);
    QApplication::setFont(fuente);
    zoom_ = std::make_unique<Zoom>();
    Form1::Events sucesos;
    sucesos.Text1_KeyDown = [](Integer& /*tecla*/, Integer /*shift*/) {};
    sucesos.LetraMayor_Click = [this] { zoom_->Larger(); };
    sucesos.LetraMenor_Click = [this] { zoom_->Smaller(); };
    sucesos.LetraNormal_Click = [this] { zoom_->Normal(); };
    form1_ = std::make_unique<Form1>(std::move(sucesos));
    form1_->resize(700, 500);
    form1_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form1_.get()));
  }
  QFont antes_ = QApplication::font();
  std::unique_ptr<Zoom> zoom_;
  std::unique_ptr<Form1> form1_;
};

TEST_F(ZoomedWindow, GetsLargerAndSmallerLettersByItsKeys) {
  Press(form1_.get(), Qt::Key_Plus, Qt::ControlModifier);
  Press(form1_.get(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Points(), 12);
  Press(form1_.get(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Points(), 11);
  EXPECT_EQ(Utf8(Control<QPlainTextEdit>(form1_.get(), "Text1")->toPlainText()), "");
}

TEST_F(ZoomedWindow, GetsItsNormalLettersBackByTheMenu) {
  for (int i = 0; i < 3; ++i) Control<QAction>(form1_.get(), "LetraMayor")->trigger();
  Control<QAction>(form1_.get(), "LetraMenor")->trigger();
  EXPECT_DOUBLE_EQ(Points(), 12);
  Control<QAction>(form1_.get(), "LetraNormal")->trigger();
  EXPECT_DOUBLE_EQ(Points(), 10);
}

TEST_F(ZoomedWindow, KeepsTheKeysThatTheGameHas) {
  for (const Qt::Key tecla : {Qt::Key_Equal, Qt::Key_0, Qt::Key_ParenRight}) {
    Press(form1_.get(), Qt::Key_Plus, Qt::ControlModifier);
    Press(form1_.get(), tecla, Qt::ControlModifier);
    Press(form1_.get(), tecla, Qt::ControlModifier | Qt::ShiftModifier);
  }
  EXPECT_DOUBLE_EQ(Points(), 13);
}

TEST_F(ZoomedWindow, StopsAt6And32Points) {
  for (int i = 0; i < 40; ++i) Press(form1_.get(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Points(), 32);
  for (int i = 0; i < 40; ++i) Press(form1_.get(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Points(), 6);
}

TEST_F(ZoomedWindow, FollowsCtrlAndTheWheelNotchByNotch) {
  auto* const texto = Control<QPlainTextEdit>(form1_.get(), "Text2")->viewport();
  TurnWheel(texto, 120);
  EXPECT_DOUBLE_EQ(Points(), 11);
  TurnWheel(texto, -240);
  EXPECT_DOUBLE_EQ(Points(), 9);
  for (int i = 0; i < 3; ++i) TurnWheel(texto, 40);
  EXPECT_DOUBLE_EQ(Points(), 10);
  TurnWheel(texto, 120);
  TurnWheel(texto, 120, Qt::NoModifier);
  EXPECT_DOUBLE_EQ(Points(), 11);
}

TEST_F(ZoomedWindow, ShowsItsTextsLargerThanTheRest) {
  zoom_->Larger();
  zoom_->Larger();
  for (const char* const nombre : {"Text1", "Text2"}) {
    ExpectLetters(Control<QPlainTextEdit>(form1_.get(), nombre), 12 * 1.3);
  }
}

TEST_F(ZoomedWindow, StaysInsideASmallWindowWithTheLargestLetters) {
  form1_->resize(400, 300);
  for (int i = 0; i < 22; ++i) zoom_->Larger();
  ExpectLetters(form1_.get(), 32);
  const QSize pantalla = form1_->screen()->availableSize();
  EXPECT_LE(form1_->width(), pantalla.width());
  EXPECT_LE(form1_->height(), pantalla.height());
}

TEST_F(ZoomedWindow, GivesItsLettersToBoxesOpenedLater) {
  zoom_->Larger();
  double puntos = 0;
  const BoxAnswerer jugador{[&puntos](QWidget* caja) {
    puntos = caja->findChild<QPushButton*>()->font().pointSizeF();
    Press(caja, Qt::Key_Return);
  }};
  ShowMessage(form1_.get(), u"La pareja 1 gana");
  EXPECT_DOUBLE_EQ(puntos, 11);
}

TEST_F(ZoomedWindow, EnlargesTheBiddingDialogThatIsOpen) {
  Dialog dialogo;
  dialogo.Modo = ModoDialogo::Apertura;
  Form_Activate(dialogo);
  DialogForm forma{form1_.get(), dialogo};
  forma.show();
  const QSize antes = forma.size();
  for (int i = 0; i < 8; ++i) TurnWheel(&forma, 120);
  ExpectLetters(&forma, 18);
  EXPECT_GT(forma.width(), antes.width());
  for (const QPushButton* const boton : forma.findChildren<QPushButton*>()) {
    EXPECT_GE(boton->width(), boton->sizeHint().width()) << Utf8(boton->text());
    EXPECT_TRUE(forma.rect().contains(boton->geometry())) << Utf8(boton->text());
  }
}

TEST_F(ZoomedWindow, EnlargesTheManualWhichKeepsAZoomOfItsOwn) {
  ManualWindow manual;
  manual.show();
  auto* const texto = dynamic_cast<ManualText*>(Control<QWidget>(&manual, "ManualText"));
  const double antes = texto->font().pointSizeF();
  zoom_->Larger();
  ExpectLetters(texto, antes * 1.1);
  TurnWheel(texto->viewport(), 120);
  EXPECT_DOUBLE_EQ(Points(), 11);
  ExpectLetters(texto, antes * 1.1 * 1.1);
}

TEST_F(ZoomedWindow, EnlargesTheStartUpDialog) {
  DlgInicio estado;
  DlgInicioForm inicio{estado, {.Run = {}, .CbOK_Click = {}, .Left = {}}};
  inicio.show();
  const auto* const historia = Control<QLabel>(&inicio, "Text4");
  const int antes = historia->minimumHeight();
  for (int i = 0; i < 4; ++i) TurnWheel(&inicio, 120);
  ExpectLetters(Control<QLabel>(&inicio, "Text1"), 14 * 1.2);
  ExpectLetters(Control<QLabel>(&inicio, "Text3"), 14);
  EXPECT_GT(historia->minimumHeight(), antes);
}

TEST(Zoom, LeavesTheFontAsItWasWhenTheProgramEnds) {
  const QFont antes = QApplication::font();
  {
    Zoom zoom;
    zoom.Larger();
    EXPECT_NE(QApplication::font(), antes);
  }
  EXPECT_EQ(QApplication::font(), antes);
}

}  // namespace
}  // namespace tasca::test
