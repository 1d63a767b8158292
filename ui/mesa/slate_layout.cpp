// The slate: a cell for each lance, with the stones of its bet.
#include <algorithm>

#include "ui/mesa/measures.h"
#include "ui/mesa/palabras.h"

namespace tasca {
namespace {

constexpr int MaximoFichas = 20;  // more than that are a number alone

struct Apuesta {
  int Vistas = 0;
  int Piedras = 0;
  ClaseFicha Clase = ClaseFicha::Vista;
};

// The stones that lie in the lance's place.
Apuesta ApuestaEn(const CeldaPizarra& celda) {
  if (celda.Estado == EstadoLance::Queridas) return {.Vistas = celda.Piedras};
  if (celda.Estado != EstadoLance::Envite) return {};
  const bool nuestra = celda.De == 1;
  return {.Vistas = celda.Vistas,
          .Piedras = celda.Piedras,
          .Clase = nuestra ? ClaseFicha::Nuestra : ClaseFicha::Suya};
}

// In one row or two, never wider than the cell.
void PonerFichas(const Composicion& c, const Rect& celda, const Apuesta& apuesta) {
  const int total = apuesta.Vistas + apuesta.Piedras;
  if (total <= 0 || total > MaximoFichas) return;
  const double f = c.M.f;
  const bool dosFilas = !c.M.Baja && total > MaximoFichas / 2;
  const int porFila = dosFilas ? (total + 1) / 2 : total;
  const double lado = f * 0.62;
  const double paso =
      porFila == 1 ? 0 : std::min(f * 0.74, (celda.Ancho - f - lado) / (porFila - 1));
  const double y = celda.Abajo() - f * (c.M.Baja ? 0.92 : 1.68);
  for (int i = 0; i < total; ++i) {
    const int enFila = i % porFila;
    const int enEsta = std::min(porFila, total - (i / porFila) * porFila);
    const double x = celda.CentroX() - (paso * (enEsta - 1) + lado) / 2 + paso * enFila;
    const int fila = i / porFila;
    const double bajada = dosFilas ? fila * f * 0.7 : f * (c.M.Baja ? 0.0 : 0.35);
    const ClaseFicha clase = i < apuesta.Vistas ? ClaseFicha::Vista : apuesta.Clase;
    c.Hoja.Piezas.emplace_back(Ficha{{x, y + bajada, lado, lado}, clase, i});
  }
}

CeldaPuesta CeldaEn(const Composicion& c, const CeldaPizarra& celda, const Rect& donde) {
  CeldaPuesta puesta;
  puesta.Donde = donde;
  puesta.Lance = celda.Lance;
  puesta.Marca = celda.Marca;
  puesta.PorJugar = celda.Estado == EstadoLance::PorJugar || celda.Estado == EstadoLance::NoSeJugo;
  puesta.EsOrdago =
      celda.Estado == EstadoLance::Ordago || celda.Estado == EstadoLance::OrdagoQuerido;
  puesta.De = celda.De;
  puesta.Tipo = {puesta.EsOrdago ? 1.08 : 0.98,
                 puesta.EsOrdago || celda.Marca == MarcaLance::EnJuego};
  const double cabe = donde.Ancho - c.M.f * (celda.De ? 1.9 : 0.7);
  const std::u16string texto = EstadoEscrito(celda);
  const double ancho = c.Mide(texto, puesta.Tipo);
  if (ancho > cabe) puesta.Tipo.Factor = std::max(0.7, 0.98 * puesta.Tipo.Factor * cabe / ancho);
  puesta.Estado = Abreviado(texto, puesta.Tipo, cabe, c.Mide);
  return puesta;
}

}  // namespace

void PonerPizarra(const Composicion& c) {
  c.Hoja.Pizarra = c.M.Pizarra;
  if (c.M.Pizarra.Vacio() || c.Vista.Pizarra.empty()) return;
  c.Hoja.Piezas.emplace_back(PizarraPuesta{c.M.Pizarra});
  constexpr double marco = 3;
  const Rect dentro = Dentro(c.M.Pizarra, marco);
  const double ancho = dentro.Ancho / static_cast<double>(c.Vista.Pizarra.size());
  Rect donde{dentro.X, dentro.Y, ancho, dentro.Alto};
  for (const CeldaPizarra& celda : c.Vista.Pizarra) {
    CeldaPuesta puesta = CeldaEn(c, celda, donde);
    puesta.EsLaPrimera = donde.X == dentro.X;
    c.Hoja.Piezas.emplace_back(std::move(puesta));
    PonerFichas(c, donde, ApuestaEn(celda));
    donde.X += ancho;
  }
}

}  // namespace tasca
