#pragma once
// Detects UTF-8: a text editor may have saved a Windows-1252 file in that encoding.
#include <string_view>

namespace tasca {

enum class Utf8Check {
  Ascii,      // no byte above 7F
  MultiByte,  // valid UTF-8 with at least one sequence of two to four bytes
  Invalid,    // not UTF-8
};

// Validates all of `bytes`. Overlong forms, surrogates, values above U+10FFFF and truncated
// sequences are invalid. A byte-order mark counts as a multi-byte sequence.
Utf8Check CheckUtf8(std::string_view bytes);

}  // namespace tasca
