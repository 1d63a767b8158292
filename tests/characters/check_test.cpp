// The checker: every fault, on both sides of every limit.
#include "characters/check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "base/errors.h"
#include "base/line_file.h"
#include "tests/characters/fichero.h"

namespace tasca::test {
namespace {

const Textos SinFaltas;
const std::string Ampersand =
    R"(el signo "&" se ve tal cual: solo en las frases de "EnvM" es la cantidad.)";
const std::string Vacia =
    "la frase está vacía: el programa se detiene cuando un jugador va a decirla.";

TEST(RevisarPersonajes, FindsNothingInAGoodFile) {
  const Revision revision = Revisar(Fichero{}.Bytes());
  EXPECT_EQ(revision.Faltas, std::vector<Falta>{});
  EXPECT_EQ(revision.Personajes, 5);
  EXPECT_EQ(revision.Ofrecidos, 3);
}

TEST(RevisarPersonajes, FindsNothingInTheShippedFile) {
  EXPECT_EQ(
      RevisarPersonajes(std::filesystem::path{TASCA_SOURCE_DIR} / "data" / "Jugadores.dat").Faltas,
      std::vector<Falta>{});
}

TEST(RevisarPersonajes, TakesEitherLineEndAndALastLineWithoutOne) {
  std::string bytes;
  for (const std::string& linea : Fichero{}.Lineas) bytes += linea + "\n";
  EXPECT_EQ(Faltas(bytes), SinFaltas);
  bytes.pop_back();
  EXPECT_EQ(Faltas(bytes), SinFaltas);
}

// Encoding.

const std::string EnUtf8 =
    "el archivo parece guardado en UTF-8, y así sus acentos se ven mal: guárdelo en Windows-1252 "
    "(ANSI).";

TEST(RevisarPersonajes, FindsUtf8AtItsFirstMultiByteLine) {
  const Fichero fichero = Fichero{}.Cambiar(68, "Bailó.").Cambiar(70, "¡mus!").Cambiar(72, "no");
  EXPECT_EQ(Faltas(fichero), (Textos{"68: " + EnUtf8}));
}

TEST(RevisarPersonajes, FindsAByteOrderMark) {
  const Textos faltas = Faltas("\xEF\xBB\xBF" + Fichero{}.Bytes());
  EXPECT_EQ(std::count(faltas.begin(), faltas.end(), "1: " + EnUtf8), 1);
}

// The Windows-1252 bytes of "Ã©" are also a valid UTF-8 sequence.
TEST(RevisarPersonajes, AcceptsWindows1252) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(68, "Bail\xF3.")), SinFaltas);
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(68, "\xC3\xA9.").Cambiar(159, "Bail\xF3.")), SinFaltas);
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(68, "Bail\xF3.").Cambiar(70, "\xC3\xA9.")), SinFaltas);
}

TEST(RevisarPersonajes, FindsUtf8InALastLineWithoutAnEnd) {
  std::string bytes = Fichero{}.Cambiar(160, "adiós").Bytes();
  bytes.resize(bytes.size() - 2);
  EXPECT_EQ(Faltas(bytes), (Textos{"160: " + EnUtf8}));
}

// Faults that stop the program.

TEST(RevisarPersonajes, FindsPhrasesBeforeTheFirstRecord) {
  const std::string falta =
      "hay una frase antes del primer personaje, y aquí se detiene el programa.";
  EXPECT_EQ(Faltas(Fichero{}.Insertar(1, {"hola"})), (Textos{"1: " + falta}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(1, {"", "hola"})), (Textos{"1: " + falta, "2: " + falta}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(1, {"QMus>", "hola"})), (Textos{"2: " + falta}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(1, {"QMus>"})), SinFaltas);
}

TEST(RevisarPersonajes, FindsARecordCutShort) {
  const auto falta = [](const std::string& que) {
    return "el archivo se acaba y falta " + que + " del personaje, y aquí se detiene el programa.";
  };
  const auto cortado = [](int lineas) {
    return Faltas(Fichero{}.Anadir("Nombre ", 6).Cortar(160 + lineas));
  };
  EXPECT_EQ(cortado(0), SinFaltas);
  EXPECT_EQ(cortado(1), (Textos{"162: " + falta("el nombre")}));
  EXPECT_EQ(cortado(2), (Textos{"163: " + falta("el valor de ordaguero")}));
  EXPECT_EQ(cortado(3), (Textos{"164: " + falta("la historia")}));
  EXPECT_EQ(cortado(4), SinFaltas);
}

