// The drawn table in the main window: where it stands beside the texts, and boxes over it.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMenuBar>
#include <QTest>
#include <vector>

#include "cards/hand_text.h"
#include "table/dialog.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/dialog_form.h"
#include "ui/qt/form1.h"
#include "ui/qt/mesa_painter.h"
#include "ui/qt/run_box.h"

namespace tasca::test {
namespace {

Table MesaConTextos() {
  Table t = MesaDePrueba();
  MostrarManos(t, AsientoHumano);
  t.Text2 = u"Berta: paso\r\nDora: envido\r\n";
  t.Text3 = u"Piedras: 0 / 0;    juegos: 0 / 0;    Vacas: 0 / 0";
  return t;
}

class TableInForm1 : public testing::Test {
 protected:
  explicit TableInForm1() {
    ventana_.ShowTable(MesaConTextos(), Momento::Reposo);
    Resize(1280, 800);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  }

  void Resize(int ancho, int alto) {
    ventana_.resize(ancho, alto);
    ventana_.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana_.size() == QSize(ancho, alto); }));
    QCoreApplication::processEvents();
  }

  // So many letters of the system's font.
  void ResizeInLetters(int ancho, int alto) {
    const int letra = QFontInfo{ventana_.font()}.pixelSize();
    Resize(ancho * letra, alto * letra);
  }

  QWidget* Part(const char* nombre) { return Control<QWidget>(&ventana_, nombre); }
  MesaView* Picture() { return dynamic_cast<MesaView*>(Part("Mesa")); }
  QRect Place(const char* nombre) { return Part(nombre)->geometry(); }

  int enters_ = 0;
  std::vector<bool> mesas_;
  Form1 ventana_{{.Text1_KeyDown =
                      [this](Integer& tecla, Integer) {
                        if (tecla == 13) ++enters_;
                        tecla = 0;
                      },
                  .Sonido_Click = [](bool) {},
                  .Closed = [] {},
                  .Mesa_Click = [this](bool dibujada) { mesas_.push_back(dibujada); }}};
};

TEST_F(TableInForm1, StandsBesideTheTextsInAWideWindow) {
  ResizeInLetters(100, 60);
  ASSERT_TRUE(Part("Mesa")->isVisible());
  for (const char* const texto : {"Text1", "Text2", "Text3", "Marcador"}) {
    EXPECT_GT(Place(texto).left(), Place("Mesa").right()) << texto;
  }
}

TEST_F(TableInForm1, StandsAboveTheTextsInANarrowWindow) {
  ResizeInLetters(60, 80);
  ASSERT_TRUE(Part("Mesa")->isVisible());
  EXPECT_LT(Place("Text3").bottom(), Place("Mesa").top());
  for (const char* const texto : {"Text1", "Text2", "Marcador"}) {
    EXPECT_GT(Place(texto).top(), Place("Mesa").bottom()) << texto;
  }
}

TEST_F(TableInForm1, LeavesATinyWindowToTheTexts) {
  ResizeInLetters(46, 34);
  EXPECT_FALSE(Part("Mesa")->isVisible());
  EXPECT_FALSE(Part("Marcador")->isVisible());
  for (const char* const texto : {"Text1", "Text2", "Text3"}) EXPECT_TRUE(Part(texto)->isVisible());
}

TEST_F(TableInForm1, GoesAndComesByTheMenu) {
  auto* const mesa = Control<QAction>(&ventana_, "MesaDibujada");
  EXPECT_EQ(Utf8(mesa->text()), "&Mesa dibujada");
  EXPECT_TRUE(mesa->isChecked());
  mesa->trigger();
  EXPECT_FALSE(Part("Mesa")->isVisible());
  mesa->trigger();
  EXPECT_TRUE(Part("Mesa")->isVisible());
  EXPECT_EQ(mesas_, (std::vector<bool>{false, true}));
}

TEST_F(TableInForm1, KeepsTheTextsAndTheirOrder) {
  const Table t = MesaConTextos();
  EXPECT_EQ(Utf8(Control<QPlainTextEdit>(&ventana_, "Text1")->toPlainText()), Utf8(t.Text1));
  EXPECT_EQ(Utf8(Control<QLineEdit>(&ventana_, "Text3")->text()), Utf8(t.Text3));
  for (const char* const siguiente : {"Text2", "Text3", "Text1"}) {
    Press(&ventana_, Qt::Key_Tab);
    EXPECT_TRUE(Part(siguiente)->hasFocus()) << siguiente;
  }
}

