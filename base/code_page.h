#pragma once
// Conversion between UTF-16 and Windows-1252, the code page of the game's text files.
#include <string>
#include <string_view>

namespace tasca {

// The character of one byte. Never fails: the five bytes that the code page leaves undefined become
// the control characters U+0081, U+008D, U+008F, U+0090 and U+009D.
char16_t DecodeByte(unsigned char byte);
// Decodes a text, one character per byte.
std::u16string Decode(std::string_view bytes);

// True if the code page can encode the character.
bool InCodePage(char16_t letra);
// Encodes a text, one byte per character. A character outside the code page becomes "?".
std::string Encode(std::u16string_view texto);

}  // namespace tasca
