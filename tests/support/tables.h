#pragma once
// Tables for tests, with hands written as text.
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca::test {

// A table in the middle of a hand: cards built, four hands of no value in any lance that matters,
// speaking order 1 2 3 4, the default match (35 stones, 3 juegos, 3 vacas), direct style, without
// names and with phrases of their own. Seats 2, 3, 4 hold characters 3, 4, 5 ("Berta", "el Cojo",
// "Dora"); the human is "Ana". Every phrase of every character is its tag and its slot ("QMus1").
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
