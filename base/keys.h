#pragma once
// The keys that mean something to the rules, by their codes.

namespace tasca {

inline constexpr int TeclaEnter = 13;
inline constexpr int TeclaQ = 81;
inline constexpr int Tecla0 = 48;
inline constexpr int TeclaF2 = 113;
inline constexpr int MayusculasYControl = 3;  // Shift and Ctrl, nothing else

// Ctrl+Shift+0, which lays all hands open and is left to the input line too.
constexpr bool EsTeclaDeVerManos(int KeyCode, int Shift) {
  return KeyCode == Tecla0 && Shift == MayusculasYControl;
}

}  // namespace tasca
