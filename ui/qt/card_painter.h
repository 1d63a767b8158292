#pragma once
// The cards as pictures. A picture is painted when it is first asked for, and kept.
#include <QPixmap>
#include <QPointF>
#include <map>
#include <tuple>
#include <vector>

class QPainter;

namespace tasca {

// The width of a card whose height is 1.
inline constexpr double CardAspect = 200.0 / 308.0;
// Below this height, in device-independent pixels, a card shows its number large and one emblem.
inline constexpr int SmallCardHeight = 80;

class CardPainter {
 public:
  // The card 1..40, face up, `alto` device-independent pixels high; `oscuro` is the paper and the
  // back of the dark theme. The pixmap has the given device pixel ratio and a size of whole device
  // pixels: its height is alto * dpr rounded, its width that height by CardAspect, rounded.
  QPixmap Card(int carta, int alto, qreal dpr, bool oscuro);

  // A card face down. `girado` lays it on its side, for the hands of the side seats: its height is
  // then the width of the pixmap.
  QPixmap Back(int alto, qreal dpr, bool oscuro, bool girado);

  // Forgets every picture that is not of one of these heights, with this ratio and this theme: for
  // a resize, and for a change of the screen or of the theme.
  void ForgetOtherHeights(const std::vector<int>& altos, qreal dpr, bool oscuro);

  // How many pictures are kept.
  int Kept() const { return static_cast<int>(dibujos_.size()); }

 private:
  // The card, its height, the device pixel ratio, and whether the theme is dark.
  using Key = std::tuple<int, int, qreal, bool>;

  std::map<Key, QPixmap> dibujos_;
};

// Draws a pixmap with its top left corner at `donde`, moved by less than a device pixel so that its
// pixels fall on those of the device: sharp at every scale.
void DrawSharp(QPainter& pintor, QPointF donde, const QPixmap& dibujo);

}  // namespace tasca
