// Character files with the wrong records: cut short, too few, too many, with odd lines in them.
#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "characters/character_file.h"
#include "tests/bad_inputs/outcomes.h"
#include "tests/characters/fichero.h"

namespace tasca::test {
namespace {

std::string AtLine(int linea, const std::string& mensaje) {
  return "Jugadores.dat, línea " + std::to_string(linea) + ": " + mensaje;
}

Outcomes OnlyTheDialogReads(const std::string& mensaje, int ofrecidos) {
  return {"offers " + std::to_string(ofrecidos), mensaje, mensaje, mensaje};
}

// A file with the players "Nombre 1", "Nombre 2", ... and no default sets.
std::string PlayersOnly(int cuantos) {
  Fichero fichero;
  fichero.Lineas.clear();
  for (int i = 1; i <= cuantos; ++i) fichero.Anadir("Nombre ", i);
  return fichero.Bytes();
}

// Two default sets, then players up to number `ultimo`, 32 lines each.
std::string UpTo(int ultimo) {
  Fichero fichero;
  for (int i = 6; i <= ultimo; ++i) fichero.Anadir("Nombre ", i);
  return fichero.Bytes();
}

// The record of one player, repeated.
std::string Again(int veces) {
  Fichero uno;
  uno.Lineas.clear();
  const std::string registro = uno.Anadir("Nombre ", 51).Bytes();
  std::string bytes;
  for (int i = 1; i <= veces; ++i) bytes += registro;
  return bytes;
}

// Records that the dialog does not offer, four lines each.
std::string Hidden(int cuantos) {
  std::string bytes;
  for (int i = 1; i <= cuantos; ++i) bytes += "Datos>\r\nDefault\r\n050\r\nHistoria\r\n";
  return bytes;
}

// Files whose fifth record ends after 1 to 32 of its 32 lines. It starts at line 129.
std::vector<BadFile> CutRecords() {
  const std::array<std::string, 3> faltas{"el nombre", "el valor de ordaguero", "la historia"};
  std::vector<BadFile> casos;
  for (int lineas = 1; lineas <= 32; ++lineas) {
    const std::string bytes = Fichero{}.Cortar(128 + lineas).Bytes();
    Outcomes esperado = AllPlay(3, 5);
    if (lineas <= 3) {
      const std::string& falta = faltas.at(static_cast<std::size_t>(lineas - 1));
      esperado = AllEndWith(
          AtLine(129 + lineas, "el archivo se acaba y falta " + falta + " del personaje."));
    }
    const std::string nombre = "AfterLine" + std::to_string(lineas);
    casos.push_back({nombre, bytes, esperado});
    casos.push_back({nombre + "WithoutItsEnd", bytes.substr(0, bytes.size() - 2), esperado});
  }
  return casos;
}

const std::string NoSeat =
    AtLine(50 * 32 + 4, "solo los 50 primeros personajes pueden sentarse a la mesa.");

std::string NoRoom(int linea) { return AtLine(linea, "hay más de 100 personajes."); }

// The first line of a 101st record: after 100 records of 32 lines, and after 50 of 32 and 50 of 4.
const std::string NoRoomForAll = NoRoom(100 * 32 + 1);
const std::string NoRoomForTheHidden = NoRoom(50 * 32 + 50 * 4 + 1);

std::vector<BadFile> Counts() {
  return {
      {"NoRecord", "QMus>\r\nNMus>\r\n", {"offers 0", "reads", "reads 0", TooFewPlayers}},
      {"OneRecord", PlayersOnly(1), {"offers 1", "reads", "reads 1", TooFewPlayers}},
      {"TwoRecords", PlayersOnly(2), {"offers 2", "reads", "reads 2", TooFewPlayers}},
      {"ThreeRecords", PlayersOnly(3), AllPlay(3, 3)},
      {"TwoDefaultsAlone",
       UpTo(5).substr(0, UpTo(5).find("Datos>\r\nNombre")),
       {"offers 0", "reads", "reads 2", TooFewPlayers}},
      {"FiftyRecords", UpTo(50), AllPlay(48, 50)},
      {"FiftyOneRecords", UpTo(51), {NoSeat, "reads", "reads 51", NoSeat}},
      {"FiftyOneRecordsTheLastHidden", UpTo(50) + Hidden(1), AllPlay(48, 51)},
      {"AHundredRecords", UpTo(100), {NoSeat, "reads", "reads 100", NoSeat}},
      {"AHundredRecordsHalfHidden", UpTo(50) + Hidden(50), AllPlay(48, 100)},
      {"AHundredAndOneRecords", UpTo(101), {NoSeat, NoRoomForAll, NoRoomForAll, NoSeat}},
      {"AHundredAndOneRecordsHalfHidden", UpTo(50) + Hidden(51),
       OnlyTheDialogReads(NoRoomForTheHidden, 48)},
  };
}

// Character 3 has its name at line 66, its ordaguero at 67, its story at 68, QMus> at 69 and a
// phrase at 70.
std::vector<BadFile> OddLines() {
  const auto antes = [](const std::string& linea) {
    return Fichero{}.Insertar(1, {linea}).Bytes();
  };
  const std::string fraseSuelta = AtLine(1, "hay una frase antes del primer personaje.");
  return {
      {"PhraseBeforeTheFirstRecord", antes("hola"), OnlyTheDialogReads(fraseSuelta, 3)},
      {"BlankLineBeforeTheFirstRecord", antes(""), OnlyTheDialogReads(fraseSuelta, 3)},
      {"PhraseUnderAMarkerBeforeTheFirstRecord", Fichero{}.Insertar(1, {"QMus>", "hola"}).Bytes(),
       OnlyTheDialogReads(AtLine(2, "hay una frase antes del primer personaje."), 3)},
      {"FourthPhrase", Fichero{}.Insertar(71, {"dos", "tres", "cuatro"}).Bytes(), AllPlay(3, 5)},
      {"SignAloneBeforeTheFirstRecord", antes(">"), AllPlay(3, 5)},
      {"SignAloneForAPhrase", Fichero{}.Cambiar(70, ">").Bytes(), AllPlay(3, 5)},
      {"SignAloneForATag", Fichero{}.Cambiar(69, ">").Bytes(), AllPlay(3, 5)},
      {"SignAloneForAName", Fichero{}.Cambiar(66, ">").Bytes(), AllPlay(3, 5)},
      {"SignAloneForTheOrdaguero", Fichero{}.Cambiar(67, ">").Bytes(), AllPlay(3, 5)},
      {"SignAloneForTheStory", Fichero{}.Cambiar(68, ">").Bytes(), AllPlay(3, 5)},
      {"SignAloneAtTheEnd", Fichero{}.Insertar(161, {">"}).Bytes(), AllPlay(3, 5)},
  };
}

class BadRecords : public testing::TestWithParam<BadFile> {};

TEST_P(BadRecords, HaveTheirOutcome) {
  EXPECT_EQ(OutcomesOf(GetParam().Bytes), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(Cut, BadRecords, testing::ValuesIn(CutRecords()), ByName);
INSTANTIATE_TEST_SUITE_P(Counts, BadRecords, testing::ValuesIn(Counts()), ByName);
INSTANTIATE_TEST_SUITE_P(OddLines, BadRecords, testing::ValuesIn(OddLines()), ByName);

TEST(BadRecords, EndAtTheSameLimitsInAFileOfFortyThousand) {
  EXPECT_EQ(OutcomesOf(UpTo(50) + Again(39'950)),
            (Outcomes{NoSeat, NoRoomForAll, NoRoomForAll, NoSeat}));
  EXPECT_EQ(OutcomesOf(UpTo(50) + Hidden(39'950)), OnlyTheDialogReads(NoRoomForTheHidden, 48));
}

TEST(BadRecords, Kept_AFourthPhraseTakesTheThirdsPlaceForTheGameAndTheEditor) {
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", Fichero{}.Insertar(71, {"dos", "tres", "cuatro"}).Bytes());
  for (const bool editor : {false, true}) {
    const auto t = std::make_unique<Table>();
    t->Carpeta = carpeta.Path();
    if (editor) {
      LeerPersonajesSinMayusculas(*t);
    } else {
      LeerPersonajes(*t);
    }
    EXPECT_EQ(Utf8(t->Mensajes[3][1][2].Trimmed()), "dos");
    EXPECT_EQ(Utf8(t->Mensajes[3][1][3].Trimmed()), "cuatro");
  }
}

struct BadOrdaguero {
  std::string Name;
  std::string Linea;
  int Valor;  // of its first three characters
};

void PrintTo(const BadOrdaguero& caso, std::ostream* salida) { *salida << caso.Name; }

class Ordaguero : public testing::TestWithParam<BadOrdaguero> {};

TEST_P(Ordaguero, IsReadByTheEditorToo) {
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", Fichero{}.Cambiar(67, GetParam().Linea).Bytes());
  const auto t = std::make_unique<Table>();
  t->Carpeta = carpeta.Path();
  EXPECT_EQ(LeerPersonajesSinMayusculas(*t), 5);
  EXPECT_EQ(t->Personajes[3].Ordaguero, GetParam().Valor);
}

// All three players have the value, so that every computer seat has it.
TEST_P(Ordaguero, IsReadByItsFirstThreeCharactersAndTheGamePlays) {
  const std::string& linea = GetParam().Linea;
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat",
                Fichero{}.Cambiar(67, linea).Cambiar(99, linea).Cambiar(131, linea).Bytes());
  EXPECT_EQ(OutcomesIn(carpeta.Path()), AllPlay(3, 5));
  const int valor = GetParam().Valor;
  const Played partida = Play(carpeta.Path());
  EXPECT_EQ(partida.State["OrdagueroAsiento"], (std::vector<int>{0, valor, valor, valor}));
}

INSTANTIATE_TEST_SUITE_P(Lines, Ordaguero,
                         testing::ValuesIn(std::vector<BadOrdaguero>{
                             {"Negative", "-05", -5},
                             {"Scientific", "1e3", 1},
                             {"FiveDigits", "99999", 999},
                             {"Empty", "", 0},
                             {"Letters", "muchos", 0},
                             {"LettersAfterADigit", "7abc", 7},
                             {"SignAlone", "-", 0},
                             {"ALongNumber", std::string(2000, '9'), 999},
                         }),
                         ByName);

}  // namespace
}  // namespace tasca::test
