#pragma once
// Left and right gain of a sound, from the media player's balance and volume.
#include <cstdint>
#include <span>

namespace tasca {

// Linear factors for the samples of the two channels: 1 leaves them, 0 silences them.
struct Gains {
  double Izquierda = 1;
  double Derecha = 1;
};

// `volumen` is in hundredths of a decibel, -10000 to 0; the factor is 10^(volumen/2000). `balance`
// is -10000 (left) to 10000 (right): it attenuates the opposite channel by that many hundredths of
// a decibel, and silences it at either end. Values out of range are clamped.
Gains GainsFor(int balance, int volumen);

// Multiplies interleaved stereo samples, left first, in place.
void Scale(std::span<std::int16_t> muestras, const Gains& factores);

}  // namespace tasca
