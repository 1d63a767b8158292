#pragma once
// Where the main window's parts lie: the picture beside the three texts, above them, or not at all.
#include "ui/mesa/rect.h"

namespace tasca {

enum class Reparto {
  AlLado,     // picture left, texts right
  Apilado,    // picture above the texts
  SoloTexto,  // no picture: the window is too small for it, or the player does not want it
};

// The window's measures, in pixels.
struct MedidasVentana {
  double Ancho = 0;  // of the client area, without the menu bar
  double Alto = 0;
  double Menu = 0;         // height of the menu bar
  double Letra = 0;        // size of the system's font
  bool QuiereMesa = true;  // the player wants the picture
  double AltoTanteo = 0;   // height of Text3
  double AnchoRotulo = 0;  // of the caption of Text3
  double AltoRotulo = 0;   // of a caption
  double AltoAyuda = 0;    // of the help line
  double AltoLinea = 0;    // of a line of Text1 and Text2
  double MargenTexto = 0;  // of Text1 and Text2, above and below the lines together
};

struct PartesVentana {
  Reparto Modo = Reparto::SoloTexto;
  Rect Mesa{};    // empty without the picture
  Rect Tanteo{};  // the drawn score: empty without the picture
  Rect RotuloTexto3{};
  Rect Texto3{};
  Rect Texto2{};
  Rect RotuloTexto1{};  // empty where there is no room for it
  Rect Texto1{};
  Rect Ayuda{};

  bool operator==(const PartesVentana&) const = default;
};

// The arrangement for a window of that size.
Reparto RepartoDe(const MedidasVentana& medidas);

// How high Text1 may grow there; beyond that it scrolls.
double AltoMaximoTexto1(const MedidasVentana& medidas);

// The parts, with Text1 as high as it wants to be, at most that. The menu bar lies above them.
PartesVentana PartesDe(const MedidasVentana& medidas, double altoTexto1);

}  // namespace tasca
