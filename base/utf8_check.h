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

// Detects UTF-8 in a file of which the lines are passed one by one; no sequence contains a line
// end.
class Utf8Detector {
 public:
  // Requires that the lines are passed in order, the first one as 1.
  void AddLine(int linea, std::string_view bytes);
  // The first line with a multi-byte sequence; 0 if there is none or the file is not UTF-8.
  int FirstLine() const { return valido_ ? primera_ : 0; }

 private:
  bool valido_ = true;
  int primera_ = 0;
};

}  // namespace tasca
