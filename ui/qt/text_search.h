#pragma once
// Search in a text that is shown, by what the player types.
#include <QTextCursor>
#include <optional>

namespace tasca {

// The next occurrence after the selection of `aqui`, or the one before it, selected; starts again
// at the other end. Ignores case and accents. Nothing if there is none.
std::optional<QTextCursor> FindText(const QTextCursor& aqui, const QString& buscado,
                                    bool haciaAtras);

}  // namespace tasca
