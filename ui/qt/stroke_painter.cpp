// The drawings' painter.
#include "ui/qt/stroke_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

namespace tasca {
namespace {

using Palette = std::span<const std::uint32_t>;

QPainterPath PathOf(const Stroke& trazo) {
  std::size_t leida = trazo.FirstCoordinate;
  const auto coordenada = [&leida] { return PathCoordinates[leida++] / double{PartsOfUnit}; };
  const auto punto = [&coordenada] {
    const double x = coordenada();
    return QPointF{x, coordenada()};
  };
  QPainterPath camino;
  for (const char orden : PathOrders.subspan(trazo.FirstOrder, trazo.Orders)) {
    if (orden == 'M') {
      camino.moveTo(punto());
    } else if (orden == 'L') {
      camino.lineTo(punto());
    } else if (orden == 'C') {
      const QPointF primero = punto();
      const QPointF segundo = punto();
      camino.cubicTo(primero, segundo, punto());
    } else {
      camino.closeSubpath();
    }
  }
  return camino;
}

QColor ColourOf(Palette colores, std::uint8_t numero, std::uint8_t opacidad) {
  QColor color = QColor::fromRgb(colores[numero]);
  color.setAlphaF(static_cast<float>(opacidad) / 100);
  return color;
}

void PaintStroke(QPainter& pintor, const Stroke& trazo, Qt::PenCapStyle extremos, Palette colores) {
  QBrush relleno{Qt::NoBrush};
  if (trazo.Fill != 0) relleno = ColourOf(colores, trazo.Fill, trazo.Opacity);
  QPen linea{Qt::NoPen};
  if (trazo.Line != 0) {
    linea = QPen{ColourOf(colores, trazo.Line, trazo.Opacity), trazo.Width / 100.0, Qt::SolidLine,
                 extremos, Qt::RoundJoin};
  }
  pintor.setBrush(relleno);
  pintor.setPen(linea);
  pintor.drawPath(PathOf(trazo));
}

QTransform TransformOf(const Piece& pieza) {
  const auto& m = pieza.Matrix;
  return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

// NOLINTNEXTLINE(misc-no-recursion): a symbol holds only symbols before it.
void PaintPieces(QPainter& pintor, const Drawing& dibujo, Palette colores) {
  const Qt::PenCapStyle extremos = dibujo.FlatEnds ? Qt::FlatCap : Qt::RoundCap;
  for (const Piece& pieza : Pieces.subspan(dibujo.FirstPiece, dibujo.Pieces)) {
    if (pieza.Symbol < 0) {
      PaintStroke(pintor, Strokes[pieza.Index], extremos, colores);
      continue;
    }
    const QTransform antes = pintor.transform();
    pintor.setTransform(TransformOf(pieza), true);
    PaintPieces(pintor, Symbols[static_cast<std::size_t>(pieza.Symbol)], colores);
    pintor.setTransform(antes);
  }
}

}  // namespace

void PaintDrawing(QPainter& pintor, const Drawing& dibujo, QSizeF unidades, const QRectF& donde,
                  bool oscuro) {
  pintor.save();
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.translate(donde.topLeft());
  pintor.scale(donde.width() / unidades.width(), donde.height() / unidades.height());
  PaintPieces(pintor, dibujo, oscuro ? DarkPalette : LightPalette);
  pintor.restore();
}

}  // namespace tasca
