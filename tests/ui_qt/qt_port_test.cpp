// The windows' port by itself: what needs no match.
#include "ui/qt/qt_port.h"

#include <gtest/gtest.h>

#include <QTime>

#include "base/endings.h"
#include "lances/dialog.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

TEST(QtPort, RemembersThatThePlayersAreToChangeUntilAsked) {
  QtPort port;
  EXPECT_FALSE(port.TakeChangePlayers());
  port.ChangePlayers();
  EXPECT_TRUE(port.TakeChangePlayers());
  EXPECT_FALSE(port.TakeChangePlayers());
}

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

TEST(QtPort, TakesSoundsWithoutALoudspeaker) {
  QtPort port;
  const Table t = MesaDePrueba();
  port.OpenSound(t, u"no_existe.wav");
  port.StopSound(t);
}

TEST(QtPort, GivesTheAnswerOfTheBiddingDialog) {
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

// A question that nobody has answered must not count as one that was.
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
  preguntar([&] { port.YesNoBox(t, {.Titulo = u"¿mus?", .Texto = u""}); });
  EXPECT_EQ(abandonos, 2);
}

}  // namespace
}  // namespace tasca::test
