#pragma once
// Places what belongs to a seat: its plate, its badges and its bubble.
#include "ui/mesa/measures.h"

namespace tasca {

enum class Alineado { Izquierda, Centro, Derecha };

// Heights, in letters.
inline constexpr double AltoPlaca = 2.1;
inline constexpr double AltoDistintivo = 1.45;
inline constexpr double BajoPlaca = 0.4;  // between a plate and the badges below it
inline constexpr double ConDistintivos = AltoPlaca + BajoPlaca + AltoDistintivo;

// Places the plate at the top of `sitio`, not wider than it. Returns the covered rectangle.
Rect PonerPlaca(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a);

// Places the badges in one row at the top of `sitio`, smaller if they do not fit. Returns the
// covered rectangle. The spoken badges are in spoken.cpp.
Rect PonerDistintivos(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a);

// Places the plate with the badges below it.
void PonerPlacaYDistintivos(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a);

// The last words of a seat, broken into lines for `sitio`; no lines when it has said nothing or
// when they do not fit.
struct Globo {
  std::vector<std::u16string> Lineas;
  double Ancho = 0;
  double Alto = 0;
};
Globo GloboPara(const Composicion& c, Seat asiento, double ancho, double alto);

// The height of a bubble with that number of lines, in letters.
constexpr double AltoGlobo(int lineas) { return 1.4 * lineas + 1.05; }

// Places the bubble with its top left corner at `x`, `y`, and its tip towards `puntaX`, `puntaY`.
void PonerGlobo(const Composicion& c, Seat asiento, const Globo& globo, double x, double y,
                Lado punta, double puntaX, double puntaY);

// The font of bubbles.
Letra LetraDeGlobo(const Composicion& c);

}  // namespace tasca
