// The sounds of the program with windows.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTest>
#include <utility>

#include "tests/ui_loudspeaker/recording.h"
#include "tests/ui_loudspeaker/stand_in.h"
#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/program.h"

namespace tasca::test {
namespace {

using Oidos = std::vector<std::string>;

// A player who refuses mus, accepts every default with Enter and plays one short match.
class ProgramWithSound : public testing::Test {
 protected:
  ProgramWithSound() { SetTable(carpeta_, "1\r\n1\r\n1\r\n"); }

  int Play() {
    Program programa{carpeta_.Path()};
    bool abierto = false;
    return PlayUntilEnd([&] {
      if (!std::exchange(abierto, true)) return programa.OpenDlgInicio();
      TakeTurn();
    });
  }

  void TakeTurn() {
    if (QWidget* const caja = QApplication::activeModalWidget()) {
      if (TakesKeys(caja)) enLaCaja_(caja);
      return;
    }
    if (QWidget* const dlgInicio = VisibleWindow("DlgInicio"))
      return Press(dlgInicio, Qt::Key_Return);
    if (QWidget* const form1 = VisibleWindow("Form1")) enLaMesa_(form1);
  }

  static void Answer(QWidget* caja) {
    const auto* const mensaje = qobject_cast<QMessageBox*>(caja);
    const QString pregunta = mensaje != nullptr ? mensaje->text() + caja->windowTitle() : QString{};
    const bool no = pregunta.contains(QStringLiteral("¿mus?")) ||
                    pregunta.contains(QStringLiteral("¿Desea jugar otra partida?"));
    Press(caja, no ? Qt::Key_N : Qt::Key_Return);
  }

  // Whether the shuffle and the deal have been recorded completely.
  bool HasDealt() const {
    return HasRecorded(carpeta_.Recording(), {"Son_BarajaCartas.mp3", "Son_ReparteCartas.mp3"});
  }
  Oidos Recorded() const { return Described(Listen(carpeta_.Recording())); }

  SoundFolder carpeta_;
  std::function<void(QWidget*)> enLaCaja_ = Answer;
  std::function<void(QWidget*)> enLaMesa_ = [](QWidget* ventana) {
    Press(ventana, Qt::Key_Return);
  };
};

const Oidos Comienzo{"Son_BarajaCartas.mp3 0.0 0.0", "Son_ReparteCartas.mp3 0.0 0.0"};

TEST_F(ProgramWithSound, PlaysAMatchToTheEnd) { EXPECT_EQ(Play(), 0); }

TEST_F(ProgramWithSound, PlaysAMatchToTheEndWithoutADevice) {
  TakeLoudspeakerAway();
  EXPECT_EQ(Play(), 0);
}

TEST_F(ProgramWithSound, PlaysAMatchToTheEndWithoutItsFiles) {
  for (const char* const archivo : {"Son_BarajaCartas.mp3", "Son_ReparteCartas.mp3",
                                    "Son_DaUnaCarta.wav", "Son_aplauso.wav", "tasca-sound"}) {
    std::filesystem::remove(carpeta_.Path() / archivo);
  }
  EXPECT_EQ(Play(), 0);
}

TEST_F(ProgramWithSound, PlaysTheShuffleAndTheDealWithoutInput) {
  enLaMesa_ = [this](QWidget* ventana) {
    if (HasDealt()) ventana->close();
  };
  EXPECT_EQ(Play(), 0);
  EXPECT_EQ(Recorded(), Comienzo);
}

TEST_F(ProgramWithSound, PlaysTheDealAfterTheShuffleWhileABoxIsOpen) {
  enLaCaja_ = [this](QWidget*) {
    if (HasDealt()) QCoreApplication::exit(0);
  };
  EXPECT_EQ(Play(), 0);
  EXPECT_EQ(Recorded(), Comienzo);
}

TEST_F(ProgramWithSound, IsSilentAfterF9) {
  enLaMesa_ = [this](QWidget* ventana) {
    const bool conSonido = Control<QAction>(ventana, "Sonido")->isChecked();
    if (conSonido && !HasDealt()) return;
    if (conSonido) Press(ventana, Qt::Key_F9);
    Press(ventana, Qt::Key_Return);
  };
  EXPECT_EQ(Play(), 0);
  EXPECT_EQ(Recorded(), Comienzo);
}

TEST_F(ProgramWithSound, KeepsTheSoundSettingForTheNextTable) {
  int inicios = 0;
  std::vector<bool> conSonido;
  enLaMesa_ = [&](QWidget* ventana) {
    if (inicios != 0) {
      conSonido.push_back(Control<QAction>(ventana, "Sonido")->isChecked());
      return static_cast<void>(ventana->close());
    }
    if (Control<QAction>(ventana, "Sonido")->isChecked()) Press(ventana, Qt::Key_F9);
    Press(ventana, Qt::Key_Return);
  };
  enLaCaja_ = [&inicios](QWidget* caja) {
    const auto* const mensaje = qobject_cast<QMessageBox*>(caja);
    if (mensaje == nullptr || !mensaje->text().startsWith(QStringLiteral("¿Desea"))) {
      return Answer(caja);
    }
    inicios += mensaje->text().contains(QStringLiteral("cambiar")) ? 1 : 0;
    Press(caja, Qt::Key_S);
  };
  EXPECT_EQ(Play(), 0);
  EXPECT_EQ(conSonido, std::vector<bool>{false});
}

// The stand-in never reports the end of a sound, so that only the end of the main window stops one.
TEST_F(ProgramWithSound, StopsTheSoundOfTheOldTable) {
  StandInThatRecords(carpeta_);
  std::string ordenes;
  bool hayCambio = false;
  enLaCaja_ = [&hayCambio](QWidget* caja) {
    const auto* const mensaje = qobject_cast<QMessageBox*>(caja);
    const QString texto = mensaje != nullptr ? mensaje->text() : QString{};
    if (!texto.startsWith(QStringLiteral("¿Desea"))) return Answer(caja);
    hayCambio = hayCambio || texto.contains(QStringLiteral("cambiar"));
    Press(caja, Qt::Key_S);
  };
  enLaMesa_ = [&](QWidget* ventana) {
    if (!hayCambio) return Press(ventana, Qt::Key_Return);
    if (ShufflesIn(ordenes = RecordedOrders(carpeta_)) == 2) ventana->close();
  };
  EXPECT_EQ(Play(), 0);
  EXPECT_TRUE(StopsBeforeTheLastShuffle(ordenes)) << ordenes;
}

}  // namespace
}  // namespace tasca::test
