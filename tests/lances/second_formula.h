#pragma once
// A second implementation of the values and comparisons of hands. It counts the cards of each value
// and uses neither the game's card records nor its comparisons nor the order of the cards.
#include <array>
#include <string>
#include <tuple>
#include <vector>

namespace tasca::test {

// The number of cards of each value 1 to 10. A Tres counts as a Rey and a Dos as an As, so that the
// values 2 and 3 do not occur.
struct Cuentas {
  std::array<int, 11> De{};

  int operator[](int valor) const { return De.at(static_cast<std::size_t>(valor)); }
  void Anadir(int valor) { ++De.at(static_cast<std::size_t>(valor)); }
};

inline constexpr std::array<int, 8> ValoresDistintos{1, 4, 5, 6, 7, 8, 9, 10};

// The value of card 1 to 40: ten ranks per suit, from the As to the Rey.
inline int ValorDeCarta(int numero) {
  constexpr std::array<int, 10> delRey{10, 1, 1, 10, 4, 5, 6, 7, 8, 9};
  return delRey.at(static_cast<std::size_t>(numero % 10));
}

inline Cuentas CuentasDe(const std::array<int, 4>& cartas) {
  Cuentas cuentas;
  for (const int carta : cartas) cuentas.Anadir(ValorDeCarta(carta));
  return cuentas;
}

// The points for juego and punto: figures count ten, other cards their value.
inline int Puntos(const Cuentas& mano) {
  const int figuras = mano[8] + mano[9] + mano[10];
  return mano[1] + 4 * mano[4] + 5 * mano[5] + 6 * mano[6] + 7 * mano[7] + 10 * figuras;
}

enum class Clase { Nada, Par, Medias, Duplex };

// The pares of a hand: their class and the values of the pairs, the higher first. Four equal cards
// are two pairs of the same value.
struct Pares {
  Clase Que = Clase::Nada;
  int Alto = 0;
  int Bajo = 0;
};

inline Pares ParesDe(const Cuentas& mano) {
  Pares pares;
  for (int valor = 10; valor >= 1; --valor) {
    if (mano[valor] == 4) return {Clase::Duplex, valor, valor};
    if (mano[valor] == 3) return {Clase::Medias, valor, valor};
    if (mano[valor] != 2) continue;
    if (pares.Que == Clase::Par) return {Clase::Duplex, pares.Alto, valor};
    pares = {Clase::Par, valor, 0};
  }
  return pares;
}

// The stones for having pares or juego, without any bet.
inline int PiedrasDePares(const Cuentas& mano) { return static_cast<int>(ParesDe(mano).Que); }
inline int PiedrasDeJuego(const Cuentas& mano) {
  if (Puntos(mano) < 31) return 0;
  return Puntos(mano) == 31 ? 3 : 2;
}

// Whether `una` beats `otra`, without the rule for ties.
inline bool MejorGrande(const Cuentas& una, const Cuentas& otra) {
  int valor = 10;
  while (valor > 1 && una[valor] == otra[valor]) --valor;
  return una[valor] > otra[valor];
}
inline bool MejorPequena(const Cuentas& una, const Cuentas& otra) {
  int valor = 1;
  while (valor < 10 && una[valor] == otra[valor]) ++valor;
  return una[valor] > otra[valor];
}
inline bool MejoresPares(const Cuentas& una, const Cuentas& otra) {
  const auto orden = [](const Pares& pares) {
    return std::tuple{pares.Que, pares.Alto, pares.Bajo};
  };
  return orden(ParesDe(una)) > orden(ParesDe(otra));
}
// The rank of these points, 1 the best: 31, 32, then 40 down to 33, then no juego.
inline int LugarDelJuego(int puntos) {
  constexpr std::array<int, 10> lugares{1, 2, 10, 9, 8, 7, 6, 5, 4, 3};
  return puntos < 31 ? 11 : lugares.at(static_cast<std::size_t>(puntos - 31));
}
inline bool MejorElJuego(const Cuentas& una, const Cuentas& otra) {
  return LugarDelJuego(Puntos(una)) < LugarDelJuego(Puntos(otra));
}
// A hand with juego ranks lowest.
inline bool MejorElPunto(const Cuentas& una, const Cuentas& otra) {
  const auto rango = [](const Cuentas& mano) { return Puntos(mano) < 31 ? Puntos(mano) : 0; };
  return rango(una) > rango(otra);
}

// Collects faults: keeps the first ten and the number of all.
class Fallos {
 public:
  void Anadir(const std::string& fallo) {
    constexpr std::size_t Bastantes = 10;
    if (primeros_.size() < Bastantes) primeros_.push_back(fallo);
    ++cuantos_;
  }
  // The number of faults and the first ten; "" if there are none.
  std::string Texto() const {
    std::string texto;
    for (const std::string& fallo : primeros_) texto += fallo + "\n";
    return cuantos_ == 0 ? "" : std::to_string(cuantos_) + " faults:\n" + texto;
  }

 private:
  std::vector<std::string> primeros_;
  int cuantos_ = 0;
};

}  // namespace tasca::test
