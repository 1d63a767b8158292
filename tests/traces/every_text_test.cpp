// Together the golden games show every text that the game can write.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "tests/traces/compare.h"
#include "tests/traces/read_file.h"
#include "tests/traces/text_list.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

const fs::path Raiz{TASCA_SOURCE_DIR};
const fs::path Partidas = Raiz / "tests" / "traces";

// What the player sees, by where.
using Shown = std::map<std::string, std::set<std::string>>;

void AddTexts(Shown& visto, const json& textos) {
  visto["hands"].insert(textos[0]);
  visto["transcript"].insert(textos[1]);
  visto["score"].insert(textos[2]);
}

void AddEvent(Shown& visto, const json& suceso) {
  const std::string clase = suceso["event"];
  if (suceso.contains("texts")) {
    AddTexts(visto, suceso["texts"]);
    visto["titles"].insert(suceso["title"]);
  }
  if (clase == "state") AddTexts(visto, {suceso["Text1"], suceso["Text2"], suceso["Text3"]});
  if (clase == "msgbox") visto["boxes"].insert(suceso["text"]);
  if (clase == "inputbox") {
    visto["input boxes"].insert(suceso["text"]);
    visto["default answers"].insert(suceso["default"]);
  }
  if (clase == "sound") visto["sounds"].insert(suceso["file"]);
  if (clase == "end") visto["errors"].insert(suceso["text"]);
}

Shown ReadGames() {
  Shown visto;
  for (const fs::directory_entry& partida : fs::directory_iterator{Partidas}) {
    if (!fs::exists(partida.path() / "in.jsonl")) continue;
    for (const std::string& linea : LinesOf(ReadFile(partida.path() / "out.jsonl"))) {
      AddEvent(visto, json::parse(linea));
    }
  }
  return visto;
}

TextList List() { return ReadTextList(Partidas / "every_text.txt"); }

// The sources whose texts a player of the game can see.
std::vector<fs::path> Sources(const TextList& lista) {
  std::vector<fs::path> fuentes;
  for (const char* carpeta : {"base", "cards", "characters", "count", "lances", "match", "mus",
                              "scene", "score", "sound", "startup", "table"}) {
    for (const fs::directory_entry& fuente : fs::directory_iterator{Raiz / carpeta}) {
      const std::string nombre = fs::path{carpeta} / fuente.path().filename();
      const fs::path clase = fuente.path().extension();
      if ((clase == ".cpp" || clase == ".h") && !lista.OtherSources.contains(nombre)) {
        fuentes.push_back(fuente.path());
      }
    }
  }
  return fuentes;
}

bool IsListed(const TextList& lista, const std::string& texto) {
  const auto loTiene = [&texto](const TextPattern& patron) {
    return std::any_of(patron.Pieces().begin(), patron.Pieces().end(),
                       [&](const auto& trozo) { return trozo.find(texto) != std::string::npos; });
  };
  return std::any_of(lista.Patterns.begin(), lista.Patterns.end(), [&](const auto& parte) {
    return std::any_of(parte.second.begin(), parte.second.end(), loTiene);
  });
}

TEST(TextPattern, FindsATextWithWhatChanges) {
  EXPECT_TRUE(TextPattern{"saca {n} piedras\\r\\n"}.IsIn("la pareja 1 se saca 12 piedras\r\n"));
  EXPECT_FALSE(TextPattern{"saca {n} piedras\\r\\n"}.IsIn("la pareja 1 se saca 12 piedras"));
  EXPECT_FALSE(TextPattern{"saca {n} piedra"}.IsIn("la pareja 1 se saca -2 piedras"));
  EXPECT_FALSE(TextPattern{"pareja {p}."}.IsIn("la pareja 2."));
  EXPECT_TRUE(TextPattern{"{name}{pad} cambia"}.IsIn("el Cojo   cambia"));
  EXPECT_FALSE(TextPattern{"el {name} cambia"}.IsIn("el \r\n cambia"));
  EXPECT_TRUE(TextPattern{"el {more} cambia"}.IsIn("el \r\n cambia"));
}

TEST(TextPattern, BeginsALineAndEndsTheText) {
  EXPECT_TRUE(TextPattern{"^Ana"}.IsIn("Mus\r\nAna: Mus"));
  EXPECT_FALSE(TextPattern{"^Ana"}.IsIn("de Ana"));
  EXPECT_TRUE(TextPattern{"Mus$"}.IsIn("Ana: Mus"));
  EXPECT_FALSE(TextPattern{"Mus$"}.IsIn("Ana: Mus\r\n"));
}

TEST(TextPattern, KnowsACardByItsTwoFields) {
  const std::string carta = "Rey        de oros      ";
  EXPECT_TRUE(TextPattern{"^{card}$"}.IsIn(carta));
  EXPECT_FALSE(TextPattern{"^{card}$"}.IsIn("Rey de oros"));
  EXPECT_TRUE(TextPattern{"^{hand}$"}.IsIn(carta + ", " + carta + ", " + carta + ", " + carta));
  EXPECT_FALSE(TextPattern{"^{hand}$"}.IsIn(carta + ", " + carta + ", " + carta));
}

TEST(TextPattern, RefusesAPlaceholderThatIsNone) {
  EXPECT_THROW(TextPattern{"{nombre}"}, std::invalid_argument);
}

TEST(LiteralsOf, ASourceAreItsTexts) {
  const std::string fuente = "f(u\"uno \", u\"d\\\"os\\r\\n\"  // u\"tres\"\n  u\"http://\");";
  EXPECT_EQ(LiteralsOf(fuente), (std::vector<std::string>{"uno ", "d\"os\r\n", "http://"}));
}

TEST(EveryText, IsHeldBySomeGoldenGame) {
  Shown visto = ReadGames();
  for (const auto& [parte, patrones] : List().Patterns) {
    for (const TextPattern& patron : patrones) {
      const auto& textos = visto[parte];
      EXPECT_TRUE(std::any_of(textos.begin(), textos.end(),
                              [&](const std::string& texto) { return patron.IsIn(texto); }))
          << "no golden game shows, in the " << parte << ": " << patron.Line();
    }
  }
}

TEST(EveryText, OfTheSourcesIsListed) {
  const TextList lista = List();
  std::set<std::string> deNingunaPartida;
  for (const fs::path& fuente : Sources(lista)) {
    for (const std::string& texto : LiteralsOf(ReadFile(fuente))) {
      if (lista.NotInAGame.contains(texto)) {
        deNingunaPartida.insert(texto);
      } else {
        EXPECT_TRUE(IsListed(lista, texto))
            << fuente << " holds \"" << texto << "\", and every_text.txt does not";
      }
    }
  }
  for (const auto& [texto, motivo] : lista.NotInAGame) {
    EXPECT_TRUE(deNingunaPartida.contains(texto)) << "in no source any more: \"" << texto << '"';
  }
}

}  // namespace
}  // namespace tasca::test
