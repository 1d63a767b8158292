// Synthesis and processing of clips.
#include "tools/synth/clip.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tasca::synth {
namespace {

std::size_t Count(double segundos) {
  return static_cast<std::size_t>(std::lround(segundos * Frecuencia));
}

// A biquad filter: y = b0 x + b1 x' + b2 x'' - a1 y' - a2 y'', coefficients divided by a0.
struct Biquad {
  double b0, b1, b2, a0, a1, a2;

  void Run(Clip& clip) const {
    double x1 = 0;
    double x2 = 0;
    double y1 = 0;
    double y2 = 0;
    for (double& x0 : clip) {
      const double y0 = (b0 * x0 + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2) / a0;
      x2 = x1;
      x1 = x0;
      y2 = y1;
      y1 = y0;
      x0 = y0;
    }
  }
};

// The intermediate values from which the coefficients for a frequency and a Q are computed.
struct Pole {
  Pole(double hercios, double calidad)
      : Coseno{std::cos(2 * std::numbers::pi * hercios / Frecuencia)},
        Alfa{std::sin(2 * std::numbers::pi * hercios / Frecuencia) / (2 * calidad)} {}

  double Coseno;
  double Alfa;
};

constexpr double SinResonancia = std::numbers::sqrt2 / 2;

// Comb filter with a low-pass in its feedback.
void AddComb(Clip& onto, const Clip& seco, double periodo, double vuelta) {
  const std::size_t atras = Count(periodo);
  constexpr double apagado = 0.45;
  Clip eco(onto.size(), 0.0);
  double memoria = 0;
  for (std::size_t i = atras; i < eco.size(); ++i) {
    memoria = (1 - apagado) * (seco[i - atras] + vuelta * eco[i - atras]) + apagado * memoria;
    eco[i] = memoria;
  }
  for (std::size_t i = 0; i < eco.size(); ++i) onto[i] += eco[i];
}

// All-pass filter: increases the density of echoes.
void Diffuse(Clip& clip, double periodo) {
  const std::size_t atras = Count(periodo);
  constexpr double g = 0.6;
  Clip interno(clip.size(), 0.0);
  for (std::size_t i = 0; i < clip.size(); ++i) {
    const double antes = i < atras ? 0 : interno[i - atras];
    interno[i] = clip[i] + g * antes;
    clip[i] = antes - g * interno[i];
  }
}

// The RMS of the loudest tenth of a second.
double LoudestTenth(const Clip& clip) {
  const std::size_t ancho = std::min(Count(0.1), clip.size());
  double suma = 0;
  double mayor = 0;
  for (std::size_t i = 0; i < clip.size(); ++i) {
    suma += clip[i] * clip[i];
    if (i >= ancho) suma -= clip[i - ancho] * clip[i - ancho];
    mayor = std::max(mayor, suma);
  }
  return std::sqrt(mayor / static_cast<double>(Count(0.1)));
}

// Soft clipping: linear up to the knee, then approaching the maximum.
double SoftClipped(double muestra) {
  constexpr double rodilla = 0.5;
  constexpr double techo = 0.8;
  const double alto = std::abs(muestra);
  if (alto <= rodilla) return muestra;
  const double hueco = techo - rodilla;
  return std::copysign(rodilla + hueco * std::tanh((alto - rodilla) / hueco), muestra);
}

}  // namespace

Clip Silence(double segundos) {
  Clip nada(Count(segundos), 0.0);
  return nada;
}

Clip Noise(double segundos, Rnd& rnd) {
  Clip ruido(Count(segundos));
  for (double& muestra : ruido) muestra = Between(rnd, -1, 1);
  return ruido;
}

Clip Ring(double hercios, double caida) {
  Clip tono = Silence(6 * caida);
  for (std::size_t i = 0; i < tono.size(); ++i) {
    const double t = static_cast<double>(i) / Frecuencia;
    tono[i] = std::sin(2 * std::numbers::pi * hercios * t) * std::exp(-t / caida);
  }
  return tono;
}

