#pragma once
// The key codes and the modifier state that the rules handle.

namespace tasca {

inline constexpr int TeclaEnter = 13;
inline constexpr int TeclaQ = 81;
inline constexpr int Tecla0 = 48;
inline constexpr int TeclaF2 = 113;
inline constexpr int MayusculasYControl = 3;  // bit 0 Shift, bit 1 Ctrl

// True for Ctrl+Shift+0, which shows all hands. It is not consumed: the input line gets it as well.
constexpr bool EsTeclaDeVerManos(int KeyCode, int Shift) {
  return KeyCode == Tecla0 && Shift == MayusculasYControl;
}

}  // namespace tasca
