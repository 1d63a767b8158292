// Omits the line break after a prompt.
#include "ui/terminal/new_text.h"

#include "ui/plain_text.h"

namespace tasca {
namespace {

bool EndsInsideALine(std::u16string_view texto) { return WholeLines(texto).size() < texto.size(); }

}  // namespace

NewText NewPart(std::u16string_view antes, std::u16string_view ahora) {
  NewText nuevo = AddedText(antes, ahora);
  if (!nuevo.Replaces && EndsInsideALine(antes)) {
    nuevo.Texto.remove_prefix(LeadingBreak(nuevo.Texto));
  }
  return nuevo;
}

}  // namespace tasca
