#pragma once
// The programs' icon in title bars, task bars and window lists.
#include <QIcon>
#include <QPixmap>

namespace tasca {

// The icon from 16 to 128 pixels, painted here: it needs no file and no plugin. Takes two
// milliseconds.
QIcon WindowIcon();

// The icon with this side in pixels.
QPixmap PaintIcon(int lado);

}  // namespace tasca
