#pragma once
// A match to be kept.
#include <memory>
#include <string>

#include "cards/deck.h"
#include "table/table.h"

namespace tasca::test {

// A match of a player with this name, after a discard pass that gave every seat four Reyes.
inline std::unique_ptr<Table> MatchOf(const std::u16string& nombre) {
  auto t = std::make_unique<Table>();
  CrearCartas(*t);
  for (int i = 1; i <= CartasBaraja; ++i) t->Baraja[i] = i;
  for (auto& mano : t->Manos) mano = {10, 20, 30, 40};
  t->CartaSiguiente = 17;
  t->DescarteSiguiente = 1;
  t->RondasMus = 1;
  t->OrdenAsiento = {1, 2, 3, 4};
  t->PiedrasJuego = 35;
  t->JuegosVaca = 3;
  t->VacasPartida = 3;
  t->PersonajeAsiento = {0, 3, 4, 5};
  t->NombreJugador = nombre;
  return t;
}

}  // namespace tasca::test
