#pragma once
// Pictures of 256 colours on file, and the comparison with them.
#include <QImage>

namespace tasca::test {

// The picture with a palette, which takes a third of the space on file. The colours of surfaces
// stay; those that occur at smooth edges only become others near them.
QImage WithFewColours(const QImage& dibujo);

struct Comparison {
  int Distintos = 0;  // pixels
  QImage Dibujo;      // those pixels red, the others grey
};

// Compares a picture with one of the same size from a file: closely in surfaces of one colour, and
// as far as the palette allows at their edges.
Comparison Compare(const QImage& vista, const QImage& esperada);

}  // namespace tasca::test
