#pragma once
// Scenes for the tests of the drawn table.
#include <random>

#include "scene/scene.h"
#include "ui/mesa/text_fit.h"

namespace tasca::test {

// Any scene that a match could show, and some that it could not: names and words of any length, any
// bets, hands that lie open or not.
Escena EscenaAlAzar(std::mt19937& azar);

// The start of a hand: four cards each, face down but the player's; seat 4 is mano.
Escena EscenaInicial();

// Letters of a plain font, `letra` pixels high.
AnchoDeTexto LetrasCorrientes(double letra);

}  // namespace tasca::test
