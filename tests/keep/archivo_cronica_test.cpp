// The file of the chronicle: which steps it gives back, and what it does with a damaged file.
#include "keep/archivo_cronica.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/full_disk.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

struct FicheroDeCronica : testing::Test {
  // What another program reads that goes on with the match.
  std::optional<std::u16string> Leido(std::string_view partida) const {
    return ArchivoCronica{Ruta()}.Leer(partida);
  }
  fs::path Ruta() const { return Carpeta.Path() / "cronica"; }
  void TresPasos() {
    Archivo.Anotar({.Nuevo = true, .Texto = u"uno "}, "11");
    Archivo.Anotar({.Texto = u"dos "}, "22");
    Archivo.Anotar({.Texto = u"tres "}, "33");
  }

  TempFolder Carpeta;
  ArchivoCronica Archivo{Ruta()};
};

TEST_F(FicheroDeCronica, GivesBackTheStepsUpToTheMatch) {
  TresPasos();
  EXPECT_EQ(Leido("11"), u"uno ");
  EXPECT_EQ(Leido("22"), u"uno dos ");
  EXPECT_EQ(Leido("33"), u"uno dos tres ");
}

TEST_F(FicheroDeCronica, GivesBackTheLastOfEqualMatches) {
  TresPasos();
  Archivo.Anotar({.Texto = u"cuatro"}, "11");
  EXPECT_EQ(Leido("11"), u"uno dos tres cuatro");
}

TEST_F(FicheroDeCronica, TellsMatchesApartByEveryByte) {
  Archivo.Anotar({.Nuevo = true, .Texto = u"uno"}, "\xFF\x01");
  EXPECT_EQ(Leido("\xFF\x01"), u"uno");
  EXPECT_EQ(Leido("\xFE\x01"), std::nullopt);
}

TEST_F(FicheroDeCronica, KnowsNothingOfAnotherMatch) {
  EXPECT_EQ(Leido("11"), std::nullopt);
  TresPasos();
  EXPECT_EQ(Leido("44"), std::nullopt);
}

TEST_F(FicheroDeCronica, WritesNothingBeforeAChronicleBegins) {
  Archivo.Anotar({.Texto = u"uno"}, "11");
  EXPECT_TRUE(Carpeta.Names().empty());
}

TEST_F(FicheroDeCronica, BeginsAnew) {
  TresPasos();
  Archivo.Anotar({.Nuevo = true, .Texto = u"otra"}, "33");
  EXPECT_EQ(Leido("33"), u"otra");
  EXPECT_EQ(Leido("22"), u"uno dos ") << "the match that is kept until the next step is";
  ArchivoCronica{Ruta()}.Anotar({.Nuevo = true, .Texto = u"de otro programa"}, "44");
  EXPECT_EQ(Leido("44"), u"de otro programa");
  EXPECT_EQ(Leido("33"), std::nullopt);
  EXPECT_EQ(Carpeta.Names(), std::vector<std::string>{"cronica"});
}

TEST_F(FicheroDeCronica, IsRemoved) {
  TresPasos();
  Archivo.Quitar();
  EXPECT_TRUE(Carpeta.Names().empty());
  Archivo.Anotar({.Texto = u"más"}, "55");
  EXPECT_TRUE(Carpeta.Names().empty());
}

TEST_F(FicheroDeCronica, GivesBackWholeStepsOfAFileThatIsCutOff) {
  TresPasos();
  const std::string entero = Carpeta.Read("cronica");
  const std::size_t hastaUno = 2 + 4 + 2 * 4 + 4 + 2 * 2;  // a number, "uno " and "11"
  for (std::size_t largo = 0; largo < entero.size(); ++largo) {
    Carpeta.Write("cronica", entero.substr(0, largo));
    const auto uno = largo < hastaUno ? std::nullopt : std::optional<std::u16string>{u"uno "};
    EXPECT_EQ(Leido("11"), uno) << largo;
    EXPECT_EQ(Leido("33"), std::nullopt) << largo;
  }
}

TEST_F(FicheroDeCronica, IsNotReadBeyondItsGreatestLength) {
  TresPasos();
  fs::resize_file(Ruta(), 1U << 26U);
  EXPECT_EQ(Leido("33"), u"uno dos tres ") << "zeros are empty steps";
  fs::resize_file(Ruta(), (1U << 26U) + 1);
  EXPECT_EQ(Leido("33"), std::nullopt);
}

TEST_F(FicheroDeCronica, IsGivenUpOnAFullDisk) {
  Archivo.Anotar({.Nuevo = true, .Texto = u"uno "}, "11");
  {
    const FullDisk lleno{30};
    Archivo.Anotar({.Texto = u"dos "}, "22");
  }
  EXPECT_TRUE(Carpeta.Names().empty());
  Archivo.Anotar({.Texto = u"tres "}, "33");
  EXPECT_TRUE(Carpeta.Names().empty()) << "it would lack a step";
  Archivo.Anotar({.Nuevo = true, .Texto = u"otra "}, "44");
  EXPECT_EQ(Leido("44"), u"otra ");
}

TEST_F(FicheroDeCronica, IsLeftOutWhereItsPlaceIsTaken) {
  fs::create_directories(Ruta() / "llena");
  TresPasos();
  EXPECT_EQ(Leido("33"), std::nullopt);
  EXPECT_TRUE(fs::is_directory(Ruta() / "llena"));
}

}  // namespace
}  // namespace tasca::test