TEST(RevisarPersonajes, FindsACutRecordThatOnlyTheDialogReads) {
  EXPECT_EQ(Faltas(Fichero{}.Insertar(161, {"Mis Datos>"})),
            (Textos{"161: la marca \"Mis Datos\" es desconocida.",
                    "161: esta línea empieza un personaje solo para el diálogo de inicio.",
                    "162: el archivo se acaba y falta el nombre del personaje, y aquí se detiene "
                    "el programa (solo para el diálogo de inicio)."}));
}

// Adds characters 6 to `hasta`, without phrases and with names that are not offered.
Fichero ConPersonajes(int hasta) {
  Fichero fichero;
  for (int i = 6; i <= hasta; ++i) {
    fichero.Insertar(static_cast<int>(fichero.Lineas.size()) + 1,
                     {"Datos>", "Default", "050", "Historia"});
  }
  return fichero;
}

TEST(RevisarPersonajes, FindsTheCharacterAfterTheHundredth) {
  EXPECT_EQ(Faltas(ConPersonajes(100)), SinFaltas);
  // The first five characters have 160 lines, each further one four.
  const Textos falta{"541: hay más de 100 personajes, y aquí se detiene el programa."};
  EXPECT_EQ(Faltas(ConPersonajes(101)), falta);
  EXPECT_EQ(Faltas(ConPersonajes(103)), falta);
  EXPECT_EQ(Revisar(ConPersonajes(103).Bytes()).Personajes, 103);
}

TEST(RevisarPersonajes, FindsEveryOfferedCharacterAfterTheFiftieth) {
  const auto falta = [](int linea, int personaje) {
    return std::to_string(linea) + ": el personaje " + std::to_string(personaje) +
           " se ofrece, y solo los 50 primeros pueden sentarse a la mesa, y aquí se detiene el "
           "programa (solo para el diálogo de inicio).";
  };
  // Character 50 starts at line 337, character 51 at line 341.
  EXPECT_EQ(Faltas(ConPersonajes(52).Cambiar(338, "Berta")), SinFaltas);
  EXPECT_EQ(Faltas(ConPersonajes(52).Cambiar(342, "Berta")), (Textos{falta(344, 51)}));
  EXPECT_EQ(Faltas(ConPersonajes(52).Cambiar(342, "Berta").Cambiar(346, "Dora")),
            (Textos{falta(344, 51), falta(348, 52)}));
}

TEST(RevisarPersonajes, EndsAtALineThatIsTooLong) {
  const std::string larga(LineReader::LargoMaximo - 2, ' ');
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(68, larga)), SinFaltas);
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(68, larga + " ").Insertar(70, {"", "", "Otra>"})),
            (Textos{"68: la línea es demasiado larga, y aquí se detiene el programa."}));
}

// Faults that lose or change text.

TEST(RevisarPersonajes, FindsUnknownMarkers) {
  // The marker has no phrases, so that there is no second fault.
  EXPECT_EQ(Faltas(Fichero{}.Insertar(97, {"Otra>"})),
            (Textos{"97: la marca \"Otra\" es desconocida."}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(97, {" Derr >"})),
            (Textos{"97: la marca \" Derr \" es desconocida."}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(97, {">"})), (Textos{"97: la marca \"\" es desconocida."}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(97, {"Datos de nadie>"})),
            (Textos{"97: la marca \"Datos de nadie\" es desconocida."}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(97, {std::string(41, 'x') + ">"})),
            (Textos{"97: la marca \"" + std::string(40, 'x') + "…\" es desconocida."}));
}

TEST(RevisarPersonajes, FindsThePhraseThatAnUnknownMarkerSendsToAnotherKind) {
  EXPECT_EQ(
      Faltas(Fichero{}.Cambiar(95, "Der>")),
      (Textos{"95: la marca \"Der\" es desconocida.",
              "96: ya hay una frase 1 de \"Vict\": esta toma su sitio y aquella se pierde."}));
}

TEST(RevisarPersonajes, FindsMarkersInTheWrongCase) {
  EXPECT_EQ(
      Faltas(Fichero{}.Cambiar(95, "derr>")),
      (Textos{"95: la marca \"derr\" es desconocida: se escribe \"Derr\" (solo para el juego).",
              "96: ya hay una frase 1 de \"Vict\": esta toma su sitio y aquella se pierde "
              "(solo para el juego)."}));
  EXPECT_EQ(
      Faltas(Fichero{}.Insertar(97, {"EnVM>"})),
      (Textos{"97: la marca \"EnVM\" es desconocida: se escribe \"EnvM\" (solo para el juego)."}));
}

