#pragma once
// Matching of typed answers: ignores case and accents, and accepts the beginning of a word.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

// A possible answer to a question: the number to type, or the name.
struct Option {
  int Numero = 0;
  std::u16string Texto;
};

// Converts to lower case and strips accents and surrounding blanks. Covers the letters of
// Windows-1252 and combining accents.
std::u16string Fold(std::u16string_view texto);

// True for "s", "sí", "y" and "yes", false for "n" and "no", nothing for anything else.
std::optional<bool> ReadYesNo(std::u16string_view respuesta);

// The numbers of the options that match `respuesta`. The first of these criteria that matches
// decides: the number, the whole name, the beginning of the name, the beginning of a word of it. If
// the name of one match is the beginning of all the others ("Envido", "Envido Más"), only that one
// is returned. An empty answer matches nothing.
std::vector<int> FindOptions(const std::vector<Option>& opciones, std::u16string_view respuesta);

}  // namespace tasca
