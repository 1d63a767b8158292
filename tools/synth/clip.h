#pragma once
// Mono audio clips and the means of their synthesis: noise, resonances, filters, envelopes, reverb.
#include <vector>

#include "base/rnd.h"

namespace tasca::synth {

inline constexpr double Frecuencia = 44100;  // sample rate in hertz

// Mono samples. The amplitude is arbitrary until Finish, which normalises it.
using Clip = std::vector<double>;

// A clip of zeros.
Clip Silence(double segundos);
// White noise. Draws once for every sample.
Clip Noise(double segundos, Rnd& rnd);
// A damped sine of `hercios` with the time constant `caida` in seconds (decay to 1/e).
Clip Ring(double hercios, double caida);

// A uniform draw in [desde, hasta).
double Between(Rnd& rnd, double desde, double hasta);

// Mixes `parte`, multiplied by `fuerza`, into `onto` from `cuando` seconds on. Truncates it at the
// end of `onto`.
void Add(Clip& onto, double cuando, const Clip& parte, double fuerza);

// Second-order filters. `calidad` is the Q factor: centre frequency over bandwidth.
void BandPass(Clip& clip, double hercios, double calidad);
void LowPass(Clip& clip, double hercios);
void HighPass(Clip& clip, double hercios);

// Envelope: a linear attack of `subida` seconds, then an exponential decay with the time constant
// `caida` in seconds.
void Strike(Clip& clip, double subida, double caida);
// Envelope: a squared half sine over the whole length.
void Swell(Clip& clip);

// Adds the reverb of a tavern: early reflections, and a dull tail that falls by 60 dB in `caida`
// seconds. `fuerza` is the level of the tail.
void PutInRoom(Clip& clip, double caida, double fuerza);

// Normalises the loudness of the loudest tenth of a second, limits peaks softly, and fades both
// ends.
void Finish(Clip& clip);

}  // namespace tasca::synth
