#pragma once
// What the player can ask for at any time: the hand, the score with the bets, and who is mano. Made
// from the scene, so that nothing is told that cannot be seen.
#include <string>

#include "scene/scene.h"

namespace tasca {

// "Rey de copas, sota de copas, seis de copas, as de oros.", or that there are no cards.
std::u16string ManoDicha(const Escena& escena);

// The score of both parejas, the player's first, then the lances that have been played or bet on.
std::u16string TanteoDicho(const Escena& escena);

// "Es mano Dora, de la pareja contraria, a su izquierda.", "Es usted mano.", or that it is not
// decided yet.
std::u16string ManoDichaPorNombre(const Escena& escena);

}  // namespace tasca
