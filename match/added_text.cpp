// Comparison of two transcripts.
#include "match/added_text.h"

#include <string>

#include "base/text.h"
#include "lances/lance.h"

namespace tasca {

NewText AddedText(std::u16string_view antes, std::u16string_view ahora) {
  if (ahora.starts_with(antes)) return {.Texto = ahora.substr(antes.size())};
  const std::u16string sinAvisos = ReplaceAll(antes, AvisoContinuar, u"");
  if (!sinAvisos.empty() && ahora.starts_with(sinAvisos)) {
    return {.Texto = ahora.substr(sinAvisos.size())};
  }
  return {.Texto = ahora, .Replaces = true};
}

}  // namespace tasca
