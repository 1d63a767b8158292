#pragma once
// The toolkit's own boxes, with the game's texts and Spanish buttons. Each blocks until it is
// answered.
#include <QWidget>
#include <optional>
#include <string>
#include <string_view>

#include "table/port.h"

namespace tasca {

// A box with "Aceptar".
void ShowMessage(QWidget* padre, std::u16string_view texto);
// The same, with the icon of an error: the last thing that the player sees.
void ShowError(QWidget* padre, std::u16string_view texto);
// Answered by "Sí" or "No" alone. Nothing when the program is ended from outside meanwhile.
std::optional<bool> AskYesNo(QWidget* padre, const YesNoQuestion& pregunta);
// Answered by "Aceptar" or "Cancelar"; true for "Aceptar".
bool AskOkCancel(QWidget* padre, std::u16string_view texto, std::u16string_view titulo);
// The text typed; "" when cancelled.
std::u16string AskText(QWidget* padre, std::u16string_view texto, std::u16string_view titulo,
                       std::u16string_view porDefecto);

}  // namespace tasca
