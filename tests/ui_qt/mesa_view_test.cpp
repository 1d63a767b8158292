// The drawn table in the main window: what it paints, when, and what a click does.
#include "ui/qt/mesa_view.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPaintEvent>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <utility>

#include "tests/support/tables.h"
#include "tests/ui_mesa/scenes.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/mesa_painter.h"

namespace tasca::test {
namespace {

// Notes what is painted.
class PaintedRegion : public QObject {
 public:
  explicit PaintedRegion(QWidget& control) { control.installEventFilter(this); }

  bool eventFilter(QObject* /*objeto*/, QEvent* suceso) override {
    if (suceso->type() == QEvent::Paint) pintada_ += dynamic_cast<QPaintEvent*>(suceso)->region();
    return false;
  }
  QRegion Take() { return std::exchange(pintada_, {}); }

 private:
  QRegion pintada_;
};

class MesaInWindow : public testing::Test {
 protected:
  MesaInWindow() {
    vista_.resize(840, 740);
    vista_.ShowScene(EscenaInicial());
    vista_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&vista_));
    QCoreApplication::processEvents();
  }

  QColor At(const Rect& r) {
    return vista_.grab().toImage().pixelColor(qRound(r.CentroX()), qRound(r.CentroY()));
  }

  void Click(const Rect& r, Qt::MouseButton boton = Qt::LeftButton) {
    QTest::mouseClick(&vista_, boton, {}, ToQt(r).center().toPoint());
  }

  int pulsadas_ = 0;
  MesaView vista_{nullptr, [this] { ++pulsadas_; }};
};

TEST_F(MesaInWindow, PaintsOnlyWhatHasChanged) {
  PaintedRegion pintada{vista_};
  Escena escena = EscenaInicial();
  vista_.ShowScene(escena);
  QCoreApplication::processEvents();
  EXPECT_TRUE(pintada.Take().isEmpty()) << "nothing has changed";
  escena.Pizarra[0].Estado = EstadoLance::EnPaso;
  vista_.ShowScene(escena);
  QCoreApplication::processEvents();
  const QRegion solo = pintada.Take();
  EXPECT_TRUE(solo.intersects(ToQt(vista_.Sheet().Pizarra).toRect()));
  EXPECT_FALSE(solo.intersects(ToQt(Dentro(vista_.Sheet().Mano, 30)).toRect()));
  EXPECT_FALSE(solo.contains(QPoint{5, 5}));
}

TEST_F(MesaInWindow, PaintsTheSameInPartsAsAtOnce) {
  Escena escena = EscenaInicial();
  escena.Asientos[1].Bocadillo = u"Envido";
  vista_.ShowScene(escena);
  escena.Asientos[1].Bocadillo.clear();
  escena.Asientos[4].Bocadillo = u"No quiero, que no me llega";
  escena.Asientos[4].HaHabladoElUltimo = true;
  escena.Asientos[1].Naipes[3] = {};
  escena.Toca = Turno::Jugador;
  vista_.ShowScene(escena);
  QCoreApplication::processEvents();
  MesaView otra{nullptr, [] {}};
  otra.resize(vista_.size());
  otra.ShowScene(escena);
  EXPECT_EQ(vista_.grab().toImage(), otra.grab().toImage());
}

TEST_F(MesaInWindow, TakesAClickOnTheKeyCapForEnter) {
  const Rect enter = vista_.Sheet().Enter;
  Click(enter);
  EXPECT_EQ(pulsadas_, 1);
  Click(enter, Qt::RightButton);
  Click(vista_.Sheet().Mano);
  EXPECT_EQ(pulsadas_, 1);
  Escena escena = EscenaInicial();
  escena.Toca = Turno::Jugador;
  vista_.ShowScene(escena);
  Click(enter);
  EXPECT_EQ(pulsadas_, 1) << "nothing waits for Enter";
}

TEST_F(MesaInWindow, TakesBackAClickThatLeavesTheKeyCap) {
  const QPoint enter = ToQt(vista_.Sheet().Enter).center().toPoint();
  const QPoint fuera = ToQt(vista_.Sheet().Mano).center().toPoint();
  QTest::mousePress(&vista_, Qt::LeftButton, {}, enter);
  QTest::mouseRelease(&vista_, Qt::LeftButton, {}, fuera);
  QTest::mousePress(&vista_, Qt::LeftButton, {}, fuera);
  QTest::mouseRelease(&vista_, Qt::LeftButton, {}, enter);
  EXPECT_EQ(pulsadas_, 0);
}

