// Writes the chapters out.
#include "ui/web/manual_json.h"

#include <vector>

#include "ui/manual/chapters.h"
#include "ui/manual/markup.h"
#include "ui/manual/pieces.h"
#include "ui/web/json.h"

namespace tasca {

std::string JsonDelManual() {
  std::vector<Heading> titulos;
  for (const std::string_view capitulo : ManualChapters()) {
    for (const std::string_view linea : LinesOf(capitulo)) {
      if (const auto titulo = HeadingOf(linea)) titulos.push_back(*titulo);
    }
  }
  Json json;
  json.Object([&] {
    json.ListField("capitulos", ManualChapters(), [&](std::string_view capitulo) {
      json.Value(std::string_view{ChapterMarkdown(capitulo, PicturesOfCards)});
    });
    json.ListField("titulos", titulos, [&](const Heading& titulo) {
      json.Object([&] {
        json.Field("nivel", titulo.Level);
        json.Field("titulo", titulo.Title);
        json.Field("ancla", std::string_view{AnchorOfTitle(titulo.Title)});
      });
    });
  });
  return json.Text();
}

}  // namespace tasca
