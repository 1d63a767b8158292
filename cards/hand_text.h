#pragma once
// Hands as the player reads them: card names keep the padding of their fields.
#include <string>

#include "table/table.h"

namespace tasca {

inline constexpr int TodosLosAsientos = -1;

// "Rey        de oros      ": the card in slot 1..4 of a seat.
std::u16string TextoCarta(const Table& t, Seat asiento, int hueco);

// The human's four cards in one line, joined by ", ".
std::u16string TextoMano(const Table& t);

// Shows the human's hand in Text1, or, with TodosLosAsientos, all four under their names: these
// then lie open (CartasVistas).
void MostrarManos(Table& t, Integer asiento);

}  // namespace tasca
