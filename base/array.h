#pragma once
// Arrays with the bounds that the game counts in: seats from 1, parejas and cards from 0.
#include <array>
#include <cstddef>
#include <type_traits>

#include "base/errors.h"

namespace tasca {

// Elements Primero..Ultimo. Any other index throws RunTimeError.
template <class T, int Primero, int Ultimo>
struct Array {
  static_assert(Primero <= Ultimo);
  std::array<T, static_cast<std::size_t>(Ultimo - Primero + 1)> elementos{};

  constexpr T& operator[](int indice) { return elementos[Position(indice)]; }
  constexpr const T& operator[](int indice) const { return elementos[Position(indice)]; }

  // The same for an index that has a name.
  template <class Nombre>
  requires std::is_enum_v<Nombre>
  constexpr T& operator[](Nombre indice) { return (*this)[static_cast<int>(indice)]; }
  template <class Nombre>
  requires std::is_enum_v<Nombre>
  constexpr const T& operator[](Nombre indice) const { return (*this)[static_cast<int>(indice)]; }

  constexpr auto begin() { return elementos.begin(); }
  constexpr auto end() { return elementos.end(); }
  constexpr auto begin() const { return elementos.begin(); }
  constexpr auto end() const { return elementos.end(); }

  bool operator==(const Array&) const = default;

 private:
  static constexpr std::size_t Position(int indice) {
    if (indice < Primero || indice > Ultimo) ThrowIndexOutOfRange();
    return static_cast<std::size_t>(indice - Primero);
  }
};

}  // namespace tasca
