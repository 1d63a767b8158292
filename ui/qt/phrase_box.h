#pragma once
// The editor's input box for a phrase.
#include <QWidget>
#include <string>
#include <string_view>

namespace tasca {

// Asks for a phrase of at most `maximo` characters, all valid in the character file. Blocks until
// it is answered. Returns "" if cancelled.
std::u16string AskPhrase(QWidget* padre, std::u16string_view texto, std::u16string_view titulo,
                         std::u16string_view porDefecto, int maximo);

}  // namespace tasca
