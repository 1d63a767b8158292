// The guard of one window: held keys do not answer there, and act as usual elsewhere.
#include "ui/qt/repeat_guard.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>

#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

// A window that counts the keys that reach it.
class Ventana : public QWidget {
 public:
  int Teclas = 0;

 protected:
  void keyPressEvent(QKeyEvent* suceso) override {
    ++Teclas;
    suceso->accept();
  }
};

TEST(RepeatGuard, GuardsItsWindowAlone) {
  Ventana guardada;
  Ventana otra;
  const RepeatGuard guarda{guardada};
  Repeat(&guardada, Qt::Key_Return);
  Repeat(&otra, Qt::Key_Return);
  EXPECT_EQ(guardada.Teclas, 0);
  EXPECT_EQ(otra.Teclas, 1);
  Press(&guardada, Qt::Key_Return);
  EXPECT_EQ(guardada.Teclas, 1);
}

}  // namespace
}  // namespace tasca::test