TEST(RevisarPersonajes, ComparesOnlyTheLettersOfAscii) {
  // 0xD3 and 0xF3 are Ó and ó.
  EXPECT_EQ(
      Faltas(Fichero{}.Insertar(97, {"\xD3rda>", "0rda>"})),
      (Textos{"97: la marca \"Órda\" es desconocida.", "98: la marca \"0rda\" es desconocida."}));
}

TEST(RevisarPersonajes, FollowsTheEditorIntoARecordInTheWrongCase) {
  EXPECT_EQ(
      Faltas(Fichero{}.Insertar(161, {"DATOS>", "Dora", "050", "Historia"})),
      (Textos{"161: la marca \"DATOS\" es desconocida: se escribe \"Datos\" (solo para el juego).",
              "161: esta línea empieza un personaje solo para el editor.",
              "162: ya hay una frase 1 de \"Derr\": esta toma su sitio y aquella se pierde (solo "
              "para el juego)."}));
}

TEST(RevisarPersonajes, FindsLinesThatOnlyTheDialogTakesForARecord) {
  const std::string soloInicio =
      ": esta línea empieza un personaje solo para el diálogo de inicio.";
  EXPECT_EQ(
      Faltas(Fichero{}.Insertar(161, {"QMus>Datos>", "a", "b", "c"})),
      (Textos{"161: lo que sigue a la marca en su línea se pierde.", "161" + soloInicio,
              "162: ya hay una frase 1 de \"QMus\": esta toma su sitio y aquella se pierde."}));
  // The dialog reads a default record only as far as its name.
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(36, "Datos>")),
            (Textos{"36: la historia lleva el signo \">\", que es solo de las marcas.",
                    "36" + soloInicio}));
}

TEST(RevisarPersonajes, NamesBothReadersThatTakeALineForARecord) {
  const Textos faltas =
      Faltas(Fichero{}.Insertar(161, {"Mis Datos>", "Datos>", "Dora", "050", "Historia"}));
  ASSERT_EQ(faltas.size(), 3U);
  EXPECT_EQ(faltas[2], "162: esta línea empieza un personaje solo para el juego y el editor.");
}

TEST(RevisarPersonajes, FindsTextAfterAMarker) {
  const std::string falta = ": lo que sigue a la marca en su línea se pierde.";
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(69, "QMus>Quiero mus").Cambiar(97, "Datos> de Dora")),
            (Textos{"69" + falta, "97" + falta}));
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(69, "QMus>>")), (Textos{"69" + falta}));
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(69, "QMus>  ")), SinFaltas);
}

TEST(RevisarPersonajes, FindsAFourthPhrase) {
  const std::string falta =
      ": ya hay una frase 3 de \"NMus\": esta toma su sitio y aquella se pierde.";
  EXPECT_EQ(Faltas(Fichero{}.Insertar(73, {"dos", "tres"})), SinFaltas);
  EXPECT_EQ(Faltas(Fichero{}.Insertar(73, {"dos", "tres", "cuatro"})), (Textos{"75" + falta}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(73, {"dos", "tres", "cuatro", "cinco"})),
            (Textos{"75" + falta, "76" + falta}));
}

TEST(RevisarPersonajes, FindsAPhraseUnderARepeatedMarker) {
  EXPECT_EQ(
      Faltas(Fichero{}.Insertar(97, {"QMus>", "otra", "una"})),
      (Textos{"98: ya hay una frase 1 de \"QMus\": esta toma su sitio y aquella se pierde."}));
}

TEST(RevisarPersonajes, FindsPhrasesBeforeTheFirstMarkerOfARecord) {
  EXPECT_EQ(
      Faltas(Fichero{}.Insertar(69, {"suelta"})),
      (Textos{"69: la frase va antes de la primera marca del personaje: se lee como de "
              "\"Derr\".",
              "97: ya hay una frase 1 de \"Derr\": esta toma su sitio y aquella se pierde."}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(5, {"suelta"})),
            (Textos{"5: la frase va antes de la primera marca del personaje: se lee como de "
                    "\"QMus\".",
                    "7: ya hay una frase 1 de \"QMus\": esta toma su sitio y aquella se pierde."}));
}

TEST(RevisarPersonajes, FindsTextsBeyondTheirWidths) {
  const std::string cien(100, 'a');
  const std::string doscientas(200, 'b');
  EXPECT_EQ(Faltas(Fichero{}
                       .Cambiar(66, " " + cien + "  ")
                       .Cambiar(68, " " + doscientas + "  ")
                       .Cambiar(70, " " + cien + "  ")),
            SinFaltas);
  EXPECT_EQ(
      Faltas(
          Fichero{}.Cambiar(66, cien + "a").Cambiar(68, doscientas + " b").Cambiar(70, cien + "a")),
      (Textos{"66: el nombre tiene 101 caracteres y solo se leen los 100 primeros.",
              "68: la historia tiene 202 caracteres y solo se leen los 200 primeros.",
              "70: la frase tiene 101 caracteres y solo se leen los 100 primeros."}));
}

