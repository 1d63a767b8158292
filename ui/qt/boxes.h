#pragma once
// Message, question and input boxes with Spanish buttons. Each blocks until it is answered. An
// empty title shows the application's title. All texts are plain text.
#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "table/port.h"

namespace tasca {

// A box with "Aceptar".
void ShowMessage(QWidget* padre, std::u16string_view texto);
// As ShowMessage, with the error icon.
void ShowError(QWidget* padre, std::u16string_view texto);
// True for "Sí", false for "No". Esc and the close box do nothing. Nothing if the program is ended
// meanwhile.
std::optional<bool> AskYesNo(QWidget* padre, const YesNoQuestion& pregunta);
// True for "Sí", false for "No"; "No" has the focus. Nothing for "Cancelar" or if the box is
// closed.
std::optional<bool> AskYesNoCancel(QWidget* padre, std::u16string_view texto,
                                   std::u16string_view titulo);
// True for "Aceptar", false for "Cancelar" or if the box is closed.
bool AskOkCancel(QWidget* padre, std::u16string_view texto, std::u16string_view titulo);
// Creates a control that writes into the text field of an input box. It is placed above the field.
using AnswerHelper = std::function<QWidget*(QLineEdit& campo)>;
// Asks for a line of text. Returns "" if cancelled.
std::u16string AskText(QWidget* padre, std::u16string_view texto, std::u16string_view titulo,
                       std::u16string_view porDefecto, const AnswerHelper& ayuda = {});

}  // namespace tasca
