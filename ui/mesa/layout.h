#pragma once
// The drawn table: a scene laid out on a rectangle. All lengths derive from the font size and the
// height of the player's cards. Pieces that are read never overlap.
#include <vector>

#include "scene/scene.h"
#include "ui/mesa/pieces.h"
#include "ui/mesa/rect.h"
#include "ui/mesa/text_fit.h"

namespace tasca {

// Width of a card whose height is 1.
inline constexpr double ProporcionCarta = 200.0 / 308.0;

struct Lamina {
  Rect Suelo;   // the whole picture
  Rect Madera;  // the table top
  Rect Pano;    // the cloth
  double Letra = 0;
  Rect Mano;     // the player's cards
  Rect Pizarra;  // empty while the open hands need its place
  Rect Enter;    // where the key cap lies when it is there: the same for every scene
  Rect Libre;    // the free cloth, where boxes may open; it can be empty
  std::vector<Pieza> Piezas;

  bool operator==(const Lamina&) const = default;
};

// The table in `donde`, with letters `letra` pixels high.
Lamina LaminaDe(const Escena& escena, const Rect& donde, double letra, const AnchoDeTexto& mide);

// The score of both parejas: the stones as amarracos and piedras, the juegos and the vacas. Side by
// side where `donde` is wide, else one below the other.
std::vector<Pieza> MarcadorDe(const Escena& escena, const Rect& donde, double letra,
                              const AnchoDeTexto& mide);

}  // namespace tasca