TEST(RevisarPersonajes, FindsAnOrdagueroThatIsMisread) {
  for (const std::string bueno :
       {"0", "7", "40", "040", "999", "-5", "-50", "+5", "40   ", " 40"}) {
    EXPECT_EQ(Faltas(Fichero{}.Cambiar(67, bueno)), SinFaltas) << bueno;
  }
  struct Caso {
    std::string Linea;
    std::string Leido;
  };
  for (const Caso& caso :
       {Caso{"1000", "100"}, Caso{"0040", "4"}, Caso{"-005", "0"}, Caso{"  40", "4"},
        Caso{"12abc", "12"}, Caso{"4.5", "4"}, Caso{"cinco", "0"}, Caso{"", "0"}, Caso{"-", "0"},
        Caso{"4 0", "4"}, Caso{"50>", "50"}, Caso{"\xB2", "0"}}) {
    const std::string cita = caso.Linea == "\xB2" ? "²" : caso.Linea;
    EXPECT_EQ(Faltas(Fichero{}.Cambiar(67, caso.Linea)),
              (Textos{"67: el valor de ordaguero \"" + cita +
                      "\" no es un número entero de tres caracteres como mucho: se lee " +
                      caso.Leido + "."}));
  }
}

TEST(RevisarPersonajes, FindsBytesOutsideTheCodePage) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(70, "\x80\x82\x8C\x8E\x91\x9C\x9E\x9F\xA0\xFF")), SinFaltas);
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(70, "\x81 \x8D \x8F \x81 \x90 \x9D").Cambiar(66, "\x9D")),
            (Textos{"66: hay bytes fuera de la página de códigos (9D).",
                    "70: hay bytes fuera de la página de códigos (81, 8D, 8F, 90, 9D)."}));
}

TEST(RevisarPersonajes, FindsControlCharacters) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(70, "~ \xA0")), SinFaltas);
  EXPECT_EQ(
      Faltas(Fichero{}.Cambiar(68, std::string{"a\0\tb\0", 5}).Cambiar(70, "\x1B[2J\x7F\x1F\r")),
      (Textos{"68: hay caracteres de control (00, 09).",
              "70: hay caracteres de control (1B, 7F, 1F, 0D)."}));
}

TEST(RevisarPersonajes, FindsTheSignOfMarkersInNamesAndStories) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(66, "La > rubia").Cambiar(68, "Datos>")),
            (Textos{"66: el nombre lleva el signo \">\", que es solo de las marcas.",
                    "68: la historia lleva el signo \">\", que es solo de las marcas."}));
}

// Faults in what is shown.

TEST(RevisarPersonajes, FindsAmpersandsWhereNoAmountComes) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(86, "Envido &").Cambiar(22, "que envida &")), SinFaltas);
  for (const int linea : {70, 72, 74, 76, 78, 80, 82, 84, 88, 90, 92, 94, 96}) {
    EXPECT_EQ(Faltas(Fichero{}.Cambiar(linea, "a & b")),
              (Textos{std::to_string(linea) + ": " + Ampersand}));
  }
}

TEST(RevisarPersonajes, FindsEmptyPhrases) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(70, "").Cambiar(72, "   ").Cambiar(2 + 4, "")),
            (Textos{"6: " + Vacia, "70: " + Vacia, "72: " + Vacia}));
  EXPECT_EQ(Faltas(Fichero{}.Insertar(161, {""})), (Textos{"161: " + Vacia}));
}

TEST(RevisarPersonajes, FindsEmptyNames) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(66, "").Cambiar(98, "  ")),
            (Textos{"66: el nombre está vacío.", "98: el nombre está vacío."}));
}

TEST(RevisarPersonajes, AllowsAnEmptyStory) {
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(68, "")), SinFaltas);
}

TEST(RevisarPersonajes, FindsPhrasesThatADefaultSetLacks) {
  EXPECT_EQ(
      Faltas(Fichero{}.Quitar(64).Quitar(8)),
      (Textos{"1: al personaje 1 le falta la frase 1 de \"NMus\", la de quien no tiene otra.",
              "32: al personaje 2 le falta la frase 1 de \"Derr\", la de quien no tiene otra."}));
  EXPECT_EQ(Faltas(Fichero{}.Quitar(70)), SinFaltas);
}

