#pragma once
// The scoreboard, and how juegos make vacas and vacas the match.
#include "table/game.h"

namespace tasca {

// Rewrites Text3: stones, juegos and vacas, the human's pareja first.
void MostrarTanteo(Table& t);

// After a juego has been credited: a pareja with enough juegos takes the vaca and, with enough
// vacas, the match (FinPartida). Tells the player, and rewrites the scoreboard. May throw
// LeaveProgram.
void ComprobarVaca(Game& g);

// The end of a match won by `pareja`: the opponents' words, another match?, other players? Another
// match with the same players sets all scores to 0 and starts a hand. Throws LeaveProgram when the
// human has had enough.
void FinPartida(Game& g, Pareja pareja);

// The pareja takes the juego in play at once, after an accepted órdago.
void GanaJuego(Game& g, Pareja pareja);

}  // namespace tasca
