// Character files with faulty lines: line ends, encodings and lengths.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "base/line_file.h"
#include "characters/character_file.h"
#include "startup/dlg_inicio.h"
#include "tests/bad_inputs/outcomes.h"
#include "tests/characters/fichero.h"
#include "tests/startup/inicio.h"

namespace tasca::test {
namespace {

std::string PhraseFirstAt(int linea) {
  return "Jugadores.dat, línea " + std::to_string(linea) +
         ": hay una frase antes del primer personaje.";
}

// The valid file, its lines ended by `finales` in turn.
std::string Ended(const Textos& finales) {
  std::string bytes;
  std::size_t linea = 0;
  for (const std::string& texto : Fichero{}.Lineas)
    bytes += texto + finales[linea++ % finales.size()];
  return bytes;
}

std::string WithoutLastEnd(const std::string& final) {
  const std::string bytes = Ended({final});
  return bytes.substr(0, bytes.size() - final.size());
}

std::string With(int linea, const std::string& texto) {
  return Fichero{}.Cambiar(linea, texto).Bytes();
}

// Joins two texts with a NUL.
std::string Nul(const std::string& antes, const std::string& despues) {
  return antes + '\0' + despues;
}

// The valid file in UTF-16 LE with its BOM.
std::string Utf16() {
  std::string bytes{"\xFF\xFE"};
  for (const char letra : Fichero{}.Bytes()) bytes += Nul({letra}, "");
  return bytes;
}

// The lines of character 3.
constexpr int Nombre = 66;
constexpr int Ordaguero = 67;
constexpr int Historia = 68;
constexpr int Marca = 69;
constexpr int Frase = 70;

Outcomes CutAfterFirstLine() {
  return AllEndWith("Jugadores.dat, línea 2: el archivo se acaba y falta el nombre del personaje.");
}

// Without a valid record marker the record's lines become phrases of the previous character.
Outcomes OnePlayerLess() { return {"offers 2", "reads", "reads 4", TooFewPlayers}; }

std::vector<BadFile> LineEnds() {
  return {
      {"Empty", "", {"offers 0", "reads", "reads 0", TooFewPlayers}},
      {"EndsInCrLf", Ended({"\r\n"}), AllPlay(3, 5)},
      {"EndsInLf", Ended({"\n"}), AllPlay(3, 5)},
      {"EndsInCr", Ended({"\r"}), CutAfterFirstLine()},
      {"EndsMixed", Ended({"\r\n", "\n", "\n"}), AllPlay(3, 5)},
      {"NoFinalLineEndAfterCrLf", WithoutLastEnd("\r\n"), AllPlay(3, 5)},
      {"NoFinalLineEndAfterLf", WithoutLastEnd("\n"), AllPlay(3, 5)},
      {"OnlyOneCr", "\r", {"offers 0", PhraseFirstAt(1), PhraseFirstAt(1), TooFewPlayers}},
      {"CrInsideAPhrase", With(Frase, "una\rfrase"), AllPlay(3, 5)},
  };
}

std::vector<BadFile> Letters() {
  return {
      {"ByteOrderMark",
       "\xEF\xBB\xBF" + Fichero{}.Bytes(),
       {"offers 3", PhraseFirstAt(2), PhraseFirstAt(2), PhraseFirstAt(2)}},
      {"Utf8InTheName", With(Nombre, "Ramón Íñiguez"), AllPlay(3, 5)},
      {"Utf8InTheStory", With(Historia, "Nació en Íllora."), AllPlay(3, 5)},
      {"Utf8InTheTag", With(Marca, "QMús>"), AllPlay(3, 5)},
      {"Utf8InThePhrase", With(Frase, "¡ñoño!"), AllPlay(3, 5)},
      {"Utf16", Utf16(), {"offers 0", PhraseFirstAt(2), PhraseFirstAt(2), TooFewPlayers}},
      {"NulInTheName", With(Nombre, Nul("Ber", "ta")), AllPlay(3, 5)},
      {"NulForAName", With(Nombre, Nul("", "")), AllPlay(3, 5)},
      {"NulInTheOrdaguero", With(Ordaguero, Nul("0", "50")), AllPlay(3, 5)},
      {"NulInTheStory", With(Historia, Nul("una", "historia")), AllPlay(3, 5)},
      {"NulInThePhrase", With(Frase, Nul("fra", "se")), AllPlay(3, 5)},
      {"NulForAPhrase", With(Frase, Nul("", "")), AllPlay(3, 5)},
      {"NulInTheTag", With(Marca, Nul("QM", "us>")), AllPlay(3, 5)},
      {"NulInTheRecordsTag", With(65, Nul("Da", "tos>")), OnePlayerLess()},
      {"UndefinedBytesInTheName", With(Nombre, "B\x81\x8D\x8F\x90\x9D"), AllPlay(3, 5)},
      {"UndefinedBytesInTheOrdaguero", With(Ordaguero, "\x81\x8D\x8F"), AllPlay(3, 5)},
      {"UndefinedBytesInTheStory", With(Historia, "\x81\x8D\x8F\x90\x9D"), AllPlay(3, 5)},
      {"UndefinedBytesInThePhrase", With(Frase, "\x81\x8D\x8F\x90\x9D"), AllPlay(3, 5)},
      {"UndefinedBytesInTheTag", With(Marca, "QM\x81\x8D\x8F\x90\x9Dus>"), AllPlay(3, 5)},
      {"UndefinedBytesInTheRecordsTag", With(65, "Da\x9Dtos>"), OnePlayerLess()},
  };
}

class BadCharacterFile : public testing::TestWithParam<BadFile> {};

TEST_P(BadCharacterFile, HasItsOutcome) {
  EXPECT_EQ(OutcomesOf(GetParam().Bytes), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(LineEnds, BadCharacterFile, testing::ValuesIn(LineEnds()), ByName);
INSTANTIATE_TEST_SUITE_P(Letters, BadCharacterFile, testing::ValuesIn(Letters()), ByName);

// A line that replaces every phrase of the file.
struct OnlyPhrase {
  std::string Name;
  std::string Linea;
  std::string Dicho;  // in the trace's JSON
};

void PrintTo(const OnlyPhrase& caso, std::ostream* salida) { *salida << caso.Name; }

class BadPhrase : public testing::TestWithParam<OnlyPhrase> {};

TEST_P(BadPhrase, IsSaid) {
  Fichero fichero;
  std::replace(fichero.Lineas.begin(), fichero.Lineas.end(), std::string{"frase"},
               GetParam().Linea);
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", fichero.Bytes());
  EXPECT_EQ(OutcomesIn(carpeta.Path()), AllPlay(3, 5));
  const Played partida = Play(carpeta.Path());
  EXPECT_NE(partida.Lines.find(GetParam().Dicho), std::string::npos) << partida.Lines;
  EXPECT_EQ(partida.Lines.find("xx" + std::string(99, 'x')), std::string::npos);
}

std::vector<OnlyPhrase> BadPhrases() {
  const std::string cien(100, 'x');
  return {
      {"InUtf8", "¡ñoño!", "Â¡Ã±oÃ±o!"},
      {"WithANul", Nul("mus", "fra"), R"(mus\u0000fra)"},
      {"OfANul", Nul("", ""), R"(\u0000)"},
      {"OfUndefinedBytes", "\x81\x8D\x8F\x90\x9D", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"},
      {"WithACr", "una\rvoz", R"(una\rvoz)"},
      {"Of99", std::string(99, 'x'), std::string(99, 'x')},
      {"Of100", cien, cien},
      {"Of101", cien + "x", cien},
      {"Of200", cien + cien, cien},
      {"Of201", cien + cien + "x", cien},
  };
}

INSTANTIATE_TEST_SUITE_P(Phrases, BadPhrase, testing::ValuesIn(BadPhrases()), ByName);

// Only the phrase for refusing mus, said in every hand, is long: all phrases would be 70 MiB.
TEST(BadPhrase, OfAMebibyteIsCutWhenItIsSaid) {
  constexpr int LineasRegistro = 32;
  constexpr int FraseNMus = 8;
  Fichero fichero;
  for (int linea = FraseNMus; linea <= 160; linea += LineasRegistro) {
    fichero.Cambiar(linea, std::string(LineReader::LargoMaximo - 2, 'x'));
  }
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", fichero.Bytes());
  const Played partida = Play(carpeta.Path());
  EXPECT_EQ(partida.Outcome, "plays");
  EXPECT_NE(partida.Lines.find(std::string(100, 'x')), std::string::npos) << partida.Lines;
  EXPECT_EQ(partida.Lines.find(std::string(101, 'x')), std::string::npos);
}

// A line of the maximum length, its line end included.
struct LongLine {
  std::string Name;
  int Linea;
  std::string Final;
};

void PrintTo(const LongLine& caso, std::ostream* salida) { *salida << caso.Name; }

class MebibyteLine : public testing::TestWithParam<LongLine> {};

TEST_P(MebibyteLine, IsReadButOneByteMoreIsTooLong) {
  const auto& [nombre, linea, final] = GetParam();
  const std::string larga = std::string(LineReader::LargoMaximo - 2 - final.size(), 'x') + final;
  EXPECT_EQ(OutcomesOf(With(linea, larga)), AllPlay(3, 5));
  EXPECT_EQ(OutcomesOf(With(linea, "x" + larga)),
            AllEndWith("Jugadores.dat, línea " + std::to_string(linea) +
                       ": la línea es demasiado larga."));
}

INSTANTIATE_TEST_SUITE_P(Places, MebibyteLine,
                         testing::Values(LongLine{"Name", Nombre, ""},
                                         LongLine{"Ordaguero", Ordaguero, ""},
                                         LongLine{"Story", Historia, ""},
                                         LongLine{"Tag", Marca, ">"},
                                         LongLine{"Phrase", Frase, ""}),
                         ByName);

// Lengths around the widths: names and phrases keep 100 characters, stories 200. The dialog's lists
// show the whole name.
class LineOfLength : public testing::TestWithParam<std::size_t> {};

// A file with this line as the name, the story, a marker and the first phrase of character 3.
std::string AllOf(const std::string& larga) {
  return Fichero{}
      .Cambiar(Nombre, larga)
      .Cambiar(Historia, larga)
      .Cambiar(Frase, larga)
      .Insertar(Frase, {larga + ">"})
      .Bytes();
}

void ExpectCut(const Table& t, const std::string& larga) {
  EXPECT_EQ(Utf8(t.Personajes[3].Nombre.Trimmed()), larga.substr(0, 100));
  EXPECT_EQ(Utf8(t.Personajes[3].Historia.Trimmed()), larga.substr(0, 200));
  EXPECT_EQ(Utf8(t.Mensajes[3][1][1].Trimmed()), larga.substr(0, 100));
}

TEST_P(LineOfLength, IsCutToTheWidthOfItsPlaceByTheGameAndTheEditor) {
  const std::string larga(GetParam(), 'x');
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", AllOf(larga));
  const auto deJuego = std::make_unique<Table>();
  const auto deEditor = std::make_unique<Table>();
  deJuego->Carpeta = deEditor->Carpeta = carpeta.Path();
  LeerPersonajes(*deJuego);
  ExpectCut(*deJuego, larga);
  EXPECT_EQ(LeerPersonajesSinMayusculas(*deEditor), 5);
  ExpectCut(*deEditor, larga);
  EXPECT_EQ(OutcomesIn(carpeta.Path()), AllPlay(3, 5));
}

TEST_P(LineOfLength, IsShownByTheDialog) {
  const std::string larga(GetParam(), 'x');
  Inicio inicio{Fichero{}.Cambiar(Nombre, larga).Cambiar(Historia, larga).Bytes()};
  EXPECT_EQ(Utf8(inicio.d.Combo1.List.at(1).Texto), larga);
  Combo1_Click(inicio.d, 1);
  EXPECT_EQ(Utf8(inicio.d.Text4), larga.substr(0, 200));
}

INSTANTIATE_TEST_SUITE_P(Lengths, LineOfLength, testing::Values(99, 100, 101, 200, 201));

TEST(BadCharacterFile, InUtf8ShowsTheLettersOfTheCodePage) {
  const Inicio inicio{With(Nombre, "Ramón")};
  EXPECT_EQ(Utf8(inicio.d.Combo1.List.at(1).Texto), "RamÃ³n");
}

}  // namespace
}  // namespace tasca::test
