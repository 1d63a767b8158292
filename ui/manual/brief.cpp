// Finding a section's block quote.
#include "ui/manual/brief.h"

#include "ui/manual/chapters.h"
#include "ui/manual/pieces.h"
#include "ui/utf8.h"

namespace tasca {

std::u16string BriefOf(std::string_view ancla) {
  std::string breve;
  for (const std::string_view capitulo : ManualChapters()) {
    bool esDeAqui = false;
    for (const std::string_view linea : LinesOf(capitulo)) {
      if (const auto titulo = HeadingOf(linea)) esDeAqui = AnchorOfTitle(titulo->Title) == ancla;
      if (!esDeAqui || !linea.starts_with("> ")) continue;
      if (!breve.empty()) breve += '\n';
      breve += linea.substr(2);
    }
  }
  return FromUtf8(breve);
}

}  // namespace tasca
