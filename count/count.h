#pragma once
// The count of a hand: what every lance is worth, in the fixed order grande, pequeña, pares, juego
// or punto. A pareja that passes the stones of the juego wins it there, and nothing more is
// counted.
#include "table/game.h"

namespace tasca {

// Counts the hand into Piedras, tells it in Text2, shows all hands, and leaves Fase at -1. May end
// a juego, a vaca and the match; throws what ComprobarVaca throws.
void ContarMano(Game& g);

}  // namespace tasca
