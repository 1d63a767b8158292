#pragma once
// Rectangles in pixels, with the origin at the top left.
#include <algorithm>

namespace tasca {

struct Rect {
  double X = 0;
  double Y = 0;
  double Ancho = 0;
  double Alto = 0;

  constexpr double Derecha() const { return X + Ancho; }
  constexpr double Abajo() const { return Y + Alto; }
  constexpr double CentroX() const { return X + Ancho / 2; }
  constexpr double CentroY() const { return Y + Alto / 2; }
  constexpr bool Vacio() const { return Ancho <= 0 || Alto <= 0; }

  bool operator==(const Rect&) const = default;
};

// From two opposite corners; empty when they lie the wrong way round.
constexpr Rect Entre(double x1, double y1, double x2, double y2) {
  return {.X = x1, .Y = y1, .Ancho = std::max(0.0, x2 - x1), .Alto = std::max(0.0, y2 - y1)};
}

// `r` with `borde` less at every side.
constexpr Rect Dentro(const Rect& r, double borde) {
  return Entre(r.X + borde, r.Y + borde, r.Derecha() - borde, r.Abajo() - borde);
}

constexpr Rect Interseccion(const Rect& a, const Rect& b) {
  return Entre(std::max(a.X, b.X), std::max(a.Y, b.Y), std::min(a.Derecha(), b.Derecha()),
               std::min(a.Abajo(), b.Abajo()));
}

// True when they share more than a border.
constexpr bool SeCruzan(const Rect& a, const Rect& b) { return !Interseccion(a, b).Vacio(); }

// True when no part of `dentro` lies outside `fuera`.
constexpr bool Contiene(const Rect& fuera, const Rect& dentro) {
  return dentro.X >= fuera.X && dentro.Y >= fuera.Y && dentro.Derecha() <= fuera.Derecha() &&
         dentro.Abajo() <= fuera.Abajo();
}

// The smallest rectangle around both; the other one when one is empty.
constexpr Rect Union(const Rect& a, const Rect& b) {
  if (a.Vacio()) return b;
  if (b.Vacio()) return a;
  return Entre(std::min(a.X, b.X), std::min(a.Y, b.Y), std::max(a.Derecha(), b.Derecha()),
               std::max(a.Abajo(), b.Abajo()));
}

}  // namespace tasca
