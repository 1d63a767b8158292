#pragma once
// The pieces of a computer seat's judgement that are one rule for several lances.
#include <optional>

#include "lances/lance.h"

namespace tasca {

// What a seat sees of the score.
struct Marcador {
  Marcador(const Table& t, Seat asiento);

  Integer Propias;           // stones of the seat's pareja
  Integer Contrarias;        // stones of its opponents
  Integer FaltanPropias;     // stones that its own pareja still needs for the juego
  Integer FaltanContrarias;  // stones that the opponents still need
  bool ContrariosCerca;      // they need fewer than seven
};

// Órdago, when the opponents need a single stone, or are within six of the juego and ahead: nothing
// is left to lose. Otherwise no decision yet.
std::optional<Decision> OrdagoPorTanteo(const Table& t, Seat asiento);

// The opening by strength: x = (cartas + 2) x Rnd; below 2 paso, below 5 envido, below 5.5 envido
// más, else órdago. Draws once.
Decision AperturaPorCartas(Rnd& rnd, int cartas);

// The answer by good cards, in grande (Reyes) and pequeña (Ases): `cartas` of them, less the
// discard passes. Draws at most once. Kept: with fewer than two it never simply accepts a bet, it
// raises or refuses.
Decision RespuestaPorCartas(const Table& t, Rnd& rnd, Seat asiento, int cartas);

// The answer by place and strength, in juego and punto: the lower `fuerza`, the better. Draws once,
// unless the score alone decides.
Decision RespuestaPorFuerza(const Table& t, Rnd& rnd, Seat asiento, int fuerza);

}  // namespace tasca
