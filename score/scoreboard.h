#pragma once
// The scoreboard, and the end of a juego, a vaca and the match. Juegos add up to a vaca, vacas to
// the match.
#include <string>

#include "table/game.h"

namespace tasca {

// Stones, juegos and vacas of both parejas, the human's first.
std::u16string TextoTanteo(const Table& t);

// Rewrites Text3 with TextoTanteo.
void MostrarTanteo(Table& t);

// Checks the juegos after one has been added. A pareja with enough juegos wins the vaca: a message
// box says so and Juegos is reset. With enough vacas it also wins the match (FinPartida). Rewrites
// Text3. Throws what FinPartida throws.
void ComprobarVaca(Game& g);

// Ends a match won by `pareja`: shows the result and the opponents' comments, then asks for another
// match and for other companions. Another match with the same companions resets all scores and
// starts a hand; other companions are requested from the port. Throws LeaveProgram if the player
// declines another match.
void FinPartida(Game& g, Pareja pareja);

// `pareja` wins the current juego by an accepted órdago: adds the juego, resets Piedras, checks the
// vaca, and sets Fase to EmpezarMano. Throws what ComprobarVaca throws.
void GanaJuego(Game& g, Pareja pareja);

}  // namespace tasca
