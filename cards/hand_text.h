#pragma once
// Hands as text for the player. Card names are shown with their padding.
#include <string>

#include "table/table.h"

namespace tasca {

inline constexpr int TodosLosAsientos = -1;  // for MostrarManos

// The card in slot 1..4 of a seat: "Rey        de oros      ".
std::u16string TextoCarta(const Table& t, Seat asiento, int hueco);

// The human's four cards in one line, separated by ", ".
std::u16string TextoMano(const Table& t);

// Writes the hand of a seat to Text1; with TodosLosAsientos all four hands, each after the name of
// its seat. Sets CartasVistas: to all cards when all hands are shown, otherwise to none.
void MostrarManos(Table& t, Integer asiento);

}  // namespace tasca
