#pragma once
// Painting the drawings of ui/qt/deck_strokes.h.
#include <QRectF>

#include "ui/qt/deck_strokes.h"

class QPainter;

namespace tasca {

// Paints a drawing of so many units across and down, so that it fills `donde`. `oscuro`
// takes the colours of the dark theme.
void PaintDrawing(QPainter& pintor, const Drawing& dibujo, QSizeF unidades, const QRectF& donde,
                  bool oscuro);

}  // namespace tasca
