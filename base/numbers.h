#pragma once
// Numbers that people type or that stand in a file, and the two ways of making a number whole. None
// of it depends on the locale.
#include <string_view>

#include "base/integer.h"

namespace tasca {

// The number at the start of a text: blanks, a sign, digits, a point and digits, e or E and digits.
// What follows is ignored; without digits it is 0; beyond a double's range it is the greatest
// double.
double LeadingNumber(std::u16string_view texto);

// The whole number at the start of a text of up to nine characters: blanks, a sign, digits.
int LeadingWhole(std::u16string_view texto);

// To the nearest whole number, halves to the even neighbour.
double RoundHalfEven(double numero);

// RoundHalfEven as an Integer; throws RunTimeError (overflow) outside 16 bits.
Integer CInt(double numero);

}  // namespace tasca
