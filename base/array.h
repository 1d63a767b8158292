#pragma once
// Fixed-size arrays with the index ranges of the game: seats and slots from 1, parejas from 0.
#include <array>
#include <cstddef>
#include <type_traits>

#include "base/errors.h"

namespace tasca {

// Elements Primero..Ultimo, value-initialized. Any other index throws RunTimeError.
template <class T, int Primero, int Ultimo>
struct Array {
  static_assert(Primero <= Ultimo);
  std::array<T, static_cast<std::size_t>(Ultimo - Primero + 1)> elementos{};

  constexpr T& operator[](int indice) { return elementos[Offset(indice)]; }
  constexpr const T& operator[](int indice) const { return elementos[Offset(indice)]; }

  // Indexes by the value of an enumerator.
  template <class Nombre>
  requires std::is_enum_v<Nombre>
  constexpr T& operator[](Nombre indice) { return (*this)[static_cast<int>(indice)]; }
  template <class Nombre>
  requires std::is_enum_v<Nombre>
  constexpr const T& operator[](Nombre indice) const { return (*this)[static_cast<int>(indice)]; }

  // Iterators over the elements in index order.
  constexpr auto begin() { return elementos.begin(); }
  constexpr auto end() { return elementos.end(); }
  constexpr auto begin() const { return elementos.begin(); }
  constexpr auto end() const { return elementos.end(); }

  bool operator==(const Array&) const = default;

 private:
  // Offset of the element from the first one. Throws RunTimeError out of bounds.
  static constexpr std::size_t Offset(int indice) {
    if (indice < Primero || indice > Ultimo) ThrowIndexOutOfRange();
    return static_cast<std::size_t>(indice - Primero);
  }
};

}  // namespace tasca
