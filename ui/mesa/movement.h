#pragma once
// What moves when the table changes: cards slide from the deck or turn over, stones drop. A
// movement only delays how something is seen: the sheet is always the new one.
#include <vector>

#include "scene/scene.h"
#include "ui/mesa/pieces.h"

namespace tasca {

enum class ClaseMovimiento {
  Desliza,  // a card slides from where the deck lies
  Voltea,   // a card turns over
  Cae,      // a stone drops
};

struct Movimiento {
  Pieza Que;  // where it ends
  ClaseMovimiento Clase = ClaseMovimiento::Desliza;
  int Espera = 0;     // milliseconds before it begins
  double DesdeX = 0;  // from how far away it comes
  double DesdeY = 0;

  // Milliseconds until it has ended.
  int Fin() const;

  bool operator==(const Movimiento&) const = default;
};

// A moving piece at one instant.
struct Fotograma {
  Pieza Que;
  double Estrecho = 1;  // share of its width: less than 1 while it turns over
  double Opacidad = 1;
};

// The cards that arrive or turn over between two scenes, as they lie among the new pieces.
std::vector<Movimiento> MovimientosDeCartas(const Escena& antes, const Escena& ahora,
                                            const std::vector<Pieza>& piezas);

// The stones that lie on the table now and did not before.
std::vector<Movimiento> MovimientosDeFichas(const std::vector<Pieza>& antes,
                                            const std::vector<Pieza>& piezas);

// The piece so many milliseconds after the start.
Fotograma FotogramaDe(const Movimiento& movimiento, double milisegundos);

}  // namespace tasca
