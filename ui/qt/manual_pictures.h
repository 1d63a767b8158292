#pragma once
// The cards in the manual's text. They are painted where they stand, in a size that goes with the
// letters: sharp at every zoom and on every screen.
#include <QTextObjectInterface>

#include "ui/qt/card_painter.h"

namespace tasca {

// Lays out and paints the images of a document, whose names are references to one card,
// "carta:rey-oros". Another name takes no room.
class ManualPictures : public QObject, public QTextObjectInterface {
 public:
  explicit ManualPictures(QObject* padre) : QObject{padre} {}

  // Which paper the cards have.
  void SetDark(bool oscuro) { oscuro_ = oscuro; }

  QSizeF intrinsicSize(QTextDocument* documento, int posicion, const QTextFormat& formato) override;
  void drawObject(QPainter* pintor, const QRectF& donde, QTextDocument* documento, int posicion,
                  const QTextFormat& formato) override;
  // Names the interface to the document, as moc would.
  void* qt_metacast(const char* interfaz) override;

 private:
  CardPainter cartas_;
  bool oscuro_ = false;
};

}  // namespace tasca
