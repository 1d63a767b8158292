#pragma once
// Understanding what a player types: capitals, accents and the end of a word do not matter.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

// One of several answers: its number and its name.
struct Option {
  int Numero = 0;
  std::u16string Texto;
};

// Small letters without accents, and no blanks around them.
std::u16string Fold(std::u16string_view texto);

// "s", "sí", "y", "yes", "n", "no".
std::optional<bool> ReadYesNo(std::u16string_view respuesta);

// The numbers of the options that may be meant: the one with that number or that whole name; or
// else those whose name starts so, or else those of which a word starts so. Of "Envido" and "Envido
// Más", which start alike, the short one is meant. Nothing typed means none.
std::vector<int> FindOptions(const std::vector<Option>& opciones, std::u16string_view respuesta);

}  // namespace tasca
