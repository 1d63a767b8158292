#pragma once
// The spoken lines of the transcript.
#include "base/rnd.h"
#include "table/table.h"

namespace tasca {

// Appends one spoken line to Text2 and Dichos. `cantidad` is the stones of a bet, or SinCantidad.
// The human (seat 1) speaks the default phrase. A computer seat with UsarExpresiones speaks one of
// its character's three phrases: draws twice, and the second draw overwrites one of the phrases.
// Throws RunTimeError if the phrase of a computer seat is empty.
void DiceJugador(Table& t, Rnd& rnd, Seat asiento, MessageCategory categoria, Integer cantidad);

// Clears Text2 and Dichos and starts a new transcript with `texto`.
void EmpezarRelato(Table& t, std::u16string_view texto = {});

}  // namespace tasca