TEST_F(TableInForm1, ShowsTheWholeScoreInANarrowColumnToo) {
  const auto* const texto3 = Control<QLineEdit>(&ventana_, "Text3");
  for (const int ancho : {75, 90, 130}) {
    ResizeInLetters(ancho, 60);
    EXPECT_LT(texto3->fontMetrics().horizontalAdvance(texto3->text()), texto3->width()) << ancho;
  }
  EXPECT_TRUE(texto3->font().bold()) << "where there is room";
}

TEST_F(TableInForm1, ShowsTheSceneOfTheMoment) {
  const Table t = MesaConTextos();
  for (const Momento momento : {Momento::Pregunta, Momento::Aviso, Momento::Reposo}) {
    ventana_.ShowTable(t, momento);
    EXPECT_EQ(Picture()->Scene(), EscenaDe(t, momento));
  }
}

TEST_F(TableInForm1, PlaysOnByAClickOnTheKeyCap) {
  Part("Text2")->setFocus();
  const QPoint enter = ToQt(Picture()->Sheet().Enter).center().toPoint();
  QTest::mouseClick(Picture(), Qt::LeftButton, {}, enter);
  EXPECT_EQ(enters_, 1);
  EXPECT_TRUE(Part("Text1")->hasFocus());
}

QRect InForm1(const QWidget& control, const Rect& r) {
  return ToQt(r).toAlignedRect().translated(control.mapTo(control.window(), QPoint{}));
}

class BoxOverTheTable : public TableInForm1 {
 protected:
  void TearDown() override { QApplication::setFont(deAntes_); }

  // The place in the window of a bidding dialog that is opened there.
  QRect PlaceOfABox(QSize tamano, int puntos) {
    QFont letra = deAntes_;
    letra.setPointSize(puntos);
    QApplication::setFont(letra);
    Resize(tamano.width(), tamano.height());
    ventana_.ShowTable(MesaConTextos(), Momento::Pregunta);
    Dialog dialogo;
    Form_Activate(dialogo);
    DialogForm caja{&ventana_, dialogo};
    QRect sitio;
    const BoxAnswerer jugador{[&](QWidget* abierta) {
      sitio = abierta->frameGeometry().translated(-ventana_.geometry().topLeft());
      Press(abierta, Qt::Key_Return);
    }};
    RunBox(caja, caja.focusWidget());
    return sitio;
  }

  void ExpectNothingCovered(const QRect& sitio, const std::string& donde) {
    EXPECT_FALSE(sitio.intersects(InForm1(*Picture(), Picture()->Sheet().Mano))) << donde;
    EXPECT_FALSE(sitio.intersects(InForm1(*Picture(), Picture()->Sheet().Pizarra))) << donde;
    const auto* const texto2 = dynamic_cast<Transcript*>(Part("Text2"));
    EXPECT_FALSE(sitio.intersects(texto2->LastLine().translated(texto2->pos()))) << donde;
  }

 private:
  QFont deAntes_ = QApplication::font();
};

TEST_F(BoxOverTheTable, LeavesTheCardsTheSlateAndTheLastLineInView) {
  int conDibujo = 0;
  for (const QSize tamano : {QSize{800, 600}, {1024, 768}, {1366, 768}, {1920, 1080}}) {
    for (int puntos = 9; puntos <= 24; puntos += 3) {
      const QRect sitio = PlaceOfABox(tamano, puntos);
      const std::string donde = std::to_string(tamano.width()) + " in " + std::to_string(puntos);
      const bool cabe = sitio.size().boundedTo(ventana_.size()) == sitio.size();
      EXPECT_EQ(ventana_.rect().contains(sitio), cabe) << donde;
      // Without the picture there is nothing but texts, and not always room between them.
      if (!Picture()->isVisible()) continue;
      ++conDibujo;
      ExpectNothingCovered(sitio, donde);
    }
  }
  // 9 points at 800 by 600, 9 and 12 in the next two windows, 9 to 18 in the last.
  EXPECT_EQ(conDibujo, 1 + 2 + 2 + 4);
}

TEST(Form1, OpensWithoutTheTableWhereItWasPutAway) {
  Form1 ventana{{}, {.Mesa = false}};
  EXPECT_FALSE(Control<QAction>(&ventana, "MesaDibujada")->isChecked());
  ventana.resize(1280, 800);
  ventana.show();
  EXPECT_FALSE(Control<QWidget>(&ventana, "Mesa")->isVisible());
}

}  // namespace
}  // namespace tasca::test
