#pragma once
// How loud a sound is on either side, from the media player's two settings.
#include <cstdint>
#include <span>

namespace tasca {

// Factors for the samples of the two sides.
struct Gains {
  double Izquierda = 1;
  double Derecha = 1;
};

// `volumen` in hundredths of a decibel, 0 the loudest: the factor is 10^(volumen/2000). `balance`
// from -10000 (left) to 10000 (right) weakens the other side by as many hundredths of a decibel, at
// the ends to silence. What lies outside counts as the nearest end.
Gains GainsFor(int balance, int volumen);

// Applies them to pairs of samples, the left one first.
void Scale(std::span<std::int16_t> muestras, const Gains& factores);

}  // namespace tasca
