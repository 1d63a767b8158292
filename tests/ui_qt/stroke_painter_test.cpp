// Painting a drawing where it is wanted.
#include "ui/qt/stroke_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "tests/ui_qt/colours.h"

namespace tasca::test {
namespace {

constexpr QSize Unidades{CardUnitsWide, CardUnitsHigh};

QImage Blank() {
  QImage pantalla{300, 400, QImage::Format_ARGB32_Premultiplied};
  pantalla.fill(Qt::transparent);
  return pantalla;
}

TEST(PaintDrawing, FillsTheRectangle) {
  QImage pantalla = Blank();
  QPainter pintor{&pantalla};
  PaintDrawing(pintor, CardDrawings[1], Unidades, {50, 60, 100, 154}, false);
  pintor.end();
  EXPECT_TRUE(Near(pantalla.pixelColor(50 + 3, 60 + 77), Paper));  // inside its left edge
  EXPECT_TRUE(Near(pantalla.pixelColor(50 + 96, 60 + 77), Paper));
  for (const QPoint fuera : {QPoint{48, 137}, {151, 137}, {100, 58}, {100, 215}}) {
    EXPECT_EQ(pantalla.pixelColor(fuera).alpha(), 0) << fuera.x() << ", " << fuera.y();
  }
}

TEST(PaintDrawing, LeavesThePainterAsItWas) {
  QImage pantalla = Blank();
  QPainter pintor{&pantalla};
  pintor.translate(3, 4);
  pintor.setPen(Qt::red);
  pintor.setBrush(Qt::green);
  const QTransform antes = pintor.transform();
  PaintDrawing(pintor, CardDrawings[38], Unidades, {50, 60, 100, 154}, false);
  EXPECT_EQ(pintor.transform(), antes);
  EXPECT_EQ(pintor.pen(), QPen{Qt::red});
  EXPECT_EQ(pintor.brush(), QBrush{Qt::green});
  EXPECT_FALSE(pintor.testRenderHint(QPainter::Antialiasing));
}

TEST(PaintDrawing, TakesTheColoursOfTheTheme) {
  for (const bool oscuro : {false, true}) {
    QImage pantalla = Blank();
    QPainter pintor{&pantalla};
    PaintDrawing(pintor, CardDrawings[1], Unidades, {0, 0, 200, 308}, oscuro);
    pintor.end();
    const QColor papel = oscuro ? QColor{0xED, 0xE5, 0xD2} : Paper;
    EXPECT_TRUE(Near(pantalla.pixelColor(20, 154), papel)) << oscuro;
  }
}

}  // namespace
}  // namespace tasca::test
