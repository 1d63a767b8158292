// A whole match without touching the keyboard.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialog>
#include <QTest>
#include <set>
#include <utility>

#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/mesa_painter.h"
#include "ui/qt/mesa_view.h"
#include "ui/qt/program.h"

namespace tasca::test {
namespace {

void Click(QWidget* control) { QTest::mouseClick(control, Qt::LeftButton); }

// Clicks the button with those words, if the window has it.
bool ClickButton(const QWidget* ventana, const char* texto) {
  for (auto* const boton : ventana->findChildren<QAbstractButton*>()) {
    if (!boton->isVisible() || !boton->isEnabled()) continue;
    if (boton->text().remove(QLatin1Char{'&'}) != QString::fromUtf8(texto)) continue;
    Click(boton);
    return true;
  }
  return false;
}

// Wants mus every other time and throws the second card; raises every third bet.
class MousePlayer {
 public:
  explicit MousePlayer(Program& programa) : programa_{programa} {}

  void TakeTurn() {
    if (!std::exchange(abierto_, true)) return programa_.OpenDlgInicio();
    if (QWidget* const caja = QApplication::activeModalWidget()) {
      if (TakesKeys(caja)) Answer(caja);
      return;
    }
    if (const QWidget* const inicio = VisibleWindow("DlgInicio")) {
      EXPECT_TRUE(ClickButton(inicio, "Aceptar"));
      return;
    }
    const QWidget* const form1 = VisibleWindow("Form1");
    if (form1 == nullptr) return;
    auto* const mesa = dynamic_cast<MesaView*>(Control<QWidget>(form1, "Mesa"));
    ASSERT_TRUE(mesa->isVisible());
    QTest::mouseClick(mesa, Qt::LeftButton, {}, ToQt(mesa->Sheet().Enter).center().toPoint());
  }

  std::set<std::string> cajas_;

 private:
  void Answer(QWidget* caja) {
    const std::string nombre = Utf8(caja->objectName());
    cajas_.insert(nombre);
    if (nombre == "Dialog") {
      const bool sube = ++envites_ % 3 == 1;
      if (sube && ClickButton(caja, "Envido Más")) return;
      EXPECT_TRUE(ClickButton(caja, "Paso"));
    } else if (nombre == "InputBox") {
      EXPECT_TRUE(ClickButton(caja, "2") || ClickButton(caja, "+")) << "a card, or a step";
      EXPECT_TRUE(ClickButton(caja, "Aceptar"));
    } else if (nombre == "YesNoBox") {
      const bool mus = caja->windowTitle() == QString::fromUtf8("¿mus?");
      EXPECT_TRUE(ClickButton(caja, mus && ++preguntas_ % 2 == 1 ? "Sí" : "No"));
    } else {
      EXPECT_TRUE(ClickButton(caja, "Aceptar"));
    }
  }

  Program& programa_;
  bool abierto_ = false;
  int envites_ = 0;
  int preguntas_ = 0;
};

TEST(ProgramByMouse, PlaysAMatchToItsEnd) {
  TempFolder carpeta;
  SetTable(carpeta, "5\r\n1\r\n1\r\n");
  Program programa{carpeta.Path()};
  MousePlayer jugador{programa};
  EXPECT_EQ(PlayUntilEnd([&jugador] { jugador.TakeTurn(); }), 0);
  EXPECT_TRUE(jugador.cajas_.contains("YesNoBox")) << "whether to play another match";
}

}  // namespace
}  // namespace tasca::test
