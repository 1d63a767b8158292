#pragma once
// Where a reader of the character file stops the program: by its own message, and by what the
// checker says of it. A reader is named as the checker does: "el juego", "el editor", "el diálogo
// de inicio".
#include <algorithm>
#include <optional>
#include <string_view>

#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "characters/check.h"

namespace tasca::test {

// The line at which a reader ends the program, from its message.
inline std::optional<int> LineaDe(const RunTimeError& error) {
  constexpr std::u16string_view Marca = u", línea ";
  constexpr std::size_t Cifras = 9;
  const std::u16string_view mensaje = error.Message();
  const std::size_t en = mensaje.find(Marca);
  if (en == std::u16string_view::npos) return std::nullopt;
  return LeadingWhole(mensaje.substr(en + Marca.size(), Cifras));
}

template <class Leer>
std::optional<int> DondeSeDetiene(const Leer& leer) {
  try {
    leer();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return LineaDe(error);
  }
}

inline bool Detiene(const Falta& falta, std::u16string_view lector) {
  const std::u16string_view texto = falta.Texto;
  if (!Contains(texto, u"y aquí se detiene el programa")) return false;
  const std::size_t solo = texto.find(u"(solo para ");
  return solo == std::u16string_view::npos || Contains(texto.substr(solo), lector);
}

// The first line at which the checker has the reader stop.
inline std::optional<int> DondeDice(const Revision& revision, std::u16string_view lector) {
  const auto primera =
      std::find_if(revision.Faltas.begin(), revision.Faltas.end(),
                   [lector](const Falta& falta) { return Detiene(falta, lector); });
  return primera == revision.Faltas.end() ? std::nullopt : std::optional{primera->Linea};
}

// Whether the checker has the reader stop at that line, perhaps not for the first time.
inline bool DiceEn(const Revision& revision, int linea, std::u16string_view lector) {
  return std::any_of(revision.Faltas.begin(), revision.Faltas.end(),
                     [linea, lector](const Falta& falta) {
                       return falta.Linea == linea && Detiene(falta, lector);
                     });
}

}  // namespace tasca::test
