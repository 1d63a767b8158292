// The applause: sums the claps of each person.
#include "tools/synth/applause.h"

#include <algorithm>

namespace tasca::synth {
namespace {

struct Person {
  double Desde;  // seconds, as Hasta
  double Hasta;
  double Pausa;    // seconds from clap to clap
  double Hercios;  // resonance of the hollow between the hands
  double Caida;
  double Fuerza;
  double Agudos;  // cutoff of the low-pass filter that stands for the distance
};

// A random person. Greater distance lowers the volume and the treble.
Person Somebody(Rnd& rnd) {
  const double lejos = Between(rnd, 0, 1);
  return {.Desde = Between(rnd, 0.02, 0.55),
          .Hasta = Between(rnd, 2.45, 3.3),
          .Pausa = 1 / Between(rnd, 3.0, 5.0),
          .Hercios = Between(rnd, 800, 2500),
          .Caida = Between(rnd, 0.006, 0.013),
          .Fuerza = 1 - 0.5 * lejos,
          .Agudos = 12000 - 7000 * lejos};
}

// A short noise burst of the palms plus the resonance of the air between them.
Clip Clap(Rnd& rnd, const Person& quien) {
  const double hueco = quien.Hercios * Between(rnd, 0.93, 1.07);
  Clip palmas = Noise(10 * quien.Caida, rnd);
  Clip chasquido = palmas;
  BandPass(palmas, hueco, 1.8);
  Strike(palmas, 0.0012, quien.Caida * Between(rnd, 0.85, 1.2));
  BandPass(chasquido, 3600, 0.6);
  Strike(chasquido, 0.0004, 0.0022);
  Add(palmas, 0, chasquido, 0.45);
  LowPass(palmas, quien.Agudos);
  return palmas;
}

// Adds all claps of a person, with irregular pauses and a softer start and end.
void AddPerson(Clip& onto, const Person& quien, Rnd& rnd) {
  double pausa = quien.Pausa;
  for (double cuando = quien.Desde; cuando < quien.Hasta;) {
    const double entrada = 0.6 + 0.4 * std::min(1.0, (cuando - quien.Desde) / 0.4);
    const double final = std::min(1.0, 0.35 + (quien.Hasta - cuando) / 0.7);
    const double fuerza = quien.Fuerza * entrada * final * Between(rnd, 0.75, 1.15);
    Add(onto, cuando, Clap(rnd, quien), fuerza);
    if (quien.Hasta - cuando < 0.6) pausa *= 1.06;
    cuando += pausa * Between(rnd, 0.91, 1.09);
  }
}

}  // namespace

Clip Applause() {
  constexpr int personas = 12;
  Rnd rnd;
  rnd.Seed(12);
  Clip clip = Silence(3.6);
  for (int i = 0; i < personas; ++i) AddPerson(clip, Somebody(rnd), rnd);
  PutInRoom(clip, 0.6, 0.13);
  Finish(clip);
  return clip;
}

}  // namespace tasca::synth
