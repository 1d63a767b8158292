#pragma once
// The keys that mean something to the rules, by their codes.

namespace tasca {

inline constexpr int TeclaEnter = 13;
inline constexpr int TeclaQ = 81;
inline constexpr int Tecla0 = 48;
inline constexpr int TeclaF2 = 113;
inline constexpr int MayusculasYControl = 3;  // Shift and Ctrl, nothing else

}  // namespace tasca
