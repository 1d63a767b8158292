#pragma once
// The sound effects: which sound is played, how often and from which side of the table. No function
// blocks; the media player reports the end of a sound, and then the next one of a sequence starts.
#include "table/game.h"

namespace tasca {

// The values of SonidoActual.
inline constexpr int SonidoBarajado = -1;
inline constexpr int SonidoReparto = -2;
inline constexpr int SonidoUnaCarta = 0;

// Plays the shuffle (SonidoBarajado) or the deal (SonidoReparto) once. Any other value plays
// nothing.
void SonidoCartas(Game& g, Integer Tipo);

// Starts the sounds of a discard pass with the seat `primero`. `cambiadas` holds the number of
// cards that each seat changed.
void SonidoDescartes(Game& g, const Array<Integer, 1, 4>& cambiadas, Seat primero);

// Plays the next seat that changed cards. After the fourth seat stops the sound and resets Mp1.
void SiguienteSonidoDescartes(Game& g);

// Plays the applause for a match won by the human's pareja.
void SonidoAplauso(Game& g);

// The media player reports a new play state. 0 (stopped) and 6 (idle) mean that the sound has
// ended; other states are ignored. Plays the deal after the shuffle, and the next seat's cards
// after a seat's cards.
void Mp1_FinReproduccion(Game& g, Integer EstadoReproduccion);

}  // namespace tasca
