// Program folders whose names have blanks, signs, accents or bytes that are not UTF-8.
#include "ui/program_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "base/errors.h"
#include "tests/bad_inputs/outcomes.h"
#include "tests/characters/fichero.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

struct FolderName {
  std::string Name;
  std::string Bytes;
  std::string Shown;  // in messages
};

void PrintTo(const FolderName& caso, std::ostream* salida) { *salida << caso.Name; }

class ProgramFolderNamed : public testing::TestWithParam<FolderName> {
 protected:
  fs::path Make() const {
    fs::path carpeta = padre_.Path() / GetParam().Bytes;
    fs::create_directory(carpeta);
    return carpeta;
  }
  const TempFolder& Parent() const { return padre_; }

 private:
  TempFolder padre_;
};

TEST_P(ProgramFolderNamed, IsPlayedInAndSavedIn) {
  const fs::path carpeta = Make();
  Parent().Write(GetParam().Bytes + "/Jugadores.dat", Fichero{}.Bytes());
  Parent().Write(GetParam().Bytes + "/mus.ini", "7\r\n2\r\n1\r\nAna> x\r\n");
  EXPECT_EQ(OutcomesIn(carpeta), AllPlay(3, 5));
  EXPECT_EQ(Parent().Read(GetParam().Bytes + "/mus.ini"),
            "7\r\n2\r\n1\r\nAna> Nombre del \xFAltimo jugador\r\nAna> x\r\n");
}

TEST_P(ProgramFolderNamed, IsWrittenInMessages) {
  const fs::path carpeta = Make();
  fs::create_directory(carpeta / "Jugadores.dat");
  const std::string mensaje = Play(carpeta).Outcome;
  EXPECT_EQ(mensaje, "Jugadores.dat: no es un archivo.");
  const RunTimeError error = RunTimeError::InFile(carpeta, 0, u"x");
  EXPECT_TRUE(
      Utf8(error.Message()).starts_with(Parent().Path().string() + "/" + GetParam().Shown + ": "));
}

// Starts a copy of program-folder there, from another current folder.
TEST_P(ProgramFolderNamed, IsFoundByTheProgramsThatLieInIt) {
  const fs::path carpeta = Make();
  fs::copy(TASCA_PROGRAM_FOLDER, carpeta / "dondeEstoy");
  const fs::path dicho = Parent().Path() / "dicho";
  const std::string orden =
      "cd / && '" + (carpeta / "dondeEstoy").string() + "' >" + dicho.string();
  ASSERT_EQ(std::system(orden.c_str()), 0);  // NOLINT(cert-env33-c, concurrency-mt-unsafe)
  EXPECT_EQ(Parent().Read("dicho"), carpeta.native());
}

INSTANTIATE_TEST_SUITE_P(Names, ProgramFolderNamed,
                         testing::ValuesIn(std::vector<FolderName>{
                             {"WithBlanks", " mi  carpeta ", " mi  carpeta "},
                             {"WithAccents", "la tasca del tío Ñ €", "la tasca del tío Ñ €"},
                             {"InTheCodePage", "t\xEDo \xD1 \x80", "tío Ñ €"},
                             {"WithUndefinedBytes", "\x81\x9D", "\xC2\x81\xC2\x9D"},
                             {"WithSigns", "a%20&>\"$#", "a%20&>\"$#"},
                             {"WithALineBreak", "a\nb", "a\nb"},
                         }),
                         ByName);

}  // namespace
}  // namespace tasca::test
