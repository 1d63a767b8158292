// The manual's text: its links, its pictures, its Spanish, and the names in it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <utility>

#include "base/keys.h"
#include "characters/character_file.h"
#include "characters/editor.h"
#include "tests/manual/source.h"
#include "tests/support/tables.h"
#include "ui/manual/card_reference.h"
#include "ui/utf8.h"

namespace tasca::test {
namespace {

std::filesystem::path DataFolder() { return std::filesystem::path{TASCA_SOURCE_DIR} / "data"; }

bool Says(const std::string& texto, const std::string& buscado) {
  return texto.find(buscado) != std::string::npos;
}

TEST(ManualText, HasLinksToItsOwnHeadingsOnly) {
  const std::set<std::string> anclas = Anchors();
  const std::vector<std::string> enlaces = LinkTargets();
  EXPECT_GE(enlaces.size(), 10U);
  for (const std::string& enlace : enlaces) {
    EXPECT_TRUE(enlace.starts_with('#') && anclas.contains(enlace.substr(1))) << enlace;
  }
}

TEST(ManualText, ShowsCardsThatExist) {
  const std::vector<std::string> dibujos = PictureReferences();
  EXPECT_GE(dibujos.size(), 10U);
  for (const std::string& dibujo : dibujos) {
    EXPECT_FALSE(CardsOfReference(dibujo).empty()) << dibujo;
    for (const int carta : CardsOfReference(dibujo)) {
      const auto archivo = DataFolder() / "../art/cards" / (NameOfCard(carta) + ".svg");
      EXPECT_TRUE(std::filesystem::exists(archivo)) << archivo;
    }
  }
}

// The words of a text: runs of letters, in lower case as far as they are ASCII.
std::set<std::u16string> WordsOf(std::string_view texto) {
  std::set<std::u16string> palabras;
  std::u16string palabra;
  for (const char16_t letra : FromUtf8(texto) + u" ") {
    const bool esMayuscula = letra >= u'A' && letra <= u'Z';
    const char16_t minuscula = esMayuscula ? static_cast<char16_t>(letra + 32) : letra;
    if ((minuscula >= u'a' && minuscula <= u'z') || minuscula >= u'À') {
      palabra += minuscula;
    } else {
      palabras.insert(std::exchange(palabra, {}));
    }
  }
  return palabras;
}

TEST(ManualText, AddressesTheReaderAsUsted) {
  const std::set<std::u16string> palabras = WordsOf(WholeManual());
  EXPECT_TRUE(palabras.contains(u"usted"));
  for (const std::u16string_view tuteo :
       {u"tú",     u"te",     u"ti",      u"contigo",  u"tu",       u"tus",      u"tuyo",
        u"tuya",   u"tuyos",  u"tuyas",   u"vosotros", u"vuestro",  u"vuestra",  u"os",
        u"eres",   u"tienes", u"puedes",  u"quieres",  u"pulsas",   u"escribes", u"eliges",
        u"juegas", u"ganas",  u"pierdes", u"cobras",   u"envidas",  u"pasas",    u"cortas",
        u"debes",  u"haz",    u"ten",     u"pon",      u"di",       u"dices",    u"sabes",
        u"ves",    u"vas",    u"haces",   u"fíjate",   u"recuerdas"}) {
    EXPECT_FALSE(palabras.contains(std::u16string{tuteo})) << Utf8(tuteo);
  }
}

TEST(ManualText, HasASectionForEveryLance) {
  for (const std::string ancla : {"la-grande", "la-pequeña", "los-pares", "el-juego", "el-punto"}) {
    EXPECT_TRUE(Says(SectionOf(ancla), "```ejemplo")) << ancla;
  }
}

TEST(ManualText, ExplainsTheWordsOfTheTrade) {
  const std::string palabras = SectionOf("palabras-del-mus");
  for (const std::string palabra :
       {"Mano", "Postre", "Pareja", "Lance", "Envite", "Envidar", "Quiero", "No quiero", "Órdago",
        "Deje", "Paso", "Tanteo", "Piedra", "Amarraco", "Juego", "Vaca"}) {
    EXPECT_TRUE(Says(palabras, "- **" + palabra + "**: ")) << palabra;
  }
}

// All characters that can be chosen, in the order of the file, each with its own section.
TEST(ManualText, TellsEveryCharacterWithItsStory) {
  Table t;
  t.Carpeta = DataFolder();
  LeerPersonajes(t);
  std::size_t desde = 0;
  const std::string manual = WholeManual();
  int cuantos = 0;
  for (int i = 3; i <= MaximoPersonajes && t.Personajes[i].Ordaguero != 0; ++i, ++cuantos) {
    const std::string nombre = Utf8(t.Personajes[i].Nombre.Trimmed());
    const std::string seccion =
        "\n## " + nombre + "\n\n" + Utf8(t.Personajes[i].Historia.Trimmed()) +
        "\n\nAfición al órdago: " + std::to_string(t.Personajes[i].Ordaguero) + ".\n";
    desde = manual.find(seccion, desde);
    ASSERT_NE(desde, std::string::npos) << seccion;
  }
  EXPECT_EQ(cuantos, 16);
}

TEST(ManualText, TellsTheOccasionsOfTheEditor) {
  const Rows filas = TableWithHeading("| Jugada | Marca | Cuándo la dice |");
  ASSERT_EQ(filas.size(), EtiquetasMensaje.size());
  for (std::size_t i = 0; i < filas.size(); ++i) {
    EXPECT_EQ(filas[i][0], Utf8(EtiquetasJugada.at(i)));
    EXPECT_EQ(filas[i][1], Utf8(EtiquetasMensaje.at(i)));
  }
}

TEST(ManualText, TellsEveryFileThatIsShipped) {
  std::set<std::string> contados;
  for (const auto& fila : TableWithHeading("| Archivo | Qué guarda |")) {
    contados.insert(fila[0].substr(1, fila[0].size() - 2));
  }
  EXPECT_TRUE(contados.erase("Jugadores.bak") == 1);
  std::set<std::string> enviados;
  for (const auto& archivo : std::filesystem::directory_iterator{DataFolder()}) {
    const std::string tipo = archivo.path().extension().string();
    if (tipo != ".txt" && !archivo.is_directory()) enviados.insert(archivo.path().filename());
  }
  EXPECT_EQ(contados, enviados);
}

TEST(ManualText, ShowsTheSettingsThatAreShipped) {
  std::ifstream archivo{DataFolder() / "mus.ini"};
  const std::string seccion = SectionOf("el-largo-de-la-partida");
  std::string linea;
  for (int i = 1; i <= 3; ++i) {
    std::getline(archivo, linea);
    linea.erase(linea.find('\r'));
    EXPECT_TRUE(Says(seccion, "\n" + linea + "\n")) << linea;
  }
}

// The keys that the rules know.
TEST(ManualText, TellsTheKeysOfTheGame) {
  const std::string teclas = SectionOf("las-teclas");
  static_assert(EsTeclaDeVerManos('0', MayusculasYControl));
  static_assert(TeclaQ == 'Q');
  for (const std::string tecla : {"Enter", "Q", "Ctrl+Mayús+0"}) {
    EXPECT_TRUE(Says(teclas, "\n| " + tecla + " | ")) << tecla;
  }
  EXPECT_TRUE(Says(teclas, "F2 o Enter cambian la frase"));
}

}  // namespace
}  // namespace tasca::test
