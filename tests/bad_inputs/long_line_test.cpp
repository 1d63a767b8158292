// Lines of one gibibyte, in sparse files. The memory use of the game must not grow with them.
#include <gtest/gtest.h>

#include "tests/bad_inputs/outcomes.h"
#include "tests/characters/fichero.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t Gibibyte = std::uintmax_t{1} << 30U;

// A generous limit for a table, a whole hand and a line of the maximum length.
constexpr int MebibytesEnough = 48;

// Extends the last line of the file by a gibibyte of NULs.
void Stretch(const fs::path& archivo) {
  fs::resize_file(archivo, fs::file_size(archivo) + Gibibyte);
}

// Memory taken before the call must not be measured.
TEST(MemoryGrownBy, MeasuresNewlyUsedMemory) {
  constexpr std::size_t Tomados = 100;
  static const char* volatile visto = nullptr;  // keeps the compiler from removing the strings
  const auto tomar = [] {
    const std::string tomado(Tomados << 20U, 'x');
    visto = tomado.data();
  };
  EXPECT_GE(MemoryGrownBy(tomar), static_cast<int>(Tomados));
  const std::string deAntes(Tomados << 20U, 'x');
  visto = deAntes.data();
  EXPECT_LT(MemoryGrownBy([] {}), 5);
  EXPECT_EQ(*visto, 'x');
}

struct HugeLine {
  std::string Name;
  int Linea;  // of the character file; the lines before it are valid
};

void PrintTo(const HugeLine& caso, std::ostream* salida) { *salida << caso.Name; }

class GibibyteLine : public testing::TestWithParam<HugeLine> {};

TEST_P(GibibyteLine, EndsTheProgramWithItsLineAndTakesNoMemory) {
  const int linea = GetParam().Linea;
  const TempFolder carpeta;
  std::string bytes = Fichero{}.Cortar(linea).Bytes();
  bytes.resize(bytes.size() - 2);
  carpeta.Write("Jugadores.dat", bytes);
  Stretch(carpeta.Path() / "Jugadores.dat");
  EXPECT_LT(MemoryGrownBy([&] { OutcomesIn(carpeta.Path()); }), MebibytesEnough);
  EXPECT_EQ(OutcomesIn(carpeta.Path()), AllEndWith("Jugadores.dat, línea " + std::to_string(linea) +
                                                   ": la línea es demasiado larga."));
}

INSTANTIATE_TEST_SUITE_P(CharacterFile, GibibyteLine,
                         testing::Values(HugeLine{"FirstLine", 1}, HugeLine{"Name", 130},
                                         HugeLine{"Ordaguero", 131}, HugeLine{"Story", 132},
                                         HugeLine{"Tag", 133}, HugeLine{"Phrase", 134},
                                         HugeLine{"LastLine", 160}),
                         ByName);

class GibibyteSetting : public testing::TestWithParam<int> {};

TEST_P(GibibyteSetting, EndsTheProgramWithItsLineUnlessItIsNeverRead) {
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", Fichero{}.Bytes());
  std::string bytes;
  for (int i = 1; i < GetParam(); ++i) bytes += "7\r\n";
  carpeta.Write("mus.ini", bytes + "7");
  Stretch(carpeta.Path() / "mus.ini");
  std::string esperado = "plays";
  if (GetParam() <= 4) {
    esperado = "mus.ini, línea " + std::to_string(GetParam()) + ": la línea es demasiado larga.";
  }
  EXPECT_EQ(Play(carpeta.Path()).Outcome, esperado);
  carpeta.Write("mus.ini", bytes + "7");
  Stretch(carpeta.Path() / "mus.ini");
  EXPECT_LT(MemoryGrownBy([&] { Play(carpeta.Path()); }), MebibytesEnough);
}

INSTANTIATE_TEST_SUITE_P(Lines, GibibyteSetting, testing::Range(1, 7));

}  // namespace
}  // namespace tasca::test
