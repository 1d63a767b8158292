#pragma once
// Breaks and cuts text to fit a width. The caller measures.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

// A kind of letter: its size in letters of the system's font, and its weight.
struct Letra {
  double Factor = 1;
  bool Negrita = false;

  bool operator==(const Letra&) const = default;
};

// The width of a line of text in pixels.
using AnchoDeTexto = std::function<double(std::u16string_view texto, Letra letra)>;

// `texto` cut to `ancho` with "…" at its end; "" when not even that fits.
std::u16string Abreviado(std::u16string_view texto, Letra letra, double ancho,
                         const AnchoDeTexto& mide);

// `texto` broken at its blanks into lines of at most `ancho`, and into at most `maximo` of them:
// the last one is cut. A word that is too wide is cut too.
std::vector<std::u16string> EnLineas(std::u16string_view texto, Letra letra, double ancho,
                                     int maximo, const AnchoDeTexto& mide);

// The width of the widest line.
double AnchoMayor(const std::vector<std::u16string>& lineas, Letra letra, const AnchoDeTexto& mide);

}  // namespace tasca
