#pragma once
// What a seat says aloud: one line of the transcript, in the character's own words.
#include "base/rnd.h"
#include "table/table.h"

namespace tasca {

// Appends one spoken line to Text2. `cantidad` is the stones of a bet, or SinCantidad. The human
// (seat 1) speaks the default phrases; a computer seat, with UsarExpresiones, one of its own three:
// two draws, which also copy the chosen phrase over one of the three. Throws RunTimeError when the
// computer seat's phrase is empty. Dichos keeps what was said.
void DiceJugador(Table& t, Rnd& rnd, Seat asiento, MessageCategory categoria, Integer cantidad);

// Begins the transcript anew with this text: what was said before is gone from Text2 and Dichos.
void EmpezarRelato(Table& t, std::u16string_view texto = {});

}  // namespace tasca
