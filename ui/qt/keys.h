#pragma once
// Translation of Qt key events into the key codes of the rules.
#include <QKeyEvent>

namespace tasca {

struct Tecla {
  int KeyCode = 0;
  int Shift = 0;  // sum of 1 for Shift, 2 for Ctrl, 4 for Alt
};

// Translates Enter (of the keypad too), Q, F2 and 0. The 0 key is also recognised by its scan code:
// with Ctrl+Shift it arrives as "=" from a Spanish keyboard and as ")" from a US one. Any other key
// gets a code that the rules ignore.
Tecla TeclaDe(const QKeyEvent& suceso);

}  // namespace tasca
