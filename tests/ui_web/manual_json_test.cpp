// The manual of the page.
#include "ui/web/manual_json.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "ui/manual/card_reference.h"
#include "ui/manual/chapters.h"

namespace tasca::test {
namespace {

using Objeto = nlohmann::json;

// What stands between this beginning and the next ")", in all chapters.
std::vector<std::string> Entre(const Objeto& manual, const std::string& comienzo) {
  std::vector<std::string> hallados;
  for (const auto& capitulo : manual["capitulos"]) {
    const auto texto = capitulo.get<std::string>();
    std::size_t desde = texto.find(comienzo);
    for (; desde != std::string::npos; desde = texto.find(comienzo, desde)) {
      desde += comienzo.size();
      hallados.push_back(texto.substr(desde, texto.find(')', desde) - desde));
    }
  }
  return hallados;
}

TEST(JsonDelManual, HoldsEveryChapterWithItsExamplesWrittenOut) {
  const Objeto manual = Objeto::parse(JsonDelManual());
  EXPECT_EQ(manual["capitulos"].size(), ManualChapters().size());
  EXPECT_TRUE(Entre(manual, "```ejemplo").empty());
}

TEST(JsonDelManual, HasOnePictureForEachCard) {
  const Objeto manual = Objeto::parse(JsonDelManual());
  EXPECT_TRUE(Entre(manual, "(mano:").empty());
  const std::vector<std::string> cartas = Entre(manual, "(carta:");
  EXPECT_GT(cartas.size(), 40);
  for (const std::string& carta : cartas) EXPECT_GT(CardOfName(carta), 0) << carta;
}

TEST(JsonDelManual, ListsTheHeadingsWithTheAnchorsOfTheLinks) {
  const Objeto manual = Objeto::parse(JsonDelManual());
  EXPECT_EQ(manual["titulos"][0]["nivel"], 1);
  std::set<std::string> anclas;
  for (const auto& titulo : manual["titulos"]) anclas.insert(titulo["ancla"]);
  const std::vector<std::string> enlaces = Entre(manual, "](#");
  EXPECT_FALSE(enlaces.empty());
  for (const std::string& enlace : enlaces) EXPECT_TRUE(anclas.contains(enlace)) << enlace;
}

}  // namespace
}  // namespace tasca::test
