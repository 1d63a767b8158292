// The manual of the page.
#include "ui/web/manual_json.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/traces/read_file.h"
#include "ui/manual/card_reference.h"
#include "ui/manual/chapters.h"

namespace tasca::test {
namespace {

using Objeto = nlohmann::json;

TEST(JsonDelManual, HoldsEveryChapterWithAllPicturesAsCards) {
  const Objeto manual = Objeto::parse(JsonDelManual());
  EXPECT_EQ(manual["capitulos"].size(), ManualChapters().size());
  int dibujos = 0;
  for (const auto& capitulo : manual["capitulos"]) {
    const auto texto = capitulo.get<std::string>();
    EXPECT_EQ(texto.find("```ejemplo"), std::string::npos) << "examples are written out";
    EXPECT_EQ(texto.find("(mano:"), std::string::npos);
    for (std::size_t i = texto.find("(carta:"); i != std::string::npos;
         i = texto.find("(carta:", i + 1)) {
      const std::size_t desde = i + std::string_view{"(carta:"}.size();
      EXPECT_GT(CardOfName(texto.substr(desde, texto.find(')', desde) - desde)), 0);
      ++dibujos;
    }
  }
  EXPECT_GT(dibujos, 40);
}

TEST(JsonDelManual, ListsTheHeadingsWithTheAnchorsOfTheLinks) {
  const Objeto manual = Objeto::parse(JsonDelManual());
  EXPECT_EQ(manual["titulos"][0]["nivel"], 1);
  for (const auto& capitulo : manual["capitulos"]) {
    const auto texto = capitulo.get<std::string>();
    for (std::size_t i = texto.find("](#"); i != std::string::npos; i = texto.find("](#", i + 1)) {
      const std::string ancla = texto.substr(i + 3, texto.find(')', i) - i - 3);
      const bool esta =
          std::any_of(manual["titulos"].begin(), manual["titulos"].end(),
                      [&ancla](const Objeto& titulo) { return titulo["ancla"] == ancla; });
      EXPECT_TRUE(esta) << ancla;
    }
  }
}

}  // namespace
}  // namespace tasca::test
