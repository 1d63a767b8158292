#pragma once
// The programs' icon in title bars, task bars and window lists.
#include <QIcon>

namespace tasca {

// The icon from 16 to 128 pixels, painted here: it needs no file and no plugin. Takes two
// milliseconds.
QIcon WindowIcon();

}  // namespace tasca
