// The three arrangements.
#include "ui/mesa/window_layout.h"

#include <cmath>

namespace tasca {
namespace {

// A picture lower than this many letters would be too crowded to read.
constexpr double AltoMinimoMesa = 17;

double Margen(const MedidasVentana& m) { return std::round(m.Letra * 0.7); }

double AltoMarcador(const MedidasVentana& m) { return std::round(m.Letra * 4.1); }

// Between Text3 and the help line, for everything else of a stacked window.
double RestoApilado(const MedidasVentana& m) {
  return m.Alto - m.AltoTanteo - AltoMarcador(m) - m.AltoAyuda - 5 * Margen(m);
}

double AnchoColumna(const MedidasVentana& m) {
  return std::round(std::clamp(0.335 * m.Ancho, 28 * m.Letra, 44 * m.Letra));
}

Rect Abajo(const MedidasVentana& m) {
  const double margen = Margen(m);
  return {margen, m.Menu + m.Alto - m.AltoAyuda - margen / 2, m.Ancho - 2 * margen, m.AltoAyuda};
}

PartesVentana AlLado(const MedidasVentana& m, double altoTexto1) {
  PartesVentana p{.Modo = Reparto::AlLado, .Ayuda = Abajo(m)};
  const double margen = Margen(m);
  const double columna = AnchoColumna(m);
  const double x = m.Ancho - columna;
  const double ancho = columna - margen;
  const double fondo = p.Ayuda.Y - margen / 2;
  p.Mesa = Entre(0, m.Menu, x - margen, fondo);
  double y = m.Menu + margen / 2;
  p.RotuloTexto3 = {x, y, ancho, m.AltoRotulo};
  y += m.AltoRotulo + margen / 4;
  p.Texto3 = {x, y, ancho, m.AltoTanteo};
  y += m.AltoTanteo + margen;
  p.Tanteo = {x, y, ancho, 2 * AltoMarcador(m)};
  y += p.Tanteo.Alto + margen;
  p.Texto1 = {x, fondo - altoTexto1, ancho, altoTexto1};
  p.RotuloTexto1 = {x, p.Texto1.Y - margen / 4 - m.AltoRotulo, ancho, m.AltoRotulo};
  p.Texto2 = Entre(x, y, x + ancho, p.RotuloTexto1.Y - margen / 2);
  return p;
}

PartesVentana Apilado(const MedidasVentana& m, double altoTexto1) {
  PartesVentana p{.Modo = Reparto::Apilado, .Ayuda = Abajo(m)};
  const double margen = Margen(m);
  const double ancho = m.Ancho - 2 * margen;
  const double rotulo = std::min(m.AnchoRotulo + margen, ancho / 2);
  double y = m.Menu + margen / 2;
  p.RotuloTexto3 = {margen, y, rotulo, m.AltoTanteo};
  p.Texto3 = {margen + rotulo, y, ancho - rotulo, m.AltoTanteo};
  y += m.AltoTanteo + margen / 2;
  const double resto = RestoApilado(m);
  const double textos = 7 * m.AltoLinea + m.MargenTexto + altoTexto1;
  p.Mesa = {0, y, m.Ancho, std::round(std::max(0.6 * resto, resto - textos))};
  y += p.Mesa.Alto + margen / 2;
  p.Tanteo = {margen, y, ancho, AltoMarcador(m)};
  y += p.Tanteo.Alto + margen / 2;
  p.Texto1 = {margen, p.Ayuda.Y - margen / 2 - altoTexto1, ancho, altoTexto1};
  p.Texto2 = Entre(margen, y, margen + ancho, p.Texto1.Y - margen / 2);
  return p;
}

PartesVentana SoloTexto(const MedidasVentana& m, double altoTexto1) {
  PartesVentana p{.Modo = Reparto::SoloTexto, .Ayuda = Abajo(m)};
  const double margen = Margen(m);
  const double ancho = m.Ancho - 2 * margen;
  const double rotulo = std::min(m.AnchoRotulo + margen, ancho / 2);
  const double y = m.Menu + margen;
  p.RotuloTexto3 = {margen, y, rotulo, m.AltoTanteo};
  p.Texto3 = {margen + rotulo, y, ancho - rotulo, m.AltoTanteo};
  p.Texto1 = {margen, p.Ayuda.Y - margen / 2 - altoTexto1, ancho, altoTexto1};
  p.RotuloTexto1 = {margen, p.Texto1.Y - margen / 4 - m.AltoRotulo, ancho, m.AltoRotulo};
  p.Texto2 =
      Entre(margen, p.Texto3.Abajo() + margen, margen + ancho, p.RotuloTexto1.Y - margen / 2);
  return p;
}

}  // namespace

Reparto RepartoDe(const MedidasVentana& m) {
  const double alto = m.Alto + m.Menu;
  if (!m.QuiereMesa || m.Ancho < 48 * m.Letra || alto < 36 * m.Letra) return Reparto::SoloTexto;
  if (m.Ancho >= 74 * m.Letra && m.Ancho >= 1.15 * alto) return Reparto::AlLado;
  const bool cabe = 0.6 * RestoApilado(m) >= AltoMinimoMesa * m.Letra;
  return cabe ? Reparto::Apilado : Reparto::SoloTexto;
}

double AltoMaximoTexto1(const MedidasVentana& m) {
  switch (RepartoDe(m)) {
    case Reparto::AlLado:
      return std::floor(0.4 * m.Alto);
    case Reparto::Apilado:
      return std::ceil(3 * m.AltoLinea + m.MargenTexto);
    case Reparto::SoloTexto:
      break;
  }
  return std::max(3 * m.AltoLinea, std::floor((m.Alto + m.Menu) / 2));
}

PartesVentana PartesDe(const MedidasVentana& m, double altoTexto1) {
  const double alto = std::min(altoTexto1, AltoMaximoTexto1(m));
  switch (RepartoDe(m)) {
    case Reparto::AlLado:
      return AlLado(m, alto);
    case Reparto::Apilado:
      return Apilado(m, alto);
    case Reparto::SoloTexto:
      break;
  }
  return SoloTexto(m, alto);
}

}  // namespace tasca