TEST_F(MesaInWindow, PointsAtTheKeyCapWithAHand) {
  QTest::mouseMove(&vista_, ToQt(vista_.Sheet().Enter).center().toPoint());
  EXPECT_TRUE(QTest::qWaitFor([&] { return vista_.cursor().shape() == Qt::PointingHandCursor; }));
  QTest::mouseMove(&vista_, ToQt(vista_.Sheet().Mano).center().toPoint());
  EXPECT_TRUE(QTest::qWaitFor([&] { return vista_.cursor().shape() == Qt::ArrowCursor; }));
}

TEST_F(MesaInWindow, NeverTakesTheFocus) {
  EXPECT_EQ(vista_.focusPolicy(), Qt::NoFocus);
  Click(vista_.Sheet().Enter);
  EXPECT_FALSE(vista_.hasFocus());
}

TEST_F(MesaInWindow, FollowsTheDesktopsColours) {
  const Rect esquina{vista_.Sheet().Pano.X + 60, vista_.Sheet().Pano.Abajo() - 90, 1, 1};
  EXPECT_EQ(At(esquina), QColor{0x2B6650});
  QPalette oscura;
  oscura.setColor(QPalette::Window, QColor{0x2A2E32});
  oscura.setColor(QPalette::WindowText, QColor{0xFCFCFC});
  vista_.setPalette(oscura);
  EXPECT_EQ(At(esquina), QColor{0x1B4737});
  oscura.setColor(QPalette::Window, Qt::black);
  oscura.setColor(QPalette::WindowText, Qt::white);
  vista_.setPalette(oscura);
  EXPECT_EQ(At(esquina), QColor{Qt::black}) << "high contrast";
}

TEST_F(MesaInWindow, GrowsWithTheLetters) {
  const double antes = vista_.Sheet().Letra;
  QFont grande = vista_.font();
  grande.setPointSizeF(1.5 * grande.pointSizeF());
  vista_.setFont(grande);
  EXPECT_GT(vista_.Sheet().Letra, 1.3 * antes);
}

double Channel(double parte) {
  return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
}

double Contrast(const QColor& uno, const QColor& otro) {
  const auto luz = [](const QColor& c) {
    return 0.2126 * Channel(c.redF()) + 0.7152 * Channel(c.greenF()) + 0.0722 * Channel(c.blueF());
  };
  const double a = luz(uno);
  const double b = luz(otro);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QPalette PaletteOf(QRgb ventana, QRgb texto) {
  QPalette paleta;
  paleta.setColor(QPalette::Window, QColor{ventana});
  paleta.setColor(QPalette::WindowText, QColor{texto});
  return paleta;
}

TEST(ColorsFor, LetsEveryTextBeRead) {
  for (const QPalette& paleta : {PaletteOf(0xEFF0F1, 0x232629), PaletteOf(0x2A2E32, 0xFCFCFC),
                                 PaletteOf(0x000000, 0xFFFFFF), PaletteOf(0xFFFFFF, 0x000000)}) {
    const MesaColors c = ColorsFor(paleta);
    const std::string tema = Utf8(paleta.color(QPalette::Window).name());
    for (const auto& [texto, fondo] : {std::pair{c.PlacaTexto, c.Placa},
                                       {c.Tiza, c.Pizarra},
                                       {c.TizaTenue, c.Pizarra},
                                       {c.Si, c.PanoOscuro},
                                       {c.No, c.PanoOscuro},
                                       {c.PanoTexto, c.Pano},
                                       {c.Tinta, c.Marca},
                                       {c.AmarracoTexto, c.Amarraco},
                                       {QColor{Qt::white}, c.Ordago},
                                       {c.TextoTenue, paleta.color(QPalette::Window)}}) {
      EXPECT_GE(Contrast(texto, fondo), 4.5) << tema << Utf8(texto.name()) << Utf8(fondo.name());
    }
    for (const auto& [signo, fondo] : {std::pair{c.Nuestra, c.Placa},
                                       {c.Suya, c.Placa},
                                       {c.PizarraNuestra, c.Pizarra},
                                       {c.PizarraSuya, c.Pizarra},
                                       {c.Marca, c.Pizarra},
                                       {c.PanoLinea, c.Pano},
                                       {c.Nuestra, paleta.color(QPalette::Window)},
                                       {c.Suya, paleta.color(QPalette::Window)}}) {
      EXPECT_GE(Contrast(signo, fondo), 3.0) << tema << Utf8(signo.name()) << Utf8(fondo.name());
    }
  }
}

}  // namespace
}  // namespace tasca::test
