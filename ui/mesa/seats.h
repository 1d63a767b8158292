#pragma once
// What belongs to a seat: its plate, its badges and its bubble, each put into a given place.
#include "ui/mesa/measures.h"

namespace tasca {

enum class Alineado { Izquierda, Centro, Derecha };

// Heights, in letters.
inline constexpr double AltoPlaca = 2.1;
inline constexpr double AltoDistintivo = 1.45;
inline constexpr double BajoPlaca = 0.4;  // between a plate and the badges below it
inline constexpr double ConDistintivos = AltoPlaca + BajoPlaca + AltoDistintivo;

// The plate in the top of `sitio`, no wider than that; what it covers.
Rect PonerPlaca(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a);

// The badges in one row in the top of `sitio`, made smaller where they do not fit; what they cover.
Rect PonerDistintivos(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a);

// The plate, with the badges below it.
void PonerPlacaYDistintivos(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a);

// The last words of a seat, broken into lines for `sitio`; no lines when it has said nothing or
// when they do not fit.
struct Globo {
  std::vector<std::u16string> Lineas;
  double Ancho = 0;
  double Alto = 0;
};
Globo GloboPara(const Composicion& c, Seat asiento, double ancho, double alto);

// How high a bubble with so many lines is, in letters.
constexpr double AltoGlobo(int lineas) { return 1.4 * lineas + 1.05; }

// The bubble with its top left corner at `x`, `y`, and its point towards a place.
void PonerGlobo(const Composicion& c, Seat asiento, const Globo& globo, double x, double y,
                Lado punta, double puntaX, double puntaY);

// The letter of bubbles.
Letra LetraDeGlobo(const Composicion& c);

}  // namespace tasca
