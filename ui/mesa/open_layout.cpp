// Seats 2 to 4 while their hands lie open: all alike, the side ones two by two, to be read upright.
#include <algorithm>
#include <cmath>

#include "ui/mesa/seats.h"

namespace tasca {
namespace {

void PonerNaipe(const Composicion& c, Seat asiento, int hueco, const Rect& donde) {
  const Naipe& naipe = c.Vista.Asientos[asiento].Naipes[hueco];
  if (naipe.Hay) c.Hoja.Piezas.emplace_back(CartaPuesta{donde, naipe.Carta, false, asiento, hueco});
}

// Two by two, with the top left corner at `x`, `y`.
void PonerCuadro(const Composicion& c, Seat asiento, double x, double y, double alto) {
  const double ancho = alto * ProporcionCarta;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    const int columna = (hueco - 1) % 2;
    const int fila = (hueco - 1) / 2;
    PonerNaipe(c, asiento, hueco,
               {x + columna * (ancho + c.M.Hueco), y + fila * (alto + c.M.Hueco), ancho, alto});
  }
}

double LadoDelCuadro(const Medidas& m, double alto) { return 2 * alto + m.Hueco; }

double AnchoDelCuadro(const Medidas& m, double alto) {
  return 2 * alto * ProporcionCarta + m.Hueco;
}

Rect PonerFilaDelCompanero(const Composicion& c) {
  const double alto = c.M.AltoOtros;
  const double ancho = alto * ProporcionCarta;
  const Rect fila{std::round(c.M.Util.CentroX() - 2 * ancho - 1.5 * c.M.Hueco),
                  std::round(c.M.Util.Y), 4 * ancho + 3 * c.M.Hueco, alto};
  for (int hueco = 1; hueco <= 4; ++hueco) {
    PonerNaipe(c, 3, hueco, {fila.X + (hueco - 1) * (ancho + c.M.Hueco), fila.Y, ancho, alto});
  }
  return fila;
}

// If the slate fits: every plate lies below its cards.
void PonerHolgados(const Composicion& c) {
  const double f = c.M.f;
  const Rect fila = PonerFilaDelCompanero(c);
  PonerPlacaYDistintivos(c, 3, {fila.X, fila.Abajo() + 0.5 * f, fila.Ancho, 0}, Alineado::Centro);
  const double companero = fila.Abajo() + (0.5 + ConDistintivos) * f;
  const double y = std::round(c.M.Util.Y);
  const double placa = y + LadoDelCuadro(c.M, c.M.AltoOtros) + 0.6 * f;
  const double cuadro = AnchoDelCuadro(c.M, c.M.AltoOtros);
  const double hasta = (c.M.Util.Ancho - fila.Ancho) / 2 - f;
  const double ancho = placa > companero ? std::max(cuadro, std::min(13 * f, 0.4 * c.M.Util.Ancho))
                                         : std::max(cuadro, hasta);
  for (const Seat asiento : {2, 4}) {
    const bool izquierda = asiento == 4;
    PonerCuadro(c, asiento, izquierda ? c.M.Util.X : c.M.Util.Derecha() - cuadro, y, c.M.AltoOtros);
    PonerPlacaYDistintivos(c, asiento,
                           {izquierda ? c.M.Util.X : c.M.Util.Derecha() - ancho, placa, ancho, 0},
                           izquierda ? Alineado::Izquierda : Alineado::Derecha);
  }
  c.Hoja.Libre = Entre(c.M.Util.X + ancho + 0.6 * f, companero + 0.4 * f,
                       c.M.Util.Derecha() - ancho - 0.6 * f, c.M.Techo);
}

// The height of the cards of a side seat, the plate beside them or below them.
struct LadoApretado {
  double Alto = 0;
  bool PlacaAlLado = false;
};

LadoApretado LadoApretadoDe(const Medidas& m, const Rect& lado) {
  const double f = m.f;
  const double alLado =
      std::min((lado.Alto - m.Hueco) / 2, (lado.Ancho - 7.1 * f - m.Hueco) / 2 / ProporcionCarta);
  const double debajo = std::min((lado.Alto - (0.6 + ConDistintivos) * f - m.Hueco) / 2,
                                 (lado.Ancho - m.Hueco) / 2 / ProporcionCarta);
  return {.Alto = std::floor(std::min(std::max(alLado, debajo), m.AltoOtros)),
          .PlacaAlLado = alLado >= debajo};
}

void PonerLadoApretado(const Composicion& c, Seat asiento, const Rect& lado) {
  const double f = c.M.f;
  const bool izquierda = asiento == 4;
  const LadoApretado como = LadoApretadoDe(c.M, lado);
  const double cuadro = AnchoDelCuadro(c.M, como.Alto);
  PonerCuadro(c, asiento, izquierda ? lado.X : lado.Derecha() - cuadro, lado.Y, como.Alto);
  Rect sitio = lado;
  if (como.PlacaAlLado) {
    sitio.Ancho -= cuadro + 0.6 * f;
    if (izquierda) sitio.X += cuadro + 0.6 * f;
  } else {
    sitio.Y += LadoDelCuadro(c.M, como.Alto) + 0.6 * f;
  }
  PonerPlacaYDistintivos(c, asiento, sitio, izquierda ? Alineado::Izquierda : Alineado::Derecha);
}

// If not (Apretada): the partner's plate lies in the strip between the two rows of cards.
void PonerApretados(const Composicion& c) {
  const double f = c.M.f;
  const Rect fila = PonerFilaDelCompanero(c);
  const double y = fila.Abajo() + 0.5 * f;
  const double ancho = fila.Ancho;
  const Rect placa = PonerPlaca(c, 3, {fila.X, y, ancho * 0.5, 0}, Alineado::Izquierda);
  PonerDistintivos(
      c, 3, Entre(placa.Derecha() + 0.5 * f, y + 0.32 * f, fila.Derecha(), y + AltoPlaca * f),
      Alineado::Izquierda);
  const double columna = c.M.Mano.X - c.M.Util.X - 0.8 * f;
  const double abajo = c.M.Util.Abajo() - (ConDistintivos + 0.5) * f;
  PonerLadoApretado(c, 4, Entre(c.M.Util.X, c.M.Util.Y, c.M.Util.X + columna, abajo));
  PonerLadoApretado(c, 2,
                    Entre(c.M.Util.Derecha() - columna, c.M.Util.Y, c.M.Util.Derecha(), abajo));
  c.Hoja.Libre = {};
}

}  // namespace

void PonerOtrosAbiertos(const Composicion& c) {
  if (c.M.Apretada) {
    PonerApretados(c);
  } else {
    PonerHolgados(c);
  }
}

}  // namespace tasca
