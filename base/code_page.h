#pragma once
// Windows-1252, the code page of the game's text files.
#include <string>
#include <string_view>

namespace tasca {

// Every byte has a character: the five that the code page leaves undefined stay U+0081, U+008D,
// U+008F, U+0090 and U+009D.
char16_t DecodeByte(unsigned char byte);
std::u16string Decode(std::string_view bytes);

// True when the code page has the character.
bool InCodePage(char16_t letra);
// A character that the code page lacks becomes "?".
std::string Encode(std::u16string_view texto);

}  // namespace tasca
