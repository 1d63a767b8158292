#pragma once
// The 16-bit Integer in which the game keeps its numbers: arithmetic happens in int, and every
// store is checked.
#include <cstdint>

#include "base/errors.h"

namespace tasca {

// -32768..32767. Storing any other number throws RunTimeError (overflow).
class Integer {
 public:
  constexpr Integer() = default;
  constexpr Integer(int valor) : valor_{Checked(valor)} {}  // NOLINT(google-explicit-constructor)
  constexpr operator int() const { return valor_; }         // NOLINT(google-explicit-constructor)

  constexpr Integer& operator+=(int n) { return *this = Integer{valor_ + n}; }
  constexpr Integer& operator-=(int n) { return *this = Integer{valor_ - n}; }

 private:
  static constexpr std::int16_t Checked(int valor) {
    if (valor < INT16_MIN || valor > INT16_MAX) ThrowOverflow();
    return static_cast<std::int16_t>(valor);
  }

  std::int16_t valor_ = 0;
};

}  // namespace tasca
