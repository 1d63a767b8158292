#pragma once
// The colours of the drawn table, for light, dark and high-contrast desktops.
#include <QColor>
#include <QPalette>

namespace tasca {

struct MesaColors {
  bool Oscuro = false;     // the desktop is dark: the cards have the dark paper
  bool Contraste = false;  // floor, wood and cloth have the window's colour
  QColor Suelo, Junta;
  QColor Madera, Veta, Canto;
  QColor Pano, PanoOscuro, PanoLinea, PanoTexto;
  QColor Placa, PlacaTexto, PlacaBorde;
  QColor Nuestra, Suya;
  QColor Pizarra, Tiza, TizaTenue, PizarraNuestra, PizarraSuya;
  QColor Marca, Tinta, Ordago;
  QColor Si, No;
  QColor Amarraco, AmarracoTexto, Piedra, PiedraLuz, PiedraBorde;
  QColor Texto, TextoTenue;  // on the window's own colour

  // The colour of a pareja's sign on a plate or on the window.
  const QColor& De(int pareja) const { return pareja == 1 ? Nuestra : Suya; }
};

// The colours that go with the desktop's.
MesaColors ColorsFor(const QPalette& paleta);

}  // namespace tasca
