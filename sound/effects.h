#pragma once
// The sound effects: which sound, how often, and from which side of the table. They never wait;
// what follows a sound is started when the media player says that it has ended.
#include "table/game.h"

namespace tasca {

inline constexpr int SonidoBarajado = -1;
inline constexpr int SonidoReparto = -2;
inline constexpr int SonidoUnaCarta = 0;

// Plays shuffling (SonidoBarajado) or dealing (SonidoReparto); anything else plays nothing.
void SonidoCartas(Game& g, Integer Tipo);

// The cards of a discard pass, one seat after the other: starts with the seat `primero`;
// `cambiadas` has the number of cards that each seat changed.
void SonidoDescartes(Game& g, const Array<Integer, 1, 4>& cambiadas, Seat primero);

// Goes on to the next seat that changed cards, or ends the sequence after the fourth seat.
void SiguienteSonidoDescartes(Game& g);

// The applause for a match won.
void SonidoAplauso(Game& g);

// The media player reports a new play state; 0 and 6 say that it is idle. After the shuffle comes
// the deal, after a seat's cards the next seat's.
void Mp1_FinReproduccion(Game& g, Integer EstadoReproduccion);

}  // namespace tasca