TEST(RevisarPersonajes, FindsAllFourteenKindsOfADefaultSetThatEndsTheFile) {
  const Textos faltas = Faltas(Fichero{}.Cortar(36));
  ASSERT_EQ(faltas.size(), 15U);
  EXPECT_EQ(faltas[0],
            "33: al personaje 2 le falta la frase 1 de \"QMus\", la de quien no tiene otra.");
  EXPECT_EQ(faltas[13],
            "33: al personaje 2 le falta la frase 1 de \"Derr\", la de quien no tiene otra.");
}

TEST(RevisarPersonajes, FindsDefaultSetsThatWouldBeOffered) {
  const auto falta = [](int linea, int personaje) {
    return std::to_string(linea) + ": el nombre del personaje " + std::to_string(personaje) +
           ", el de las frases de quien no tiene otras, no lleva \"Default\": se ofrece como "
           "jugador.";
  };
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(2, "Indirecto").Cambiar(34, "default 2")),
            (Textos{falta(2, 1), falta(34, 2)}));
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(2, "MisDefaults").Anadir("Nombre ", 6).Cambiar(66, "Default")),
            SinFaltas);
}

TEST(RevisarPersonajes, FindsMissingDefaultSets) {
  const std::string sonCero = "0: los jugadores que se ofrecen son 0, y hacen falta 3.";
  const std::string falta = ", el de las frases de quien no tiene otras.";
  EXPECT_EQ(Faltas(Fichero{}.Cortar(32)), (Textos{"0: falta el personaje 2" + falta, sonCero}));
  EXPECT_EQ(Faltas(std::string{}), (Textos{"0: falta el personaje 1" + falta,
                                           "0: falta el personaje 2" + falta, sonCero}));
}

TEST(RevisarPersonajes, FindsFewerThanThreePlayers) {
  EXPECT_EQ(Faltas(Fichero{}.Cortar(160)), SinFaltas);
  EXPECT_EQ(Faltas(Fichero{}.Cortar(128)),
            (Textos{"0: los jugadores que se ofrecen son 2, y hacen falta 3."}));
  EXPECT_EQ(Faltas(Fichero{}.Cambiar(66, "Default 3")),
            (Textos{"0: los jugadores que se ofrecen son 2, y hacen falta 3."}));
}

TEST(RevisarPersonajes, ListsTheFaultsByLine) {
  const std::string ordaguero =
      "66: el valor de ordaguero \"x\" no es un número entero de tres caracteres como mucho: se "
      "lee "
      "0.";
  EXPECT_EQ(
      Faltas(Fichero{}.Cortar(128).Cambiar(70, "&").Quitar(64).Cambiar(6, "").Cambiar(66, "x")),
      (Textos{"6: " + Vacia,
              "33: al personaje 2 le falta la frase 1 de \"Derr\", la de quien no tiene otra.",
              ordaguero, "69: " + Ampersand,
              "0: los jugadores que se ofrecen son 2, y hacen falta 3."}));
}

// Files that cannot be read.

TEST(RevisarPersonajes, ThrowsForAMissingFileAndForAFolder) {
  const TempFolder carpeta;
  EXPECT_THROW(RevisarPersonajes(carpeta.Path() / "nada.dat"), RunTimeError);
  EXPECT_THROW(RevisarPersonajes(carpeta.Path()), RunTimeError);
}

TEST(RevisarPersonajes, ThrowsForAFileThatCannotBeReadToItsEnd) {
  EXPECT_THROW(RevisarPersonajes("/proc/self/mem"), RunTimeError);
}

TEST(RevisarPersonajes, StopsAfterTooManyFaults) {
  const Revision revision = Revisar(std::string(1'000'000, '\n'));
  ASSERT_FALSE(revision.Faltas.empty());
  EXPECT_LE(revision.Faltas.size(), 200'001U);
  EXPECT_EQ(Utf8(revision.Faltas.back().Texto), "hay demasiadas faltas: no se mira más allá.");
}

TEST(RevisarPersonajes, ReadsFortyThousandRecords) {
  const std::string bytes = ConPersonajes(100).Bytes();
  std::string muchos = bytes;
  for (int i = 101; i <= 40'000; ++i) muchos += "Datos>\r\nDefault\r\n050\r\nHistoria\r\n";
  const Revision revision = Revisar(muchos);
  EXPECT_EQ(revision.Personajes, 40'000);
  EXPECT_EQ(revision.Faltas.size(), 1U);
}

}  // namespace
}  // namespace tasca::test
