#pragma once
// The count of a hand: the stones of every lance, in the order grande, pequeña, pares, juego or
// punto. The first pareja with more stones than PiedrasJuego wins the juego, and the count ends.
#include "table/game.h"

namespace tasca {

// Adds the stones of the hand to Piedras, describes them in Text2, shows all hands in Text1 and
// sets Fase to EmpezarMano. May end the juego, the vaca and the match. Throws what ComprobarVaca
// throws.
void ContarMano(Game& g);

}  // namespace tasca
