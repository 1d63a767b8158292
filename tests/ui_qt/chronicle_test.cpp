// F6 in the windows and boxes of the game.
#include "ui/qt/chronicle.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <utility>

#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/program.h"

namespace tasca::test {
namespace {

// What the open chronicle shows; "" if it is not open.
std::string Told() {
  const QWidget* const ventana = VisibleWindow("Cronica");
  if (ventana == nullptr) return "";
  return Utf8(Control<QPlainTextEdit>(ventana, "TextoCronica")->toPlainText());
}

TEST(Chronicle, IsNotBuiltBeforeItIsAskedFor) {
  int leida = 0;
  Chronicle cronica{[&leida] {
    ++leida;
    return std::u16string{u"Grande\r\n"};
  }};
  QWidget ventana;
  ventana.show();
  cronica.Refresh();
  Repeat(&ventana, Qt::Key_F6);
  Press(&ventana, Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(cronica.Window(), nullptr);
  EXPECT_EQ(leida, 0);
  Press(&ventana, Qt::Key_F6);
  EXPECT_NE(cronica.Window(), nullptr);
  EXPECT_EQ(Told(), "Grande\n");
}

TEST(Chronicle, IsRefreshedOnlyWhileItIsOpen) {
  std::u16string texto = u"Grande\r\n";
  int leida = 0;
  Chronicle cronica{[&] {
    ++leida;
    return texto;
  }};
  cronica.Open();
  texto += u"Ana: Paso\r\n";
  cronica.Refresh();
  EXPECT_EQ(Told(), "Grande\nAna: Paso\n");
  VisibleWindow("Cronica")->close();
  const int hastaCerrar = leida;
  cronica.Refresh();
  EXPECT_EQ(leida, hastaCerrar);
}

// Opens the chronicle in the first box, and reads in it at the table what followed.
TEST(Chronicle, TellsTheMatchInABoxAndAtTheTable) {
  const TempFolder carpeta;
  SetTable(carpeta);
  Program programa{carpeta.Path()};
  bool abierto = false;
  int pasos = 0;
  std::string enLaCaja;
  std::string enLaMesa;
  EXPECT_EQ(PlayUntilEnd([&] {
              if (!std::exchange(abierto, true)) return programa.OpenDlgInicio();
              if (QWidget* const caja = QApplication::activeModalWidget()) {
                if (!enLaCaja.empty()) return Press(caja, Qt::Key_N);
                if (!TakesKeys(caja)) return;
                Press(caja, Qt::Key_F6);
                enLaCaja = Told();
                return;
              }
              if (QWidget* const inicio = VisibleWindow("DlgInicio"))
                return Press(inicio, Qt::Key_Return);
              QWidget* const form1 = VisibleWindow("Form1");
              if (form1 == nullptr) return;
              if (pasos++ == 0) return Press(form1, Qt::Key_Return);
              enLaMesa = Told();
              QCoreApplication::exit(0);
            }),
            0);
  EXPECT_TRUE(enLaCaja.starts_with("— Mano 1 —\n\nPartida de\n")) << enLaCaja;
  EXPECT_TRUE(enLaMesa.starts_with(enLaCaja)) << enLaMesa;
  EXPECT_NE(enLaMesa.find("Ana: ", enLaCaja.size()), std::string::npos) << enLaMesa;
}

}  // namespace
}  // namespace tasca::test
