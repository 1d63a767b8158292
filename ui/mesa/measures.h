#pragma once
// The lengths of the drawn table, from which the layout places its pieces.
#include "scene/scene.h"
#include "ui/mesa/layout.h"
#include "ui/mesa/rect.h"

namespace tasca {

struct Medidas {
  double f = 0;              // the font size in pixels, the unit of most lengths
  bool Baja = false;         // a low picture: ornaments and piles have no room
  bool Abierta = false;      // hands of seats 2 to 4 lie open
  bool Apretada = false;     // they lie open in a picture with no room for the slate
  bool PlacaEncima = false;  // the player's plate lies above the cards instead of beside them
  Rect Madera;
  Rect Pano;
  Rect Util;         // the part of the cloth where pieces may lie
  double Hueco = 0;  // between two cards
  Rect Mano;         // the player's cards
  Rect Fila;         // above them, when PlacaEncima
  Rect Pizarra;
  Rect Enter;
  double AltoOtros = 0;  // height of the others' cards
  double Techo = 0;      // the lowest line of the upper half: the slate, or the player's cards
};

// The lengths for a picture in `donde`, with letters `letra` pixels high. Of the scene only
// two things count: whether hands of seats 2 to 4 lie open, and how many lances there are.
Medidas MedidasDe(const Escena& escena, const Rect& donde, double letra);

// The inputs and the output of the layout functions.
struct Composicion {
  const Escena& Vista;
  const Medidas& M;
  const AnchoDeTexto& Mide;
  Lamina& Hoja;
};

// Each of these appends pieces to Hoja.Piezas.

// The slate with its lances and the stones of the bets.
void PonerPizarra(const Composicion& c);
// The player's cards, plate, badges and bubble, and the key cap or the sign that it is their turn.
void PonerJugador(const Composicion& c);
// Seats 2 to 4, their cards face down or lying open; what is left free goes to Hoja.Libre.
void PonerOtrosTapados(const Composicion& c);
void PonerOtrosAbiertos(const Composicion& c);

}  // namespace tasca
