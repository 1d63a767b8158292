// The new lines of the transcript.
#include "ui/spoken/recital.h"

#include <utility>

#include "match/added_text.h"
#include "ui/spoken/sentences.h"

namespace tasca {

std::vector<std::u16string> Recital::Nuevos(std::u16string_view text2) {
  std::vector<std::u16string> nuevos = Renglones(AddedText(text2_, text2).Texto);
  text2_ = text2;
  if (nuevos.empty()) return nuevos;
  if (std::exchange(empiezaPaso_, false)) ultimos_.clear();
  ultimos_.insert(ultimos_.end(), nuevos.begin(), nuevos.end());
  return nuevos;
}

}  // namespace tasca
