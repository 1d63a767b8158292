// Cards as text objects.
#include "ui/qt/manual_pictures.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QTextDocument>
#include <QTextFormat>
#include <cstring>
#include <vector>

#include "ui/manual/card_reference.h"

namespace tasca {
namespace {

// A card is so many lines of text high.
constexpr double LinesOfText = 5.2;

int CardHeight(const QTextDocument& documento) {
  return qRound(LinesOfText * QFontMetricsF{documento.defaultFont()}.height());
}

// 0 for an image that is no card.
int CardOf(const QTextFormat& formato) {
  const std::vector<int> cartas = CardsOfReference(formato.toImageFormat().name().toStdString());
  return cartas.size() == 1 ? cartas.front() : 0;
}

}  // namespace

QSizeF ManualPictures::intrinsicSize(QTextDocument* documento, int /*posicion*/,
                                     const QTextFormat& formato) {
  if (CardOf(formato) == 0) return QSizeF{0, 0};
  const double alto = CardHeight(*documento);
  return QSizeF{alto * CardAspect, alto};
}

void ManualPictures::drawObject(QPainter* pintor, const QRectF& donde, QTextDocument* documento,
                                int /*posicion*/, const QTextFormat& formato) {
  const int carta = CardOf(formato);
  if (carta == 0) return;
  const int alto = CardHeight(*documento);
  const qreal dpr = pintor->device()->devicePixelRatioF();
  cartas_.ForgetOtherHeights({alto}, dpr, oscuro_);
  DrawSharp(*pintor, donde.topLeft(), cartas_.Card(carta, alto, dpr, oscuro_));
}

void* ManualPictures::qt_metacast(const char* interfaz) {
  if (std::strcmp(interfaz, qobject_interface_iid<QTextObjectInterface*>()) == 0) {
    return static_cast<QTextObjectInterface*>(this);
  }
  return QObject::qt_metacast(interfaz);
}

}  // namespace tasca
