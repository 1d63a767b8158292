// Movements on the drawn table: when they run, and that nothing waits for them.
#include "ui/qt/motion.h"

#include <gtest/gtest.h>

#include <QPaintEvent>
#include <QProxyStyle>
#include <QTest>

#include "tests/ui_mesa/scenes.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/mesa_view.h"

namespace tasca::test {
namespace {

class StyleWithMovements : public QProxyStyle {
 public:
  int styleHint(StyleHint cual, const QStyleOption* opcion, const QWidget* control,
                QStyleHintReturn* devuelto) const override {
    if (cual == SH_Widget_Animation_Duration) return 200;
    return QProxyStyle::styleHint(cual, opcion, control, devuelto);
  }
};

// Counts the paint events.
class Frames : public QObject {
 public:
  explicit Frames(QWidget& control) { control.installEventFilter(this); }

  bool eventFilter(QObject* /*objeto*/, QEvent* suceso) override {
    if (suceso->type() == QEvent::Paint) ++Painted;
    return false;
  }

  int Painted = 0;
};

Escena Repartida(int carta) {
  Escena escena = EscenaInicial();
  escena.Asientos[AsientoHumano].Naipes[1].Carta = carta;
  return escena;
}

class MovingMesa : public testing::Test {
 protected:
  MovingMesa() {
    vista_.setStyle(&estilo_);
    vista_.resize(840, 740);
    vista_.ShowScene(EscenaInicial());
    vista_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&vista_));
    QCoreApplication::processEvents();
  }

  // The card that the player gets, and the picture once nothing moves.
  QImage Exchange(int carta) {
    vista_.ShowScene(Repartida(carta));
    return Still();
  }
  QImage Still() {
    EXPECT_TRUE(QTest::qWaitFor([&] { return !vista_.Moves(); }, 10'000));
    return vista_.grab().toImage();
  }

  StyleWithMovements estilo_;
  MesaView vista_{nullptr, [] {}};
};

TEST_F(MovingMesa, ACardSlidesAndThenLiesStill) {
  Frames fotogramas{vista_};
  vista_.ShowScene(Repartida(40));
  EXPECT_TRUE(vista_.Moves());
  const QImage alPrincipio = vista_.grab().toImage();
  const QImage alFinal = Still();
  EXPECT_NE(alPrincipio, alFinal);
  EXPECT_GE(fotogramas.Painted, 2);
}

TEST_F(MovingMesa, TheLastFrameIsThePictureWithoutMovements) {
  const QImage movida = Exchange(40);
  vista_.SetMotion(false);
  vista_.ShowScene(EscenaInicial());
  vista_.ShowScene(Repartida(40));
  EXPECT_EQ(movida, vista_.grab().toImage());
}

TEST_F(MovingMesa, TheNextSceneDoesNotWait) {
  vista_.ShowScene(Repartida(40));
  ASSERT_TRUE(vista_.Moves());
  Escena pregunta = Repartida(40);
  pregunta.Toca = Turno::Jugador;
  vista_.ShowScene(pregunta);
  EXPECT_FALSE(vista_.Moves()) << "under a box nothing moves";
}

TEST_F(MovingMesa, AResizeJumpsToTheEnd) {
  vista_.ShowScene(Repartida(40));
  ASSERT_TRUE(vista_.Moves());
  vista_.resize(900, 740);
  EXPECT_FALSE(vista_.Moves());
}

TEST_F(MovingMesa, NothingMovesIfThePlayerDoesNotWantIt) {
  vista_.SetMotion(false);
  vista_.ShowScene(Repartida(40));
  EXPECT_FALSE(vista_.Moves());
}

TEST_F(MovingMesa, NothingMovesOnADesktopWithoutAnimations) {
  vista_.setStyle(nullptr);  // the application's, in which these tests switch them off
  vista_.ShowScene(Repartida(40));
  EXPECT_FALSE(vista_.Moves());
}

TEST_F(MovingMesa, NothingMovesWhileTheWindowIsHidden) {
  vista_.hide();
  vista_.ShowScene(Repartida(40));
  EXPECT_FALSE(vista_.Moves());
}

}  // namespace
}  // namespace tasca::test
