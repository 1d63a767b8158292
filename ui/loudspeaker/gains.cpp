// Conversion from decibels to linear factors.
#include "ui/loudspeaker/gains.h"

#include <algorithm>
#include <cmath>

namespace tasca {
namespace {

constexpr int Extremo = 10000;

double Factor(int centesimas) { return std::pow(10.0, centesimas / 2000.0); }

// The gain of a channel from which the balance has moved away by `paso` hundredths of a decibel.
double Weakened(double factor, int paso) {
  if (paso <= 0) return factor;
  return paso >= Extremo ? 0 : factor * Factor(-paso);
}

std::int16_t Scaled(std::int16_t muestra, double factor) {
  return static_cast<std::int16_t>(std::lround(muestra * factor));
}

}  // namespace

Gains GainsFor(int balance, int volumen) {
  const double factor = Factor(std::clamp(volumen, -Extremo, 0));
  return {.Izquierda = Weakened(factor, balance), .Derecha = Weakened(factor, -balance)};
}

void Scale(std::span<std::int16_t> muestras, const Gains& factores) {
  for (std::size_t i = 0; i + 1 < muestras.size(); i += 2) {
    muestras[i] = Scaled(muestras[i], factores.Izquierda);
    muestras[i + 1] = Scaled(muestras[i + 1], factores.Derecha);
  }
}

}  // namespace tasca
