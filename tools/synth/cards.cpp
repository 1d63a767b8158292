// Synthesis of the cards' sounds.
#include "tools/synth/cards.h"

#include <array>
#include <cmath>

namespace tasca::synth {
namespace {

constexpr int CartasDeUnaMitad = 20;

// The edge of a card against another.
Clip Click(Rnd& rnd, double hercios, double caida) {
  Clip click = Noise(8 * caida, rnd);
  BandPass(click, hercios, 0.7);
  HighPass(click, 500);
  Strike(click, 0.0003, caida);
  return click;
}

// A card that slides over another or over cloth.
Clip Hiss(Rnd& rnd, double segundos, double hercios) {
  Clip roce = Noise(segundos, rnd);
  BandPass(roce, hercios, 0.9);
  Swell(roce);
  return roce;
}

// Adds the damped resonance modes of the table top.
void AddKnock(Clip& onto, double cuando, double fuerza, double afinado) {
  struct Mode {
    double Hercios, Caida, Fuerza;
  };
  constexpr std::array<Mode, 5> modos{{{118, 0.020, 0.8},
                                       {187, 0.018, 0.9},
                                       {296, 0.014, 0.7},
                                       {443, 0.010, 0.45},
                                       {701, 0.006, 0.3}}};
  for (const Mode& modo : modos) {
    Add(onto, cuando, Ring(modo.Hercios * afinado, modo.Caida), fuerza * modo.Fuerza);
  }
}

// A card that lands flat on the table: its slap, the air pressed out under it, and the knock.
void AddSlap(Clip& onto, double cuando, double fuerza, Rnd& rnd) {
  const double afinado = Between(rnd, 0.92, 1.08);
  Add(onto, cuando, Click(rnd, 4200 * afinado, 0.0028), 1.5 * fuerza);
  Add(onto, cuando + 0.0006, Click(rnd, 1700 * afinado, 0.0075), 1.3 * fuerza);
  Add(onto, cuando + 0.0045, Click(rnd, 3000 * afinado, 0.0040), 0.5 * fuerza);
  AddKnock(onto, cuando, 0.16 * fuerza, afinado);
}

// The cards of the two halves fall in turn, at an increasing rate.
void AddRiffle(Clip& onto, double desde, double dura, Rnd& rnd) {
  for (int carta = 0; carta < 2 * CartasDeUnaMitad; ++carta) {
    const double parte = static_cast<double>(carta) / (2 * CartasDeUnaMitad - 1);
    const double lleva = parte * (1.5 - 0.5 * parte);
    const double cuando = desde + dura * lleva + Between(rnd, -0.003, 0.003);
    const bool izquierda = carta % 2 == 0;
    const double hercios = (izquierda ? 1900 : 2400) + 1300 * parte + Between(rnd, -250, 250);
    const double fuerza = Between(rnd, 0.55, 1.0) * (0.65 + 0.35 * parte);
    Add(onto, cuando, Click(rnd, hercios, 0.0032), fuerza);
    Add(onto, cuando, Ring(Between(rnd, 380, 520), 0.004), 0.14 * fuerza);
  }
}

// The arched pack collapses: clicks so dense that they flutter, of decreasing rate and pitch as
// fewer cards are left.
void AddBridge(Clip& onto, double desde, double dura, Rnd& rnd) {
  for (int carta = 0; carta < 2 * CartasDeUnaMitad; ++carta) {
    const double parte = static_cast<double>(carta) / (2 * CartasDeUnaMitad - 1);
    const double cuando = desde + dura * std::pow(parte, 1.15) + Between(rnd, -0.002, 0.002);
    const double hercios = 3800 * std::pow(0.36, parte);
    const double curva = 0.30 + 0.45 * std::sin(3.14 * std::pow(parte, 0.8));
    const double fuerza = curva * Between(rnd, 0.8, 1.1);
    Add(onto, cuando, Click(rnd, hercios, 0.0050), fuerza);
  }
  Add(onto, desde, Hiss(rnd, dura, 2600), 0.10);
}

// The edge of the whole pack tapped on the table.
void AddTap(Clip& onto, double cuando, double fuerza, Rnd& rnd) {
  Add(onto, cuando, Click(rnd, 1500, 0.0050), 0.9 * fuerza);
  Add(onto, cuando + 0.003, Click(rnd, 2600, 0.0030), 0.4 * fuerza);
  AddKnock(onto, cuando, 0.15 * fuerza, 1.25);
}

}  // namespace

Clip Shuffle() {
  Rnd rnd;
  rnd.Seed(40);
  Clip clip = Silence(2.2);
  AddRiffle(clip, 0.04, 0.82, rnd);
  Add(clip, 0.90, Hiss(rnd, 0.14, 3000), 0.28);
  AddBridge(clip, 1.13, 0.52, rnd);
  Add(clip, 1.70, Hiss(rnd, 0.08, 2200), 0.25);
  AddTap(clip, 1.80, 0.85, rnd);
  AddTap(clip, 1.96, 0.65, rnd);
  PutInRoom(clip, 0.35, 0.05);
  Finish(clip);
  return clip;
}

Clip Deal() {
  Rnd rnd;
  rnd.Seed(16);
  constexpr std::array<double, 4> cerca{0.95, 0.78, 0.90, 1.0};
  Clip clip = Silence(2.5);
  double cuando = 0.03;
  for (std::size_t carta = 0; carta < 16; ++carta) {
    const double vuelo = Between(rnd, 0.050, 0.066);
    const double fuerza = cerca.at(carta % 4) * Between(rnd, 0.8, 1.1);
    Add(clip, cuando, Hiss(rnd, vuelo + 0.02, Between(rnd, 3600, 4800)), 0.17 * fuerza);
    AddSlap(clip, cuando + vuelo, 0.6 * fuerza, rnd);
    cuando += Between(rnd, 0.131, 0.149);
  }
  PutInRoom(clip, 0.35, 0.05);
  Finish(clip);
  return clip;
}

Clip OneCard() {
  Rnd rnd;
  rnd.Seed(1);
  Clip clip = Silence(0.24);
  Add(clip, 0.002, Hiss(rnd, 0.05, 4500), 0.16);
  AddSlap(clip, 0.040, 1, rnd);
  Add(clip, 0.050, Hiss(rnd, 0.09, 3300), 0.10);
  PutInRoom(clip, 0.30, 0.05);
  Finish(clip);
  return clip;
}

}  // namespace tasca::synth
