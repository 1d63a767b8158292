// Comparison of the transcript with the one last printed.
#include "ui/terminal/new_text.h"

#include <string>

#include "base/text.h"
#include "lances/lance.h"
#include "ui/plain_text.h"

namespace tasca {
namespace {

bool EndsInsideALine(std::u16string_view texto) { return WholeLines(texto).size() < texto.size(); }

}  // namespace

NewText NewPart(std::u16string_view antes, std::u16string_view ahora) {
  const std::u16string sinAvisos = ReplaceAll(antes, AvisoContinuar, u"");
  std::u16string_view nuevo;
  if (ahora.starts_with(antes)) {
    nuevo = ahora.substr(antes.size());
  } else if (!sinAvisos.empty() && ahora.starts_with(sinAvisos)) {
    nuevo = ahora.substr(sinAvisos.size());
  } else {
    return {.Texto = ahora, .Replaces = true};
  }
  if (EndsInsideALine(antes)) nuevo.remove_prefix(LeadingBreak(nuevo));
  return {.Texto = nuevo};
}

}  // namespace tasca
