#pragma once
// The 16-bit Integer in which the game keeps its numbers. Arithmetic is done in int; every store is
// checked.
#include <cstdint>

#include "base/errors.h"

namespace tasca {

// A number from -32768 to 32767. Storing any other number throws RunTimeError (overflow).
class Integer {
 public:
  constexpr Integer() = default;  // 0
  // Implicit in both directions, so that expressions mix Integer and int.
  constexpr Integer(int valor) : valor_{Checked(valor)} {}  // NOLINT(google-explicit-constructor)
  constexpr operator int() const { return valor_; }         // NOLINT(google-explicit-constructor)

  // Checked like a store.
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
