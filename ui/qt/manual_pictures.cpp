// Rows of cards as text objects.
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

// From the left edge of a card to that of the next.
double CardStep(int alto) { return alto * (CardAspect + 0.05); }

std::vector<int> CardsOf(const QTextFormat& formato) {
  return CardsOfReference(formato.toImageFormat().name().toStdString());
}

}  // namespace

QSizeF ManualPictures::intrinsicSize(QTextDocument* documento, int /*posicion*/,
                                     const QTextFormat& formato) {
  const auto cuantas = static_cast<double>(CardsOf(formato).size());
  if (cuantas == 0) return QSizeF{0, 0};
  const int alto = CardHeight(*documento);
  return {(cuantas - 1) * CardStep(alto) + alto * CardAspect, static_cast<double>(alto)};
}

void ManualPictures::drawObject(QPainter* pintor, const QRectF& donde, QTextDocument* documento,
                                int /*posicion*/, const QTextFormat& formato) {
  const int alto = CardHeight(*documento);
  const qreal dpr = pintor->device()->devicePixelRatioF();
  cartas_.ForgetOtherHeights({alto}, dpr, oscuro_);
  QPointF esquina = donde.topLeft();
  for (const int carta : CardsOf(formato)) {
    DrawSharp(*pintor, esquina, cartas_.Card(carta, alto, dpr, oscuro_));
    esquina.rx() += CardStep(alto);
  }
}

void* ManualPictures::qt_metacast(const char* interfaz) {
  if (std::strcmp(interfaz, qobject_interface_iid<QTextObjectInterface*>()) == 0) {
    return static_cast<QTextObjectInterface*>(this);
  }
  return QObject::qt_metacast(interfaz);
}

}  // namespace tasca
