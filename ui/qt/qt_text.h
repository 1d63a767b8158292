#pragma once
// Conversion between the game's text and Qt strings.
#include <QFont>
#include <QString>
#include <string>
#include <string_view>

#include "ui/mesa/palabras.h"

namespace tasca {

// CR LF, CR and LF become LF. NULs, the padding of unset texts, are dropped. Other control
// characters except the tab become U+FFFD; only a damaged file contains them.
QString ToDisplay(std::u16string_view texto);

// As ToDisplay, with "&" doubled, for widgets that take it as the mark of an access key.
QString ToLabel(std::u16string_view texto);

// For single-line input. Line breaks and control characters become blanks: in a pasted name they
// would corrupt the settings file.
std::u16string FromInput(const QString& texto);

// `fuente` with its size, in points or in pixels, multiplied by `factor`.
QFont Scaled(QFont fuente, double factor);

}  // namespace tasca
