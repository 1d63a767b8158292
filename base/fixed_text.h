#pragma once
// Text fields of a fixed width: card names, character names, stories and phrases.
#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "base/text.h"

namespace tasca {

// N UTF-16 units, N NULs until the first assignment.
template <std::size_t N>
class FixedText {
 public:
  // Truncates the text to N units or pads it on the right with blanks.
  FixedText& operator=(std::u16string_view texto) {
    const std::size_t caben = std::min(texto.size(), N);
    std::copy_n(texto.begin(), caben, letras_.begin());
    std::fill(letras_.begin() + caben, letras_.end(), u' ');
    return *this;
  }

  // All N units, including the padding.
  std::u16string_view Full() const { return {letras_.data(), N}; }
  // Without leading and trailing blanks. NULs are not blanks and stay.
  std::u16string_view Trimmed() const { return Trim(Full()); }

  bool operator==(const FixedText&) const = default;

 private:
  std::array<char16_t, N> letras_{};
};

}  // namespace tasca
