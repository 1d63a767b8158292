#pragma once
// Keys as the rules count them.
#include <QKeyEvent>

namespace tasca {

struct Tecla {
  int KeyCode = 0;
  int Shift = 0;  // 1 Shift, 2 Ctrl, 4 Alt, added up
};

// Enter of either keyboard half, Q, F2, and the 0 key by its place as well as by its sign: with
// Ctrl and Shift it arrives as "=" from a Spanish keyboard and as ")" from an American one. Any
// other key has a code that means nothing to the rules.
Tecla TeclaDe(const QKeyEvent& suceso);

}  // namespace tasca
