#pragma once
// The game's text as the windows show it, and what the player types as the game takes it.
#include <QFont>
#include <QString>
#include <string>
#include <string_view>

namespace tasca {

// The title of every window and box that has none of its own.
inline constexpr std::u16string_view TituloAplicacion = u"La tasca del tío Zarandel";

// Line breaks of any kind become one; control characters, which only a damaged file can hold,
// become U+FFFD, and the NULs of a text never filled are dropped.
QString ToDisplay(std::u16string_view texto);

// The same for a label that takes "&" as the mark of an access key.
QString ToLabel(std::u16string_view texto);

// What was typed or pasted into a line of one row: line breaks and control characters become
// blanks, or a pasted name could tear the settings file apart.
std::u16string FromInput(const QString& texto);

// `fuente` in another size, whether it is measured in points or in pixels.
QFont Scaled(QFont fuente, double factor);

}  // namespace tasca
