// The files of a page.
#include "ui/web/archivos.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/support/temp_folder.h"
#include "tests/traces/read_file.h"

namespace tasca::test {
namespace {

using Objeto = nlohmann::json;

Objeto Revisado(std::string_view bytes) {
  const TempFolder carpeta;
  Objeto revision = Objeto::parse(RevisarArchivo(carpeta.Path(), bytes));
  EXPECT_TRUE(carpeta.Names().empty());
  return revision;
}

TEST(Archivos, AreReadAsTheyWereWritten) {
  const TempFolder carpeta;
  const std::string bytes{"a\0\r\n\xFF", 5};
  EscribirArchivo(carpeta.Path() / "uno", bytes);
  EXPECT_EQ(LeerArchivo(carpeta.Path() / "uno"), bytes);
}

TEST(Archivos, AreEmptyIfTheyAreMissingOrNoFile) {
  const TempFolder carpeta;
  EXPECT_EQ(LeerArchivo(carpeta.Path() / "ninguno"), "");
  EXPECT_EQ(LeerArchivo(carpeta.Path()), "");
}

TEST(RevisarArchivo, FindsTheShippedFileGood) {
  const Objeto revision = Revisado(ReadFile(TASCA_SOURCE_DIR "/data/Jugadores.dat"));
  EXPECT_EQ(revision["faltas"], Objeto::array());
  EXPECT_EQ(revision["sirve"], true);
  const int personajes = revision["personajes"];
  EXPECT_EQ(revision["ofrecidos"], personajes - 2);
  EXPECT_EQ(revision["resumen"], "Jugadores.dat: sin faltas; " + std::to_string(personajes) +
                                     " personajes, " + std::to_string(personajes - 2) +
                                     " se ofrecen como jugadores.");
}

TEST(RevisarArchivo, NamesTheLineOfAFaultThatTheGameBears) {
  const std::string bueno = ReadFile(TASCA_SOURCE_DIR "/data/Jugadores.dat");
  const Objeto revision = Revisado(bueno + "Raro>\r\n");
  ASSERT_EQ(revision["faltas"].size(), 1);
  const auto falta = revision["faltas"][0].get<std::string>();
  const auto linea = std::count(bueno.begin(), bueno.end(), '\n') + 1;
  EXPECT_EQ(falta.substr(0, falta.find(':')), "Jugadores.dat, línea " + std::to_string(linea));
  EXPECT_EQ(revision["resumen"], "");
  EXPECT_EQ(revision["sirve"], true);
}

TEST(RevisarArchivo, TellsWhatCannotBePlayedWith) {
  for (const char* bytes : {"", "hola", "Datos>\r\nAna\r\n000\r\nHistoria\r\n", "Datos>\r\nAna"}) {
    const Objeto revision = Revisado(bytes);
    EXPECT_EQ(revision["sirve"], false) << bytes;
    EXPECT_FALSE(revision["faltas"].empty()) << bytes;
  }
}

TEST(RevisarArchivo, ShowsNoControlCharacters) {
  const Objeto revision = Revisado("Da\x1Btos>\r\n");
  EXPECT_FALSE(revision["faltas"].empty());
  for (const Objeto& falta : revision["faltas"]) {
    EXPECT_EQ(falta.get<std::string>().find('\x1B'), std::string::npos);
  }
}

}  // namespace
}  // namespace tasca::test
