// A whole match without touching the keyboard.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialog>
#include <QTest>
#include <algorithm>
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
  const auto botones = ventana->findChildren<QAbstractButton*>();
  const auto boton = std::ranges::find_if(botones, [texto](const QAbstractButton* uno) {
    return uno->isVisible() && uno->isEnabled() &&
           uno->text().remove(QLatin1Char{'&'}) == QString::fromUtf8(texto);
  });
  if (boton == botones.end()) return false;
  Click(*boton);
  return true;
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
  void Answer(const QWidget* caja) {
    cajas_.insert(Utf8(caja->objectName()));
    EXPECT_TRUE(Answers(caja)) << "every button is there";
  }

  bool Answers(const QWidget* caja) {
    const std::string nombre = Utf8(caja->objectName());
    if (nombre == "Dialog") return Bids(caja);
    if (nombre == "InputBox") return FillsIn(caja);
    if (nombre == "YesNoBox") return SaysYesOrNo(caja);
    return ClickButton(caja, "Aceptar");
  }

  bool Bids(const QWidget* caja) {
    const bool sube = ++envites_ % 3 == 1;
    return (sube && ClickButton(caja, "Envido Más")) || ClickButton(caja, "Paso");
  }

  // The second card, or one stone more.
  static bool FillsIn(const QWidget* caja) {
    return (ClickButton(caja, "2") || ClickButton(caja, "+")) && ClickButton(caja, "Aceptar");
  }

  bool SaysYesOrNo(const QWidget* caja) {
    const bool mus = caja->windowTitle() == QString::fromUtf8("¿mus?");
    return ClickButton(caja, mus && ++preguntas_ % 2 == 1 ? "Sí" : "No");
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
