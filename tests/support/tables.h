#pragma once
// Tables for tests, with hands written as text.
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca::test {

// A table in the middle of a hand: the deck is built, all seats hold "7 6 5 4" (no pares, no
// juego), the speaking order is 1 2 3 4, and the match has 35 stones, 3 juegos and 3 vacas. The
// style is direct, names are not used, expressions are. Characters 3, 4, 5 ("Berta", "el Cojo",
// "Dora") sit at seats 2, 3, 4; the human is "Ana". Every phrase is its tag and its slot ("QMus1").
Table MesaDePrueba();

// Writes a hand into slots 1 to 4 of a seat, in the order given: "R R 3 5". Ranks: A 2 3 4 5 6 7 S
// C R; "-" is an empty slot. Equal ranks get the suits oros, copas, espadas, bastos in turn, so
// that a hand has no card twice; two seats may hold the same card. Fails the test for an invalid
// hand.
void DarMano(Table& t, Seat asiento, std::string_view cartas);

// The number 1 to 40 of a card: rank as above, suit 1 to 4.
int NumeroDeCarta(char figura, int palo);

// Converts UTF-16 to UTF-8 unit by unit, for readable comparisons. Surrogates are not combined.
std::string Utf8(std::u16string_view texto);

}  // namespace tasca::test
