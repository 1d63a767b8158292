#pragma once
// Sounds as rows of samples, and what they are made of: noise, ringing bodies, filters, a room.
#include <vector>

#include "base/rnd.h"

namespace tasca::synth {

inline constexpr double Frecuencia = 44100;  // samples a second

// One side, samples around 0, any loudness until it is finished.
using Clip = std::vector<double>;

Clip Silence(double segundos);
Clip Noise(double segundos, Rnd& rnd);
// A body struck at the start: a sine of `hercios` that has fallen to a third after `caida` seconds.
Clip Ring(double hercios, double caida);

// A uniform draw between the two.
double Between(Rnd& rnd, double desde, double hasta);

// Adds `parte` from the moment `cuando` on; what stands out at the end is cut off.
void Add(Clip& onto, double cuando, const Clip& parte, double fuerza);

// Second-order filters; `calidad` is the centre over the width of the band.
void BandPass(Clip& clip, double hercios, double calidad);
void LowPass(Clip& clip, double hercios);
void HighPass(Clip& clip, double hercios);

// Rises in a straight line for `subida` seconds, then falls to a third every `caida` seconds.
void Strike(Clip& clip, double subida, double caida);
// Swells and dies away like half a wave over the whole length.
void Swell(Clip& clip);

// What a tavern adds: the first echoes of table, walls and ceiling, and a short dull tail that
// falls by 60 dB in `caida` seconds. `fuerza` is that of the tail.
void PutInRoom(Clip& clip, double caida, double fuerza);

// Makes the loudest tenth of a second as loud as in every other clip, rounds off peaks, and lets
// both ends come out of silence.
void Finish(Clip& clip);

}  // namespace tasca::synth
