// Painting the cards, and keeping what has been painted.
#include "ui/qt/card_painter.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>

#include "ui/qt/stroke_painter.h"

namespace tasca {
namespace {

// In place of a card's number.
constexpr int Dorso = 0;
constexpr int DorsoGirado = -1;

// Painted in device pixels: the ratio is set only afterwards.
QPixmap PaintCard(int carta, int alto, qreal dpr, bool oscuro) {
  const int altura = qRound(alto * dpr);
  QPixmap dibujo{qRound(altura * CardAspect), altura};
  dibujo.fill(Qt::transparent);
  const auto dibujos = alto < SmallCardHeight ? SmallCardDrawings : CardDrawings;
  QPainter pintor{&dibujo};
  PaintDrawing(pintor, dibujos[static_cast<std::size_t>(carta)],
               QSizeF{CardUnitsWide, CardUnitsHigh}, dibujo.rect(), oscuro);
  pintor.end();
  dibujo.setDevicePixelRatio(dpr);
  return dibujo;
}

}  // namespace

QPixmap CardPainter::Card(int carta, int alto, qreal dpr, bool oscuro) {
  QPixmap& dibujo = dibujos_[{carta, alto, dpr, oscuro}];
  if (dibujo.isNull()) dibujo = PaintCard(carta, alto, dpr, oscuro);
  return dibujo;
}

QPixmap CardPainter::Back(int alto, qreal dpr, bool oscuro, bool girado) {
  if (!girado) return Card(Dorso, alto, dpr, oscuro);
  QPixmap& dibujo = dibujos_[{DorsoGirado, alto, dpr, oscuro}];
  if (dibujo.isNull()) {
    dibujo = Card(Dorso, alto, dpr, oscuro).transformed(QTransform{}.rotate(90));
  }
  return dibujo;
}

void CardPainter::ForgetOtherHeights(const std::vector<int>& altos, qreal dpr, bool oscuro) {
  std::erase_if(dibujos_, [&](const auto& uno) {
    const auto& [carta, alto, suDpr, suTema] = uno.first;
    return suDpr != dpr || suTema != oscuro ||
           std::find(altos.begin(), altos.end(), alto) == altos.end();
  });
}

void DrawSharp(QPainter& pintor, QPointF donde, const QPixmap& dibujo) {
  const QTransform& aPantalla = pintor.deviceTransform();
  const QPointF entero = aPantalla.map(donde).toPoint();
  pintor.drawPixmap(aPantalla.inverted().map(entero), dibujo);
}

}  // namespace tasca
