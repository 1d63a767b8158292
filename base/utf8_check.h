#pragma once
// Recognizing UTF-8, in which a text editor may have saved a Windows-1252 file.
#include <string_view>

namespace tasca {

enum class Utf8Check {
  Ascii,      // no byte above 7F
  MultiByte,  // valid UTF-8 with at least one sequence of two to four bytes
  Invalid,    // no UTF-8
};

// Overlong forms, surrogates, values above U+10FFFF and cut sequences are invalid. A byte-order
// mark is a sequence of three bytes.
Utf8Check CheckUtf8(std::string_view bytes);

}  // namespace tasca
