// The new lines of the transcript.
#include "ui/spoken/recital.h"

#include <utility>

#include "base/text.h"
#include "match/added_text.h"
#include "ui/spoken/sentences.h"

namespace tasca {

namespace {

// The player's pareja comes first.
std::u16string Victoria(std::u16string_view cosa, Pareja pareja, int nuestras, int suyas) {
  const std::u16string_view quien = pareja == 1 ? u"su pareja" : u"la pareja contraria";
  return Join(cosa, u" para ", quien, u". ", cosa, u"s: ", nuestras, u" a ", suyas);
}

}  // namespace

std::vector<std::u16string> Recital::Nuevos(std::u16string_view text2) {
  std::vector<std::u16string> nuevos = Renglones(AddedText(text2_, text2).Texto);
  text2_ = text2;
  return Recuerda(std::move(nuevos));
}

std::vector<std::u16string> Recital::Nuevos(std::u16string_view text2, const Escena& escena) {
  std::vector<std::u16string> nuevos = Renglones(AddedText(text2_, text2).Texto);
  text2_ = text2;
  std::u16string ganado = Ganado(escena);
  if (!ganado.empty()) nuevos.insert(nuevos.begin(), std::move(ganado));
  return Recuerda(std::move(nuevos));
}

// A vaca that is won ends its juegos.
std::u16string Recital::Ganado(const Escena& escena) {
  if (tanteo_ && escena.Toca != Turno::Enter) return {};
  const auto ahora = escena.Tanteo;
  const auto antes = std::exchange(tanteo_, ahora).value_or(ahora);
  for (const Pareja pareja : {1, 0}) {
    if (ahora[pareja].Vacas > antes[pareja].Vacas) {
      return Victoria(u"Vaca", pareja, ahora[1].Vacas, ahora[0].Vacas);
    }
    if (ahora[pareja].Juegos > antes[pareja].Juegos) {
      return Victoria(u"Juego", pareja, ahora[1].Juegos, ahora[0].Juegos);
    }
  }
  return {};
}

std::vector<std::u16string> Recital::Recuerda(std::vector<std::u16string> nuevos) {
  if (nuevos.empty()) return nuevos;
  if (std::exchange(empiezaPaso_, false)) ultimos_.clear();
  ultimos_.insert(ultimos_.end(), nuevos.begin(), nuevos.end());
  return nuevos;
}

}  // namespace tasca
