// Painting the icon.
#include "ui/qt/window_icon.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "ui/qt/stroke_painter.h"

namespace tasca {
namespace {

// A small drawing fits exactly its own number of pixels, and serves for fewer; the last serves for
// all others.
const IconDrawing& DrawingFor(int lado) {
  return *std::find_if(IconDrawings.begin(), IconDrawings.end() - 1,
                       [lado](const IconDrawing& dibujo) { return dibujo.Side >= lado; });
}

}  // namespace

QPixmap PaintIcon(int lado) {
  QPixmap icono{lado, lado};
  icono.fill(Qt::transparent);
  QPainter pintor{&icono};
  const IconDrawing& dibujo = DrawingFor(lado);
  PaintDrawing(pintor, dibujo.Picture, QSizeF(dibujo.Side, dibujo.Side), icono.rect(), false);
  return icono;
}

QIcon WindowIcon() {
  QIcon icono;
  // Every window, each message box too, sends all of these to the desktop: one of 256 pixels would
  // take it another millisecond.
  for (const int lado : {16, 32, 48, 64, 128}) icono.addPixmap(PaintIcon(lado));
  return icono;
}

}  // namespace tasca
