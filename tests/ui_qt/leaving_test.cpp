// Leaving the game by Ctrl+Alt+Q and by the menu, wherever the player is.
#include <gtest/gtest.h>

#include <QAction>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <filesystem>
#include <functional>
#include <utility>

#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/key_everywhere.h"
#include "ui/qt/program.h"

namespace tasca::test {
namespace {

void PressLeave(QWidget* ventana) {
  Press(ventana, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
}

using Place = std::function<bool(QWidget* ventana)>;

// A player who goes on by Enter until something is open, and leaves there.
class LeavingProgram : public testing::Test {
 protected:
  LeavingProgram() { SetTable(carpeta_); }

  // Leaves in the first window or box for which `aqui` is true. Returns the exit status.
  int LeaveAt(const Place& aqui, const std::function<void(QWidget*)>& salir = PressLeave) {
    Program programa{carpeta_.Path(), estado_.Path()};
    bool abierto = false;
    return PlayUntilEnd([&] {
      if (!std::exchange(abierto, true)) return programa.Open();
      QWidget* const ventana = Asked();
      if (ventana == nullptr) return;
      EXPECT_FALSE(dejado_) << "open after leaving: " << Utf8(ventana->objectName());
      if (!aqui(ventana)) return Press(ventana, KeyFor(ventana));
      dejado_ = true;
      if (HayPartida()) partida_ = estado_.Read("partida");
      textos_ = TextsOf(ventana);
      salir(ventana);
    });
  }
  // In a box: the step before it was saved before the step began that asks.
  bool MatchIsAsItWas() { return !partida_.empty() && estado_.Read("partida") == partida_; }

  // At the table, where the last step may still be being saved: goes on with the match.
  bool TableIsAsItWas() {
    const std::string antes = std::exchange(textos_, "");
    dejado_ = false;
    EXPECT_EQ(LeaveAt([](const QWidget* ventana) {
                return ventana->objectName() == QLatin1String{"Form1"};
              }),
              0);
    return !antes.empty() && textos_ == antes;
  }
  bool HayPartida() const { return std::filesystem::exists(estado_.Path() / "partida"); }

  TempFolder carpeta_;
  TempFolder estado_;
  Qt::Key alMus_ = Qt::Key_N;
  bool dejado_ = false;

 private:
  static std::string TextsOf(const QWidget* ventana) {
    std::string textos;
    for (const auto* const texto : ventana->findChildren<QPlainTextEdit*>()) {
      textos += Utf8(texto->toPlainText()) + "|";
    }
    return textos;
  }
  // The box that takes keys, or else the window.
  static QWidget* Asked() {
    if (QWidget* const caja = QApplication::activeModalWidget()) {
      return TakesKeys(caja) ? caja : nullptr;
    }
    if (QWidget* const dlgInicio = VisibleWindow("DlgInicio")) return dlgInicio;
    return VisibleWindow("Form1");
  }
  Qt::Key KeyFor(const QWidget* ventana) const {
    return ventana->windowTitle() == QStringLiteral("¿mus?") ? alMus_ : Qt::Key_Return;
  }

  std::string partida_;  // as it was kept before leaving
  std::string textos_;   // of the window that was left
};

Place Named(const char* nombre) {
  return
      [nombre](const QWidget* ventana) { return ventana->objectName() == QLatin1String{nombre}; };
}

TEST_F(LeavingProgram, EndsInTheMusQuestionAndKeepsTheMatch) {
  EXPECT_EQ(LeaveAt(Named("YesNoBox")), 0);
  EXPECT_TRUE(dejado_);
  EXPECT_TRUE(MatchIsAsItWas());
}

TEST_F(LeavingProgram, EndsInTheBiddingDialogAndKeepsTheMatch) {
  EXPECT_EQ(LeaveAt(Named("Dialog")), 0);
  EXPECT_TRUE(dejado_);
  EXPECT_TRUE(MatchIsAsItWas());
}

TEST_F(LeavingProgram, EndsInAnInputBoxAndKeepsTheMatch) {
  alMus_ = Qt::Key_S;
  EXPECT_EQ(LeaveAt(Named("InputBox")), 0);
  EXPECT_TRUE(dejado_);
  EXPECT_TRUE(MatchIsAsItWas());
}

TEST_F(LeavingProgram, EndsAtTheTableWithoutAbandoningTheHand) {
  EXPECT_EQ(LeaveAt([](const QWidget* ventana) {
              const auto* const dicho = ventana->findChild<QPlainTextEdit*>("Text2");
              return dicho != nullptr && dicho->toPlainText().contains(QStringLiteral("NMus"));
            }),
            0);
  EXPECT_TRUE(dejado_);
  EXPECT_TRUE(TableIsAsItWas());
}

TEST_F(LeavingProgram, EndsInTheStartUpDialog) {
  EXPECT_EQ(LeaveAt(Named("DlgInicio")), 0);
  EXPECT_TRUE(dejado_);
}

TEST_F(LeavingProgram, EndsByTheMenuAndKeepsTheMatch) {
  int pasos = 0;
  const auto tercera = [&pasos](const QWidget* ventana) {
    return ventana->objectName() == QLatin1String{"Form1"} && ++pasos == 3;
  };
  EXPECT_EQ(LeaveAt(tercera, [](QWidget* form1) { Control<QAction>(form1, "Salir")->trigger(); }),
            0);
  EXPECT_TRUE(dejado_);
  EXPECT_TRUE(TableIsAsItWas());
}

TEST_F(LeavingProgram, EndsInTheQuestionWhetherToGoOnAndKeepsTheMatch) {
  EXPECT_EQ(LeaveAt(Named("YesNoBox")), 0);
  dejado_ = false;
  const std::string antes = estado_.Read("partida");
  EXPECT_EQ(LeaveAt(Named("YesNoBox")), 0);
  EXPECT_FALSE(antes.empty());
  EXPECT_TRUE(estado_.Read("partida") == antes);
}

TEST(KeyEverywhere, IgnoresAHeldKeyAndOtherModifiers) {
  int salidas = 0;
  KeyEverywhere tecla{Qt::CTRL | Qt::ALT | Qt::Key_Q, [&salidas] { ++salidas; }};
  QWidget ventana;
  ventana.show();
  Repeat(&ventana, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
  for (const Qt::KeyboardModifiers con :
       {Qt::KeyboardModifiers{}, Qt::KeyboardModifiers{Qt::ControlModifier},
        Qt::KeyboardModifiers{Qt::AltModifier},
        Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier}) {
    Press(&ventana, Qt::Key_Q, con);
  }
  EXPECT_EQ(salidas, 0);
  PressLeave(&ventana);
  EXPECT_EQ(salidas, 1);
}

}  // namespace
}  // namespace tasca::test
