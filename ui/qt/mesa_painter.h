#pragma once
// Paints the pieces that the layout has placed.
#include <QPainter>
#include <QRegion>

#include "ui/mesa/layout.h"
#include "ui/mesa/movement.h"
#include "ui/qt/mesa_colors.h"
#include "ui/qt/mesa_letters.h"
#include "ui/qt/mesa_pictures.h"

namespace tasca {

// The same rectangle, in device-independent pixels.
QRectF ToQt(const Rect& r);

// What a piece covers, with its shadow, its border and its point: what to repaint if it changes.
// `letra` is the size of the letters in pixels.
QRect CoveredBy(const Pieza& pieza, double letra);

// Paints on one device during one paint event. All that it is given must outlive it.
class MesaPainter {
 public:
  MesaPainter(QPainter& p, const MesaColors& colores, MesaLetters& letras, MesaPictures& dibujos);

  // Floor, wood and cloth of the region. Sets the painter's clip to the region.
  void PaintSurfaces(const Lamina& hoja, const QRegion& donde);
  // The pieces that touch the region, in their order.
  void PaintPieces(const std::vector<Pieza>& piezas, const QRegion& donde);
  // A piece on its way.
  void PaintMoving(const Fotograma& fotograma);

  // One function for each kind of piece, called by std::visit. The fonts, the pictures and the pens
  // that they leave behind are not restored.
  void operator()(const Adorno& adorno);
  void operator()(const Monton& monton);
  void operator()(const PizarraPuesta& pizarra);
  void operator()(const CeldaPuesta& celda);
  void operator()(const Ficha& ficha);
  void operator()(const CartaPuesta& carta);
  void operator()(const Placa& placa);
  void operator()(const Distintivo& distintivo);
  void operator()(const Bocadillo& bocadillo);
  void operator()(const TeclaPuesta& tecla);
  void operator()(const AvisoTurno& aviso);
  void operator()(const TextoPuesto& texto);
  void operator()(const SignoPareja& signo);
  void operator()(const Casilla& casilla);

 private:
  // All surfaces with their edges and joints, clipped by the caller.
  void PaintBorders(const Lamina& hoja);
  // The joints of the floor.
  void PaintTiles(const QRectF& suelo);
  // A rectangle with round corners.
  void Box(const QRectF& r, double radio, const QBrush& relleno, const QPen& linea);
  void BigBox(const QRectF& r, double radio, const QColor& relleno, const QPen& linea,
              const QRectF& hueco);
  void FillAround(const QRectF& r, const QRectF& hueco, const QColor& relleno);
  // One line of text. It may reach out of `r`: the layout has measured it.
  void Write(const QRectF& r, std::u16string_view texto, Letra letra, const QColor& color,
             int alineado = Qt::AlignCenter);
  void PaintStar(const QRectF& r);
  void PaintBack(const QRectF& r, bool girada);
  void Shade(const QRectF& r, double alto);
  void WriteState(const CeldaPuesta& celda, const QRectF& r, const QColor& color);

  QPainter& p_;
  const MesaColors& c_;
  MesaLetters& letras_;
  MesaPictures& dibujos_;
  double f_;  // the size of the letters in pixels, the unit of most lengths
  qreal dpr_;
};

}  // namespace tasca
