#pragma once
// The line of the character file at which a reader ends the program, from the reader's own message
// and from the checker's faults. `lector` is the checker's name of a reader: "el juego", "el
// editor", "el diálogo de inicio".
#include <algorithm>
#include <optional>
#include <string_view>

#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "characters/check.h"

namespace tasca::test {

// The line that a reader's message names; nothing if it names none.
inline std::optional<int> LineaDe(const RunTimeError& error) {
  constexpr std::u16string_view Marca = u", línea ";
  constexpr std::size_t Cifras = 9;
  const std::u16string_view mensaje = error.Message();
  const std::size_t en = mensaje.find(Marca);
  if (en == std::u16string_view::npos) return std::nullopt;
  return LeadingWhole(mensaje.substr(en + Marca.size(), Cifras));
}

// Runs a reader and returns the line of its error; nothing if it throws none.
template <class Leer>
std::optional<int> DondeSeDetiene(const Leer& leer) {
  try {
    leer();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return LineaDe(error);
  }
}

// Whether the fault says that it stops the reader.
inline bool Detiene(const Falta& falta, std::u16string_view lector) {
  const std::u16string_view texto = falta.Texto;
  if (!Contains(texto, u"y aquí se detiene el programa")) return false;
  const std::size_t solo = texto.find(u"(solo para ");
  return solo == std::u16string_view::npos || Contains(texto.substr(solo), lector);
}

// The line of the first fault that stops the reader; nothing if there is none.
inline std::optional<int> DondeDice(const Revision& revision, std::u16string_view lector) {
  const auto primera =
      std::find_if(revision.Faltas.begin(), revision.Faltas.end(),
                   [lector](const Falta& falta) { return Detiene(falta, lector); });
  return primera == revision.Faltas.end() ? std::nullopt : std::optional{primera->Linea};
}

// Whether any fault of that line stops the reader.
inline bool DiceEn(const Revision& revision, int linea, std::u16string_view lector) {
  return std::any_of(revision.Faltas.begin(), revision.Faltas.end(),
                     [linea, lector](const Falta& falta) {
                       return falta.Linea == linea && Detiene(falta, lector);
                     });
}

}  // namespace tasca::test
