#pragma once
// The game's text as bytes that are safe to print: UTF-8, nothing that could steer a terminal.
#include <string>
#include <string_view>

namespace tasca {

// CR LF, a lone CR and a lone LF become one line feed; every other control character, the five
// undefined codes of the text files among them, becomes U+FFFD. The padding of card and character
// names (three blanks or more) becomes one blank, and none before a comma, a stop or a line's end:
// a line should fit a terminal, and a braille line.
std::string PlainText(std::u16string_view texto);

// The same as one line: the line breaks become U+FFFD too. Without a line break at its end.
std::string PlainLine(std::u16string_view texto);

// The length (0 to 2) of the line break that `texto` begins with.
std::size_t LeadingBreak(std::u16string_view texto);
// The text up to and including its last line break; "" when it has none.
std::u16string_view WholeLines(std::u16string_view texto);

}  // namespace tasca
