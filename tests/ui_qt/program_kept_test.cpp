// The program with windows: a match that is left, and goes on at the next start.
#include <gtest/gtest.h>

#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <filesystem>
#include <functional>
#include <utility>

#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/program.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

constexpr auto Oferta = "Hay una partida sin terminar. ¿Desea seguir con ella?";

// A player whose reactions to the windows and boxes are set by each test. Enter is the default.
class ProgramKeepsMatch : public testing::Test {
 protected:
  using Reaction = std::function<void(QWidget*)>;

  ProgramKeepsMatch() { SetTable(carpeta_); }

  // Runs the program to its end.
  int Run() {
    Program programa{carpeta_.Path(), estado_.Path()};
    programa_ = &programa;
    bool abierto = false;
    return PlayUntilEnd([&] {
      if (!std::exchange(abierto, true)) return programa.Open();
      TakeTurn();
    });
  }
  void TakeTurn() {
    if (QWidget* const caja = QApplication::activeModalWidget()) {
      if (!TakesKeys(caja)) return;
      if (const auto* const mensaje = qobject_cast<QMessageBox*>(caja)) {
        avisos_ += Utf8(mensaje->text()) + "|";
      }
      return enCaja_(caja);
    }
    if (QWidget* const dlgInicio = VisibleWindow("DlgInicio")) return alInicio_(dlgInicio);
    if (QWidget* const form1 = VisibleWindow("Form1")) return enLaMesa_(form1);
  }
  // Plays a step of the first hand, in which the player refuses mus, and closes the window.
  void PlayAStepAndClose() {
    enCaja_ = [](QWidget* caja) { Press(caja, Qt::Key_N); };
    enLaMesa_ = [this](QWidget* ventana) {
      if (Transcript(ventana).find("NMus") == std::string::npos) {
        return Press(ventana, Qt::Key_Return);
      }
      texts_ = Texts(ventana);
      ventana->close();
    };
    EXPECT_EQ(Run(), 0);
    avisos_.clear();
  }
  static std::string Transcript(const QWidget* ventana) {
    return Utf8(Control<QPlainTextEdit>(ventana, "Text2")->toPlainText());
  }
  static std::string Texts(const QWidget* ventana) {
    return Transcript(ventana) + "|" + Utf8(Control<QLineEdit>(ventana, "Text3")->text()) + "|" +
           Utf8(Control<QPlainTextEdit>(ventana, "Text1")->toPlainText());
  }
  bool HayPartida() const { return fs::exists(estado_.Path() / "partida"); }

  TempFolder carpeta_;
  TempFolder estado_;
  Program* programa_ = nullptr;  // while Run runs
  std::string avisos_;           // the texts of the boxes, each with "|"
  std::string texts_;            // of the table that was left
  Reaction enCaja_ = [](QWidget* caja) { Press(caja, Qt::Key_Return); };
  Reaction alInicio_ = [](QWidget* ventana) { Press(ventana, Qt::Key_Return); };
  Reaction enLaMesa_ = [](QWidget* ventana) { ventana->close(); };
};

TEST_F(ProgramKeepsMatch, OpensTheTableAsItWasLeft) {
  PlayAStepAndClose();
  EXPECT_TRUE(HayPartida());
  alInicio_ = [](QWidget*) { ADD_FAILURE() << "no start-up dialog"; };
  enCaja_ = [](QWidget* caja) { Press(caja, Qt::Key_Return); };
  std::string seguida;
  enLaMesa_ = [&seguida](QWidget* ventana) {
    seguida = Texts(ventana);
    ventana->close();
  };
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(avisos_, std::string{Oferta} + "|");
  EXPECT_EQ(seguida, texts_);
  EXPECT_TRUE(HayPartida());
}

TEST_F(ProgramKeepsMatch, OpensTheStartUpDialogAfterNo) {
  PlayAStepAndClose();
  enCaja_ = [](QWidget* caja) { Press(caja, Qt::Key_N); };
  int inicios = 0;
  alInicio_ = [&inicios](QWidget* ventana) {
    ++inicios;
    Press(ventana, Qt::Key_Escape);
  };
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(inicios, 1);
  EXPECT_FALSE(HayPartida());
}

TEST_F(ProgramKeepsMatch, IsLeftAloneIfTheDesktopSessionEndsAtTheQuestion) {
  PlayAStepAndClose();
  enCaja_ = [this](QWidget*) { programa_->AtSessionEnd().Comes(); };
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(HayPartida());
}

// An input box that closes with the program was not cancelled by the player: the step is not kept.
// Enter wants mus and passes, hand after hand, until everybody wants mus.
TEST_F(ProgramKeepsMatch, KeepsTheStepBeforeAnInputBoxThatTheDesktopSessionEnds) {
  std::string antes;
  enLaMesa_ = [](QWidget* ventana) { Press(ventana, Qt::Key_Return); };
  enCaja_ = [&](QWidget* caja) {
    if (qobject_cast<QInputDialog*>(caja) == nullptr) return Press(caja, Qt::Key_Return);
    antes = estado_.Read("partida");
    programa_->AtSessionEnd().Comes();
  };
  EXPECT_EQ(Run(), 0);
  EXPECT_FALSE(antes.empty());
  EXPECT_TRUE(estado_.Read("partida") == antes);
}

TEST_F(ProgramKeepsMatch, SaysThatADamagedMatchIsSetAside) {
  estado_.Write("partida", "no es una partida");
  alInicio_ = [](QWidget* ventana) { Press(ventana, Qt::Key_Escape); };
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(avisos_.rfind("La partida que se guardó está dañada", 0), 0U) << avisos_;
  EXPECT_EQ(estado_.Read("partida-apartada"), "no es una partida");
}

}  // namespace
}  // namespace tasca::test
