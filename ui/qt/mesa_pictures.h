#pragma once
// What is painted once and kept while the picture's size and colours stay.
#include <QPixmap>

#include "ui/qt/card_painter.h"

namespace tasca {

struct MesaPictures {
  CardPainter Cartas;
  QPixmap Estrella;  // null until it is painted
};

}  // namespace tasca
