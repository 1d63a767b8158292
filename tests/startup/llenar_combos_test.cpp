// The lists of the start-up dialog.
#include <gtest/gtest.h>

#include "tests/startup/inicio.h"

namespace tasca::test {
namespace {

// A list as "TEXT=NUMBER, ...", without the entry "Aleatorio=0".
std::string Lista(const ComboBox& combo) {
  std::string texto;
  for (const ComboBox::Entrada& entrada : combo.List) {
    texto += ", " + Utf8(entrada.Texto) + "=" + std::to_string(entrada.Personaje);
  }
  EXPECT_TRUE(texto.starts_with(", Aleatorio=0")) << texto;
  constexpr std::string_view Principio = ", Aleatorio=0, ";
  return texto.size() < Principio.size() ? "" : texto.substr(Principio.size());
}

std::string ListaDe(const std::string& archivo) { return Lista(Inicio{archivo}.d.Combo1); }

TEST(LlenarCombos, OffersTheSameCharactersInAllThreeLists) {
  const Inicio inicio{3};
  EXPECT_EQ(Lista(inicio.d.Combo1), "Nombre 3=3, Nombre 4=4, Nombre 5=5");
  EXPECT_EQ(Lista(inicio.d.Combo2), "Nombre 3=3, Nombre 4=4, Nombre 5=5");
  EXPECT_EQ(Lista(inicio.d.Combo3), "Nombre 3=3, Nombre 4=4, Nombre 5=5");
}

TEST(LlenarCombos, OffersNobodyFromAnEmptyFile) { EXPECT_EQ(ListaDe(""), ""); }

TEST(LlenarCombos, SkipsRecordsWhoseNameContainsDefaultButCountsThem) {
  EXPECT_EQ(ListaDe(Registro("Default", "-") + Registro("Berta", "-") +
                    Registro("el Default de Dora", "-") + Registro("Dora", "-")),
            "Berta=2, Dora=4");
  EXPECT_EQ(ListaDe(Registro("default", "-") + Registro("DEFAULT", "-") + Registro("Defaul", "-")),
            "default=1, DEFAULT=2, Defaul=3");
}

TEST(LlenarCombos, TrimsNames) {
  EXPECT_EQ(ListaDe(Registro("  La boticaria  ", "-")), "La boticaria=1");
}

TEST(LlenarCombos, ReadsTheLettersOfWindows1252) {
  Inicio inicio{Personajes(0) + Registro("El t\xEDo \xC1ngel", "Debe \x80 y \xF1oras.")};
  EXPECT_EQ(Lista(inicio.d.Combo1), "El tío Ángel=3");
  Combo1_Click(inicio.d, 1);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Debe € y ñoras.");
}

TEST(LlenarCombos, AcceptsLineFeedsAndALastLineWithoutEnd) {
  Inicio inicio{"Datos>\nUno\n050\n-\nDatos>\nDos\n050\n-\nDatos>\nTres\n050\nHistoria 3"};
  EXPECT_EQ(Lista(inicio.d.Combo1), "Uno=1, Dos=2, Tres=3");
  Combo1_Click(inicio.d, 3);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 3");
}

// Unlike the game's reader, this one finds the marker anywhere in a line.
TEST(LlenarCombos, Kept_StartsARecordAtTheMarkerAnywhereInALine) {
  EXPECT_EQ(
      ListaDe("hola\r\nMas Datos> aqui\r\nBerta\r\n050\r\n-\r\ndatos>\r\nDora\r\n050\r\n-\r\n"),
      "Berta=1");
}

// The three lines after a marker are not searched for markers, those after a skipped name are.
TEST(LlenarCombos, Kept_LooksForRecordsInTheRestOfASkippedOne) {
  EXPECT_EQ(ListaDe("Datos>\r\nBerta\r\nDatos>\r\nDatos>\r\nQMus>\r\n"), "Berta=1");
  EXPECT_EQ(ListaDe("Datos>\r\nDefault\r\nDatos>\r\nBerta\r\n050\r\n-\r\n"), "Berta=2");
}

TEST(LlenarCombos, KeepsStoriesTrimmedAndCutToTheirWidth) {
  const std::string doscientas(200, 'b');
  Inicio inicio{Personajes(0) + Registro("Berta", "  Vende jarabes.  ") +
                Registro("Dora", doscientas + "x")};
  Combo1_Click(inicio.d, 1);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Vende jarabes.");
  Combo1_Click(inicio.d, 2);
  EXPECT_EQ(Utf8(inicio.d.Text4), doscientas);
}

TEST(LlenarCombos, OffersTheFirstFiftyRecords) {
  Inicio inicio{48};
  ASSERT_EQ(inicio.d.Combo3.List.size(), 49U);
  Combo3_Click(inicio.d, 48);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 50");
}

TEST(LlenarCombos, Kept_AFiftyFirstRecordOnOfferEndsTheProgram) {
  // A record has six lines: the 51st starts at line 301, and its story is line 304.
  const std::string fallo = ErrorOf([] { const Inicio inicio{49}; });
  EXPECT_TRUE(fallo.ends_with(
      "/Jugadores.dat, línea 304: solo los 50 primeros personajes pueden sentarse a la mesa. El "
      "programa va a terminar su ejecución."))
      << fallo;
}

TEST(LlenarCombos, AllowsSkippedRecordsAfterTheFiftieth) {
  const Inicio inicio{Personajes(48) + Registro("Default 51", "-") + Registro("Default 52", "-")};
  EXPECT_EQ(inicio.d.Combo1.List.size(), 49U);
}

TEST(LlenarCombos, EndsTheProgramForARecordCutShort) {
  struct Caso {
    std::string Archivo;
    std::string Fallo;
  };
  const std::vector<Caso> casos{
      {"Datos>\r\n", "línea 2: el archivo se acaba y falta el nombre"},
      {"Datos>\r\nBerta\r\n", "línea 3: el archivo se acaba y falta el valor de ordaguero"},
      {"Datos>\r\nBerta\r\n050\r\n", "línea 4: el archivo se acaba y falta la historia"},
  };
  for (const Caso& caso : casos) {
    const std::string fallo = ErrorOf([&caso] { const Inicio inicio{caso.Archivo}; });
    EXPECT_TRUE(fallo.ends_with("/Jugadores.dat, " + caso.Fallo +
                                " del personaje. El programa va a terminar su ejecución."))
        << fallo;
  }
}

TEST(LlenarCombos, AllowsASkippedRecordCutShortAfterItsName) {
  EXPECT_EQ(ListaDe(Registro("Berta", "-") + "Datos>\r\nDefault"), "Berta=1");
}

TEST(LlenarCombos, TellsThatTheFileIsMissingAndEndsTheProgram) {
  Inicio inicio;
  const std::string mensaje =
      "No se encuentra el archivo con los datos de los personajes. El programa va a terminar su "
      "ejecución.";
  try {
    inicio.Cargar();
    ADD_FAILURE() << "loaded without a file";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(Utf8(error.Message()), mensaje);
    EXPECT_TRUE(error.Shown());
  }
  EXPECT_EQ(inicio.port.TakeEvents(), std::vector<std::string>{"box: " + mensaje});
}

}  // namespace
}  // namespace tasca::test
