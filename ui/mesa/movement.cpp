// Movements are computed from what two scenes show, never from the state of the game.
#include "ui/mesa/movement.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tasca {
namespace {

// Milliseconds.
constexpr int Duracion = 140;
constexpr int EntreCartas = 15;

// How high above its place a stone begins, in heights of the stone.
constexpr double AltoDeCaida = 1.5;

// A computer seat's card seen before and hidden now belongs to a new hand.
bool Llega(const Naipe& antes, const Naipe& ahora) {
  return ahora.Hay && (!antes.Hay || (antes.Carta != 0 && ahora.Carta != antes.Carta));
}

bool SeVuelve(const Naipe& antes, const Naipe& ahora) {
  return antes.Hay && antes.Carta == 0 && ahora.Carta != 0;
}

// How many hidden cards a seat has just exchanged. Nobody sees which.
int Cambiadas(const AsientoVisto& antes, const AsientoVisto& ahora) {
  const bool deNuevo = ahora.CartasCambiadas != antes.CartasCambiadas;
  return deNuevo && ahora.CartasCambiadas ? int{*ahora.CartasCambiadas} : 0;
}

std::optional<ClaseMovimiento> ClaseDe(const AsientoVisto& antes, const AsientoVisto& ahora,
                                       int hueco) {
  const Naipe& era = antes.Naipes[hueco];
  const Naipe& es = ahora.Naipes[hueco];
  if (SeVuelve(era, es)) return ClaseMovimiento::Voltea;
  if (Llega(era, es)) return ClaseMovimiento::Desliza;
  const bool cambiada = es.Hay && es.Carta == 0 && hueco > 4 - Cambiadas(antes, ahora);
  return cambiada ? std::optional{ClaseMovimiento::Desliza} : std::nullopt;
}

// The deck is laid before the discards. Without a deck the cards come from the middle of the cloth.
Rect LugarDelMazo(const std::vector<Pieza>& piezas) {
  Rect todo;
  for (const Pieza& pieza : piezas) {
    if (const auto* const monton = std::get_if<Monton>(&pieza)) return monton->Donde;
    todo = Union(todo, Lugar(pieza));
  }
  return {todo.CentroX(), todo.CentroY(), 0, 0};
}

double Frenado(double parte) { return 1 - std::pow(1 - parte, 3); }

template <class Puesta>
Pieza Trasladada(Puesta pieza, double x, double y) {
  pieza.Donde.X += x;
  pieza.Donde.Y += y;
  return pieza;
}

// In the first half of its turn the card still shows its back.
Fotograma AMedioVolver(const Movimiento& m, double parte) {
  Fotograma f{.Que = m.Que, .Estrecho = std::abs(1 - 2 * parte)};
  if (parte < 0.5) std::get<CartaPuesta>(f.Que).Carta = 0;
  return f;
}

}  // namespace

int Movimiento::Fin() const { return Espera + Duracion; }

std::vector<Movimiento> MovimientosDeCartas(const Escena& antes, const Escena& ahora,
                                            const std::vector<Pieza>& piezas) {
  std::vector<Movimiento> movimientos;
  const Rect mazo = LugarDelMazo(piezas);
  for (const Pieza& pieza : piezas) {
    const auto* const carta = std::get_if<CartaPuesta>(&pieza);
    if (carta == nullptr) continue;
    const auto clase = ClaseDe(antes.Asientos[carta->De], ahora.Asientos[carta->De], carta->Hueco);
    if (!clase) continue;
    Movimiento m{.Que = pieza, .Clase = *clase, .Espera = EntreCartas * (carta->Hueco - 1)};
    if (*clase == ClaseMovimiento::Desliza) {
      m.DesdeX = mazo.CentroX() - carta->Donde.CentroX();
      m.DesdeY = mazo.CentroY() - carta->Donde.CentroY();
    }
    movimientos.push_back(m);
  }
  return movimientos;
}

std::vector<Movimiento> MovimientosDeFichas(const std::vector<Pieza>& antes,
                                            const std::vector<Pieza>& piezas) {
  std::vector<Movimiento> movimientos;
  for (const Pieza& pieza : piezas) {
    const bool esNueva = std::holds_alternative<Ficha>(pieza) &&
                         std::find(antes.begin(), antes.end(), pieza) == antes.end();
    if (!esNueva) continue;
    movimientos.push_back(
        {.Que = pieza, .Clase = ClaseMovimiento::Cae, .DesdeY = -AltoDeCaida * Lugar(pieza).Alto});
  }
  return movimientos;
}

Fotograma FotogramaDe(const Movimiento& m, double milisegundos) {
  const double parte = std::clamp((milisegundos - m.Espera) / Duracion, 0.0, 1.0);
  if (m.Clase == ClaseMovimiento::Voltea) return AMedioVolver(m, parte);
  const double falta = 1 - Frenado(parte);
  Pieza donde = std::visit(
      [&](const auto& pieza) { return Trasladada(pieza, falta * m.DesdeX, falta * m.DesdeY); },
      m.Que);
  return {.Que = std::move(donde), .Opacidad = m.Clase == ClaseMovimiento::Cae ? parte : 1};
}

}  // namespace tasca