double Between(Rnd& rnd, double desde, double hasta) {
  const double r = rnd();
  return desde + (hasta - desde) * r;
}

void Add(Clip& onto, double cuando, const Clip& parte, double fuerza) {
  const std::size_t desde = Count(cuando);
  for (std::size_t i = 0; i < parte.size() && desde + i < onto.size(); ++i) {
    onto[desde + i] += fuerza * parte[i];
  }
}

void BandPass(Clip& clip, double hercios, double calidad) {
  const Pole p{hercios, calidad};
  Biquad{p.Alfa, 0, -p.Alfa, 1 + p.Alfa, -2 * p.Coseno, 1 - p.Alfa}.Run(clip);
}

void LowPass(Clip& clip, double hercios) {
  const Pole p{hercios, SinResonancia};
  const double b = 1 - p.Coseno;
  Biquad{b / 2, b, b / 2, 1 + p.Alfa, -2 * p.Coseno, 1 - p.Alfa}.Run(clip);
}

void HighPass(Clip& clip, double hercios) {
  const Pole p{hercios, SinResonancia};
  const double b = 1 + p.Coseno;
  Biquad{b / 2, -b, b / 2, 1 + p.Alfa, -2 * p.Coseno, 1 - p.Alfa}.Run(clip);
}

void Strike(Clip& clip, double subida, double caida) {
  for (std::size_t i = 0; i < clip.size(); ++i) {
    const double t = static_cast<double>(i) / Frecuencia;
    clip[i] *= t < subida ? t / subida : std::exp(-(t - subida) / caida);
  }
}

void Swell(Clip& clip) {
  const auto largo = static_cast<double>(clip.size());
  for (std::size_t i = 0; i < clip.size(); ++i) {
    const double seno = std::sin(std::numbers::pi * static_cast<double>(i) / largo);
    clip[i] *= seno * seno;
  }
}

void PutInRoom(Clip& clip, double caida, double fuerza) {
  struct Echo {
    double Cuando, Fuerza;
  };
  constexpr std::array<Echo, 6> primeros{{{0.0043, 0.22},
                                          {0.0091, 0.17},
                                          {0.0137, 0.14},
                                          {0.0189, 0.11},
                                          {0.0263, 0.09},
                                          {0.0341, 0.07}}};
  constexpr std::array<double, 6> periodos{0.0297, 0.0331, 0.0371, 0.0411, 0.0437, 0.0483};
  const Clip seco = clip;
  Clip cola(clip.size(), 0.0);
  for (const double periodo : periodos) {
    AddComb(cola, seco, periodo, std::pow(10.0, -3 * periodo / caida));
  }
  Diffuse(cola, 0.0051);
  Diffuse(cola, 0.0017);
  Clip ecos(clip.size(), 0.0);
  for (const Echo& eco : primeros) Add(ecos, eco.Cuando, seco, eco.Fuerza);
  LowPass(ecos, 5500);
  Add(clip, 0, ecos, 1);
  Add(clip, 0, cola, fuerza);
}

void Finish(Clip& clip) {
  constexpr double fuerte = 0.1;  // -20 dB relative to full scale
  HighPass(clip, 60);
  const double factor = fuerte / LoudestTenth(clip);
  const std::size_t entrada = Count(0.001);
  const std::size_t salida = std::min(Count(0.05), clip.size() / 5);
  for (std::size_t i = 0; i < clip.size(); ++i) {
    const auto desdeElFinal = static_cast<double>(clip.size() - 1 - i);
    const double borde = std::min({1.0, static_cast<double>(i) / static_cast<double>(entrada),
                                   desdeElFinal / static_cast<double>(salida)});
    clip[i] = borde * SoftClipped(factor * clip[i]);
  }
}

}  // namespace tasca::synth
