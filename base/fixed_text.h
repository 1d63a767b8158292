#pragma once
// Text fields of a fixed width, as card names, character names and phrases have.
#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "base/text.h"

namespace tasca {

// N characters (UTF-16 units). Never assigned, it holds N NULs; assigning cuts the text to N or
// pads it on the right with blanks.
template <std::size_t N>
class FixedText {
 public:
  FixedText& operator=(std::u16string_view texto) {
    const std::size_t caben = std::min(texto.size(), N);
    std::copy_n(texto.begin(), caben, letras_.begin());
    std::fill(letras_.begin() + caben, letras_.end(), u' ');
    return *this;
  }

  // All N characters, padding included.
  std::u16string_view Full() const { return {letras_.data(), N}; }
  // Without the blanks at both ends. NULs are not blanks and stay.
  std::u16string_view Trimmed() const { return Trim(Full()); }

  bool operator==(const FixedText&) const = default;

 private:
  std::array<char16_t, N> letras_{};
};

}  // namespace tasca
