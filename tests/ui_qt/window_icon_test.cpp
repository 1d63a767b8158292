// The programs' icon.
#include "ui/qt/window_icon.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

#include "tests/ui_qt/colours.h"

namespace tasca::test {
namespace {

QImage Icon(int lado) { return WindowIcon().pixmap(lado, lado).toImage(); }

TEST(WindowIcon, HasTheSizesOfDesktops) {
  const QIcon icono = WindowIcon();
  const QList<QSize> tamanos{{16, 16}, {32, 32}, {48, 48}, {64, 64}, {128, 128}};
  EXPECT_EQ(icono.availableSizes(), tamanos);
}

// Drawn on the grid of its pixels: the card's left edge is one column of ink, beside it is paper.
TEST(WindowIcon, IsSharpAtSixteenPixels) {
  const QImage icono = Icon(16);
  for (int y = 4; y <= 11; ++y) EXPECT_TRUE(Near(icono.pixelColor(5, y), Ink)) << y;
  EXPECT_TRUE(Near(icono.pixelColor(6, 3), Paper));
  EXPECT_TRUE(Near(icono.pixelColor(10, 8), Red, 20));  // the coin's middle
}

TEST(WindowIcon, IsSharpAtThirtyTwoPixels) {
  const QImage icono = Icon(32);
  for (int y = 8; y <= 23; ++y) {
    EXPECT_TRUE(Near(icono.pixelColor(10, y), Ink)) << y;
    EXPECT_TRUE(Near(icono.pixelColor(11, y), Ink)) << y;
  }
  EXPECT_TRUE(Near(icono.pixelColor(13, 6), Paper));
  EXPECT_TRUE(Near(icono.pixelColor(20, 16), Red));
}

// From 48 pixels on: a round table, wood around, with two cards on it.
TEST(WindowIcon, IsATableWithTwoCardsWhereThereIsRoom) {
  for (const int lado : {48, 64, 128}) {
    const QImage icono = Icon(lado);
    EXPECT_EQ(icono.pixelColor(0, 0).alpha(), 0) << lado;
    EXPECT_TRUE(Near(icono.pixelColor(lado / 2, lado * 8 / 128), Wood, 30)) << lado;
    EXPECT_TRUE(Near(icono.pixelColor(lado * 108 / 128, lado * 66 / 128), Cloth, 30)) << lado;
  }
}

}  // namespace
}  // namespace tasca::test
