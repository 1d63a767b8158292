// The port of the windows, without a match.
#include "ui/qt/qt_port.h"

#include <gtest/gtest.h>

#include <QTime>

#include "base/errors.h"
#include "table/dialog.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"
#include "tests/ui_loudspeaker/listener.h"
#include "tests/ui_loudspeaker/stand_in.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

TEST(QtPort, TellsTheTimeOfDay) {
  QtPort port;
  const QTime antes = QTime::currentTime();
  const TimeOfDay ahora = port.Now();
  const QTime hora{ahora.Hora, ahora.Minuto, ahora.Segundo};
  const QTime despues = QTime::currentTime();
  ASSERT_TRUE(hora.isValid());
  const bool desdeAntes = hora.addMSecs(999) >= antes;
  const bool hastaDespues = hora <= despues;
  const bool empezoOtroDia = despues < antes;
  EXPECT_TRUE(empezoOtroDia ? desdeAntes || hastaDespues : desdeAntes && hastaDespues)
      << Utf8(hora.toString());
}

// The folder does not contain tasca-sound.
TEST(QtPort, ReportsTheEndOfASoundWithoutALoudspeaker) {
  QtPort port;
  const TempFolder carpeta;
  Table t = MesaDePrueba();
  t.Carpeta = carpeta.Path();
  port.OpenSound(t, u"Son.wav");
  EXPECT_TRUE(WaitForEnd(port.Mp1()));
}

TEST(QtPort, PlaysASoundFromTheTablesFolderAndStopsIt) {
  QtPort port;
  const TempFolder carpeta;
  StandInThatRecords(carpeta);
  Table t = MesaDePrueba();
  t.Carpeta = carpeta.Path();
  t.Mp1 = {.Veces = 2, .Balance = -300, .Volumen = -500};
  port.OpenSound(t, u"Son.wav");
  port.StopSound(t);
  const std::string ordenes = "1 2 -300 -500 " + (carpeta.Path() / "Son.wav").string() + "2 0 0 0 ";
  EXPECT_TRUE(Eventually([&] { return RecordedOrders(carpeta).size() >= ordenes.size(); }));
  EXPECT_EQ(RecordedOrders(carpeta), ordenes);
}

TEST(QtPort, StopsTheSoundWhenTheStartWindowOpens) {
  QtPort port;
  const TempFolder carpeta;
  StandInThatRecords(carpeta);
  Table t = MesaDePrueba();
  t.Carpeta = carpeta.Path();
  port.OpenSound(t, u"Son.wav");
  port.SetStartWindow(nullptr);
  EXPECT_TRUE(Eventually([&] { return RecordedOrders(carpeta).ends_with("2 0 0 0 "); }));
}

TEST(QtPort, ReturnsTheAnswerOfTheBiddingDialog) {
  QtPort port;
  Dialog dialogo;
  Form_Activate(dialogo);
  const BoxAnswerer jugador{[](QWidget* ventana) {
    Press(ventana, Qt::Key_Right);
    Press(ventana, Qt::Key_Return);
  }};
  port.ShowDialog(MesaDePrueba(), dialogo);
  EXPECT_EQ(dialogo.Resultado, 1);
  EXPECT_FALSE(dialogo.Visible);
}

// An unanswered question must not return an answer.
TEST(QtPort, LeavesTheTableWhenTheProgramEndsDuringAQuestion) {
  QtPort port;
  const Table t = MesaDePrueba();
  const BoxAnswerer fin{[](QWidget*) { QCoreApplication::exit(0); }};
  int abandonos = 0;
  const auto preguntar = [&](const std::function<void()>& pregunta) {
    RunInEventLoop([&] {
      try {
        pregunta();
      } catch (const LeaveProgram&) {
        ++abandonos;
      }
    });
  };
  Dialog dialogo;
  Form_Activate(dialogo);
  preguntar([&] { port.ShowDialog(t, dialogo); });
  preguntar([&] { port.YesNoBox(t, Pregunta::Mus, {.Titulo = u"¿mus?", .Texto = u""}); });
  EXPECT_EQ(abandonos, 2);
}

}  // namespace
}  // namespace tasca::test
