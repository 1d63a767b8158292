// Settings files that are too short, too long or have invalid contents.
#include <gtest/gtest.h>

#include "tests/bad_inputs/outcomes.h"
#include "tests/characters/fichero.h"

namespace tasca::test {
namespace {

using namespace std::string_literals;

const std::string LastPlayer = "> Nombre del \xFAltimo jugador\r\n";

struct BadSettings {
  std::string Name;
  std::string Bytes;
  std::string Outcome;
  std::vector<int> Partida;  // stones, juegos, vacas; empty if the table never opens
  std::string After;         // the file's content afterwards
};

void PrintTo(const BadSettings& caso, std::ostream* salida) { *salida << caso.Name; }

BadSettings CutBefore(const std::string& nombre, int linea, const std::string& bytes) {
  const std::string mensaje = "mus.ini, línea " + std::to_string(linea) +
                              ": el archivo se acaba y falta alguna de sus cuatro primeras líneas.";
  return {nombre, bytes, mensaje, {}, bytes};
}

// Three invalid lines, for which the default parameters are used.
BadSettings Defaults(const std::string& nombre, const std::string& lineas) {
  return {
      nombre, lineas + "Ana>\r\n", "plays", {35, 3, 3}, lineas + "Ana" + LastPlayer + "Ana>\r\n"};
}

// A fourth line, and the name that the dialog proposes for it.
BadSettings Fourth(const std::string& nombre, const std::string& linea,
                   const std::string& jugador) {
  const std::string principio = "7\r\n2\r\n1\r\n";
  return {nombre,
          principio + linea + "\r\n",
          "plays",
          {7, 2, 1},
          principio + jugador + LastPlayer + linea + "\r\n"};
}

std::vector<BadSettings> Cases() {
  const std::string tres = "7\r\n2\r\n1\r\n";
  const std::string guardado = tres + "Ana" + LastPlayer + "Ana> x\r\n";
  // A NUL ends a number. A line that begins with one has no number.
  const std::string nulos = "7"s + "\0"s + "5\r\n" + "\0"s + "2\r\n1" + "\0"s + "\r\n";
  return {
      CutBefore("NoLine", 1, ""),
      CutBefore("OneLine", 2, "7\r\n"),
      CutBefore("OneLineWithoutItsEnd", 2, "7"),
      CutBefore("TwoLines", 3, "7\r\n2\r\n"),
      CutBefore("ThreeLines", 4, tres),
      CutBefore("EndsInCr", 2, "7\r2\r1\rAna> x\r"),
      {"FourLines", tres + "Ana> x\r\n", "plays", {7, 2, 1}, guardado},
      {"FourLinesWithoutTheLastEnd", tres + "Ana> x", "plays", {7, 2, 1}, guardado},
      {"FiveLines", tres + "Ana> x\r\nEva> y\r\n", "plays", {7, 2, 1}, guardado},
      {"SixLines", tres + "Ana> x\r\nEva> y\r\nz\r\n", "plays", {7, 2, 1}, guardado},
      {"EndsInLf",
       "7\n2\n1\nAna> x\n",
       "plays",
       {7, 2, 1},
       "7\n2\n1\nAna" + LastPlayer + "Ana> x\r\n"},
      Defaults("BlankLines", "\r\n\r\n\r\n"),
      Defaults("HugeNumbers", "99999999999999999999\r\n1e300\r\n32768\r\n"),
      Defaults("NumbersBeyondADouble", "1e99999\r\n" + std::string(5000, '9') + "\r\n1E999\r\n"),
      Defaults("JustTooGreat", "1000\r\n1000\r\n999.5\r\n"),
      Defaults("JustTooSmall", "0\r\n0.5\r\n-1\r\n"),
      Defaults("Letters", "piedras\r\njuegos\r\nvacas\r\n"),
      {"Nuls", nulos + "Ana> x\r\n", "plays", {7, 3, 1}, nulos + "Ana" + LastPlayer + "Ana> x\r\n"},
      Defaults("UndefinedBytes", "\x81\r\n\x8D\x8F\r\n\x90\x9D\r\n"),
      {"ByteOrderMark",
       "\xEF\xBB\xBF" + tres + "Ana> x\r\n",
       "plays",
       {35, 2, 1},
       "\xEF\xBB\xBF" + guardado},
      {"Comments",
       "7 piedras\r\n2> juegos\r\n1;vacas\r\nAna> x\r\n",
       "plays",
       {7, 2, 1},
       "7 piedras\r\n2> juegos\r\n1;vacas\r\nAna" + LastPlayer + "Ana> x\r\n"},
      {"GreatestNumbers",
       "999\r\n999\r\n999\r\nAna> x\r\n",
       "plays",
       {999, 999, 999},
       "999\r\n999\r\n999\r\nAna" + LastPlayer + "Ana> x\r\n"},
      Fourth("NoSignInTheFourthLine", "Eva y su nombre", "Eva y su nombre"),
      Fourth("SignAloneInTheFourthLine", ">", "Jugador 1"),
      Fourth("BlankFourthLine", "", "Jugador 1"),
      Fourth("NameInUtf8", "\xC3\x8D\xC3\xB1igo> x", "\xC3\x8D\xC3\xB1igo"),
      Fourth("UndefinedBytesInTheName", "\x81\x8D\x8F\x90\x9D> x", "\x81\x8D\x8F\x90\x9D"),
      Fourth("NulInTheName", "A\0na> x"s, "A\0na"s),
      Fourth("LongName", std::string(5000, 'a') + "> x", std::string(5000, 'a')),
  };
}

class BadSettingsFile : public testing::TestWithParam<BadSettings> {};

TEST_P(BadSettingsFile, HasItsOutcome) {
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", Fichero{}.Bytes());
  carpeta.Write("mus.ini", GetParam().Bytes);
  const Played partida = Play(carpeta.Path());
  EXPECT_EQ(partida.Outcome, GetParam().Outcome);
  EXPECT_EQ(carpeta.Read("mus.ini"), GetParam().After);
  std::vector<int> partidaLeida;
  for (const char* const campo : {"PiedrasJuego", "JuegosVaca", "VacasPartida"}) {
    if (!partida.State.is_null()) partidaLeida.push_back(partida.State[campo].get<int>());
  }
  EXPECT_EQ(partidaLeida, GetParam().Partida);
}

INSTANTIATE_TEST_SUITE_P(Lines, BadSettingsFile, testing::ValuesIn(Cases()), ByName);

}  // namespace
}  // namespace tasca::test
