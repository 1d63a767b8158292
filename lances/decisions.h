#pragma once
// Decision rules of the computer seats that several lances share.
#include <optional>

#include "lances/lance.h"

namespace tasca {

// The score from the point of view of a seat.
struct Marcador {
  Marcador(const Table& t, Seat asiento);

  Integer Propias;           // stones of the seat's pareja
  Integer Contrarias;        // stones of its opponents
  Integer FaltanPropias;     // stones that its pareja lacks to PiedrasJuego
  Integer FaltanContrarias;  // stones that the opponents lack to PiedrasJuego
  bool ContrariosCerca;      // the opponents lack fewer than seven
};

// Órdago if the opponents lack one stone, or lack fewer than seven and are ahead: the juego is
// nearly lost anyway. Otherwise nothing. Does not draw.
std::optional<Decision> OrdagoPorTanteo(const Table& t, Seat asiento);

// Opening in grande and pequeña with `cartas` good cards, by x = (cartas + 2) x draw: paso below 2,
// envido below 5, envido más below 5.5, otherwise órdago. Draws once.
Decision AperturaPorCartas(Rnd& rnd, int cartas);

// Answer in grande and pequeña with `cartas` good cards (Reyes or Ases), minus the discard passes:
// quiero with two or more. Draws at most once.
// Kept: with fewer than two it never accepts a bet, it raises or refuses.
Decision RespuestaPorCartas(const Table& t, Rnd& rnd, Seat asiento, int cartas);

// Answer in juego and punto. `fuerza` combines speaking order and hand; a lower value is better.
// Draws once, unless the score decides.
Decision RespuestaPorFuerza(const Table& t, Rnd& rnd, Seat asiento, int fuerza);

}  // namespace tasca
