#pragma once
// The small drawings on the table: signs, stones, prizes, ornaments.
#include <QPainter>
#include <QRectF>

#include "ui/qt/mesa_colors.h"

namespace tasca {

// A disc for pareja 1, a lozenge for pareja 0, with their centre and half their width.
void DrawPareja(QPainter& p, QPointF centro, double radio, int pareja, const QColor& color);
// The open hand of the mano, so many pixels high.
void DrawHand(QPainter& p, QPointF centro, double alto, const MesaColors& c);
// A stone; `forma` tells one from the next.
void DrawStone(QPainter& p, const QRectF& donde, int forma, const MesaColors& c);
// A stone that stands for five.
void DrawFive(QPainter& p, const QRectF& donde, const MesaColors& c);
// A vaca that is won, or its outline.
void DrawCow(QPainter& p, const QRectF& donde, bool ganada, const MesaColors& c);
// A juego that is won: a stroke of chalk; or its box.
void DrawTally(QPainter& p, const QRectF& donde, bool ganado, const MesaColors& c);
// The arrow of the Enter key.
void DrawReturn(QPainter& p, QPointF centro, double alto, const QColor& color);
// A glass of wine and a dish of olives from above, and the star of the cloth.
void DrawGlass(QPainter& p, const QRectF& donde, const MesaColors& c);
void DrawOlives(QPainter& p, const QRectF& donde, const MesaColors& c);
void DrawStar(QPainter& p, const QRectF& donde, const MesaColors& c);

}  // namespace tasca
