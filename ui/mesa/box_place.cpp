// Searches the place of a box.
#include "ui/mesa/box_place.h"

#include <array>
#include <cmath>
#include <limits>

namespace tasca {
namespace {

double Cubierto(const Rect& caja, const std::vector<Rect>& otros) {
  double suma = 0;
  for (const Rect& otro : otros) {
    const Rect comun = Interseccion(caja, otro);
    suma += comun.Ancho * comun.Alto;
  }
  return suma;
}

// What a place costs: compared in this order.
using Coste = std::array<double, 3>;

Coste CosteDe(const Rect& caja, const Alrededores& donde, const Rect& ideal) {
  return {std::round(Cubierto(caja, donde.Nunca)), std::round(Cubierto(caja, donde.MejorNo)),
          std::hypot(caja.X - ideal.X, caja.Y - ideal.Y)};
}

// The places along one side that are worth a try: the ends, the ideal, and those that touch the
// border of something.
std::vector<double> Intentos(double desde, double hasta, double ideal, double largo,
                             const std::vector<double>& bordes) {
  std::vector<double> todos{desde, hasta, std::clamp(ideal, desde, hasta)};
  for (const double borde : bordes) {
    for (const double intento : {borde, borde - largo}) {
      if (intento >= desde && intento <= hasta) todos.push_back(intento);
    }
  }
  return todos;
}

}  // namespace

Rect SitioDeCaja(double ancho, double alto, const Alrededores& donde) {
  const Rect& v = donde.Ventana;
  const Rect centrada{std::round(donde.Libre.CentroX() - ancho / 2),
                      std::round(donde.Libre.CentroY() - alto / 2), ancho, alto};
  if (Contiene(donde.Libre, centrada)) return centrada;
  const Rect ideal{v.Derecha() - ancho, v.Abajo() - alto, ancho, alto};
  std::vector<double> verticales;
  std::vector<double> horizontales;
  for (const std::vector<Rect>* const lista : {&donde.Nunca, &donde.MejorNo}) {
    for (const Rect& r : *lista) {
      verticales.insert(verticales.end(), {std::floor(r.X), std::ceil(r.Derecha())});
      horizontales.insert(horizontales.end(), {std::floor(r.Y), std::ceil(r.Abajo())});
    }
  }
  const double hastaX = std::max(v.X, v.Derecha() - ancho);
  const double hastaY = std::max(v.Y, v.Abajo() - alto);
  Rect mejor;
  Coste menor{std::numeric_limits<double>::infinity(), 0, 0};
  for (const double x : Intentos(v.X, hastaX, ideal.X, ancho, verticales)) {
    for (const double y : Intentos(v.Y, hastaY, ideal.Y, alto, horizontales)) {
      const Rect caja{x, y, ancho, alto};
      const Coste coste = CosteDe(caja, donde, ideal);
      if (coste >= menor) continue;
      menor = coste;
      mejor = caja;
    }
  }
  return mejor;
}

}  // namespace tasca
