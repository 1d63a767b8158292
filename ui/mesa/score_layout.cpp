// Places the score: amarracos of five stones, single stones, juegos and vacas.
#include <algorithm>

#include "ui/mesa/layout.h"
#include "ui/mesa/palabras.h"

namespace tasca {
namespace {

constexpr int PorAmarraco = 5;
constexpr int MaximoAmarracos = 9;  // more than that are one, and how many times

struct Marcador {
  Rect Donde;
  double f = 0;
  const AnchoDeTexto& Mide;
  std::vector<Pieza>& Piezas;
};

void PonerTexto(const Marcador& m, const Rect& donde, std::u16string_view texto, Letra tipo,
                bool tenue, bool aLaDerecha = false) {
  m.Piezas.emplace_back(
      TextoPuesto{donde, Abreviado(texto, tipo, donde.Ancho, m.Mide), tipo, tenue, aLaDerecha});
}

// The sockets of juegos or vacas, `ganadas` of them filled, that end at `x`; where they begin.
double PonerCasillas(const Marcador& m, double x, int hacenFalta, int ganadas, bool sonVacas) {
  const double paso = m.f * (sonVacas ? 2.05 : 1.3);
  const double ancho = m.f * (sonVacas ? 1.8 : 1.05);
  for (int i = hacenFalta - 1; i >= 0; --i) {
    const Rect donde{x - ancho, m.Donde.Y + m.f * 2.0, ancho, m.f * 1.5};
    m.Piezas.emplace_back(Casilla{donde, sonVacas, i < ganadas});
    x -= paso;
  }
  return x;
}

// Where the sockets begin.
double PonerPremios(const Marcador& m, const TanteoVisto& tanteo) {
  const Letra pequena{0.86, false};
  double x = m.Donde.Derecha();
  const auto poner = [&](std::u16string_view titulo, int hacenFalta, int ganadas, bool sonVacas) {
    const double ancho = m.Mide(titulo, pequena) + 1;
    PonerTexto(m, {x - ancho, m.Donde.Y + m.f * 0.2, ancho, m.f * 1.3}, titulo, pequena, true,
               true);
    x = std::min(PonerCasillas(m, x, hacenFalta, ganadas, sonVacas), x - ancho) - m.f * 0.6;
  };
  poner(PalabraVacas, tanteo.VacasParaPartida, tanteo.Vacas, true);
  poner(PalabraJuegos, tanteo.JuegosParaVaca, tanteo.Juegos, false);
  return x;
}

// The stones from the left edge; a pile of amarracos that is too wide is one and a number.
void PonerPiedras(const Marcador& m, int piedras, double hasta) {
  const double f = m.f;
  double x = m.Donde.X + f * 0.2;
  const double y = m.Donde.Y + f * 2.75;
  if (piedras <= 0) {
    return PonerTexto(m, Entre(x, y - f * 0.7, hasta, y + f * 0.7), PalabraSinPiedras, {0.9, false},
                      true);
  }
  const int cincos = piedras / PorAmarraco;
  const int sueltas = piedras % PorAmarraco;
  const bool caben = cincos <= MaximoAmarracos && x + f * (1.7 * cincos + 1.1 * sueltas) <= hasta;
  const int dibujados = caben ? cincos : std::min(cincos, 1);
  for (int i = 0; i < dibujados; ++i) {
    m.Piezas.emplace_back(Ficha{{x, y - f * 0.66, f * 1.5, f * 1.32}, ClaseFicha::Amarraco, i});
    x += f * 1.7;
  }
  if (!caben) {
    const std::u16string veces = VecesEscritas(cincos);
    const double ancho = m.Mide(veces, {1.0, true}) + f * 0.4;
    PonerTexto(m, {x, y - f * 0.7, ancho, f * 1.4}, veces, {1.0, true}, false);
    x += ancho + f * 0.3;
  }
  for (int i = 0; i < sueltas && x + f <= hasta; ++i) {
    const double sube = i % 2 == 0 ? -0.1 : 0.16;
    m.Piezas.emplace_back(Ficha{{x, y + f * (sube - 0.42), f, f * 0.84}, ClaseFicha::Piedra, i});
    x += f * 1.1;
  }
}

void PonerPareja(const Marcador& m, const Escena& escena, Pareja pareja) {
  const double f = m.f;
  const double hasta = PonerPremios(m, escena.Tanteo[pareja]);
  m.Piezas.emplace_back(
      SignoPareja{{m.Donde.X + f * 0.15, m.Donde.Y + f * 0.4, f * 0.9, f * 0.9}, pareja});
  PonerTexto(m, Entre(m.Donde.X + f * 1.5, m.Donde.Y + f * 0.1, hasta, m.Donde.Y + f * 1.6),
             ParejaEscrita(pareja), {0.98, true}, false);
  PonerPiedras(m, escena.Tanteo[pareja].Piedras, hasta);
}

}  // namespace

std::vector<Pieza> MarcadorDe(const Escena& escena, const Rect& donde, double letra,
                              const AnchoDeTexto& mide) {
  std::vector<Pieza> piezas;
  const bool alLado = donde.Alto < 8 * letra;
  Rect sitio = donde;
  if (alLado) {
    sitio.Ancho = (donde.Ancho - 2.4 * letra) / 2;
  } else {
    sitio.Alto = donde.Alto / 2;
  }
  PonerPareja({sitio, letra, mide, piezas}, escena, 1);
  if (alLado) {
    sitio.X = donde.Derecha() - sitio.Ancho;
  } else {
    sitio.Y += sitio.Alto;
  }
  PonerPareja({sitio, letra, mide, piezas}, escena, 0);
  return piezas;
}

}  // namespace tasca
