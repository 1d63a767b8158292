#pragma once
// The editor's input box, for a phrase.
#include <QWidget>
#include <string>
#include <string_view>

namespace tasca {

// The text typed, at most `maximo` characters of those that the character file can hold; "" when
// cancelled.
std::u16string AskPhrase(QWidget* padre, std::u16string_view texto, std::u16string_view titulo,
                         std::u16string_view porDefecto, int maximo);

}  // namespace tasca
