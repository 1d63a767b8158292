#pragma once
// Parses numbers that are typed or read from a file, and rounds them. Independent of the locale.
#include <string_view>

#include "base/integer.h"

namespace tasca {

// The number at the start of a text: blanks, sign, digits, point and digits, e or E and digits; all
// but the first digits may be missing. Ignores what follows. Without digits the result is 0; a
// number outside the range of double gives the greatest double of its sign.
double LeadingNumber(std::u16string_view texto);

// The integer at the start of a text: blanks, sign, digits. Without digits the result is 0.
// Requires at most nine characters, so that the number fits an int.
int LeadingWhole(std::u16string_view texto);

// Rounds to the nearest integer, halves to the even one (banker's rounding).
double RoundHalfEven(double numero);

// RoundHalfEven as an Integer. Throws RunTimeError (overflow) outside -32768..32767, also for NaN.
Integer CInt(double numero);

}  // namespace tasca
