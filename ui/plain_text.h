#pragma once
// Makes the game's text safe to print: UTF-8 without control characters.
#include <string>
#include <string_view>

namespace tasca {

// Converts to UTF-8. CR LF, CR and LF become LF. Any other control character becomes U+FFFD,
// including the five codes that Windows-1252 leaves undefined. The padding of card and character
// names (three or more blanks) becomes one blank, or none before a comma, a full stop, a line break
// or the end, so that lines stay short on terminals and braille displays.
std::string PlainText(std::u16string_view texto);

// As PlainText, but line breaks become U+FFFD too. Appends no line feed.
std::string PlainLine(std::u16string_view texto);

// Length of the line break at the start of `texto`: 2 for CR LF, 1 for CR or LF, 0 for none.
std::size_t LeadingBreak(std::u16string_view texto);
// `texto` up to and including its last line break; "" if it has none.
std::u16string_view WholeLines(std::u16string_view texto);

}  // namespace tasca
