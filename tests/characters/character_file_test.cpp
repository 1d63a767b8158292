// Reading the character file.
#include "characters/character_file.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "base/errors.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// An empty table and a folder for a character file.
struct Lectura {
  TempFolder carpeta;
  Table t;

  Lectura() { t.Carpeta = carpeta.Path(); }

  void Leer(std::string_view archivo) {
    carpeta.Write("Jugadores.dat", archivo);
    LeerPersonajes(t);
  }

  // The error message without the folder's name; "" if there is no error.
  std::string Fallo() {
    try {
      LeerPersonajes(t);
      return "";
    } catch (const RunTimeError& error) {
      const std::string carpetaYBarra = t.Carpeta.string() + "/";
      const std::string mensaje = Utf8(error.Message());
      EXPECT_FALSE(error.Shown());
      EXPECT_TRUE(mensaje.starts_with(carpetaYBarra)) << mensaje;
      return mensaje.substr(carpetaYBarra.size());
    }
  }
  std::string Fallo(std::string_view archivo) {
    carpeta.Write("Jugadores.dat", archivo);
    return Fallo();
  }

  std::string Frase(int personaje, int categoria, int hueco) const {
    return Utf8(t.Mensajes[personaje][categoria][hueco].Trimmed());
  }
  bool NuncaLlenada(int personaje, int categoria, int hueco) const {
    return t.Mensajes[personaje][categoria][hueco] == FixedText<AnchoFrase>{};
  }
};

// A record's four lines.
std::string RegistroLeido(const std::string& nombre, const std::string& ordaguero = "050",
                          const std::string& historia = "una historia") {
  return "Datos>\r\n" + nombre + "\r\n" + ordaguero + "\r\n" + historia + "\r\n";
}

// A marker and one phrase under it.
std::string UnaFrase(const std::string& marca, const std::string& frase) {
  return marca + ">\r\n" + frase + "\r\n";
}

TEST(ArchivoPersonajes, LiesInTheProgramsFolder) {
  Table t;
  t.Carpeta = "/juegos/tasca";
  EXPECT_EQ(ArchivoPersonajes(t), "/juegos/tasca/Jugadores.dat");
  t.Carpeta = "/juegos/tasca/";
  EXPECT_EQ(ArchivoPersonajes(t), "/juegos/tasca/Jugadores.dat");
}

TEST(LeerPersonajes, ReadsARecord) {
  Lectura l;
  l.Leer(
      "Datos>\r\nLa boticaria\r\n040\r\nVende jarabes.\r\n"
      "QMus>\r\nSi, como bueyes\r\nVenga mus\r\nNMus>\r\nNi hablar\r\nDerr>\r\n");
  EXPECT_EQ(Utf8(l.t.Personajes[1].Nombre.Trimmed()), "La boticaria");
  EXPECT_EQ(l.t.Personajes[1].Ordaguero, 40);
  EXPECT_EQ(Utf8(l.t.Personajes[1].Historia.Trimmed()), "Vende jarabes.");
  EXPECT_EQ(l.Frase(1, 1, 1), "Si, como bueyes");
  EXPECT_EQ(l.Frase(1, 1, 2), "Venga mus");
  EXPECT_TRUE(l.NuncaLlenada(1, 1, 3));
  EXPECT_EQ(l.Frase(1, 2, 1), "Ni hablar");
  EXPECT_TRUE(l.NuncaLlenada(1, 2, 2));
  EXPECT_TRUE(l.NuncaLlenada(1, 14, 1));
}

TEST(LeerPersonajes, RecognisesTheFourteenMarkers) {
  const std::array<std::string, 14> marcas{"QMus", "NMus", "TPar", "NPar", "TJue", "NJue", "Paso",
                                           "Envi", "EnvM", "Orda", "NQui", "SQui", "Vict", "Derr"};
  std::string archivo = RegistroLeido("Berta");
  for (const std::string& marca : marcas) archivo += UnaFrase(marca, "frase de " + marca);
  Lectura l;
  l.Leer(archivo);
  for (int categoria = 1; categoria <= 14; ++categoria) {
    EXPECT_EQ(l.Frase(1, categoria, 1),
              "frase de " + marcas.at(static_cast<std::size_t>(categoria - 1)));
    EXPECT_TRUE(l.NuncaLlenada(1, categoria, 2));
  }
}

TEST(LeerPersonajes, NumbersCharactersFromOneInTheOrderOfTheFile) {
  Lectura l;
  l.t.Personajes[0].Nombre = u"Ana";
  l.Leer(RegistroLeido("Berta") + "QMus>\r\nmus\r\n" + RegistroLeido("Dora") + "QMus>\r\nvale\r\n");
  EXPECT_EQ(Utf8(l.t.Personajes[0].Nombre.Trimmed()), "Ana");
  EXPECT_EQ(Utf8(l.t.Personajes[1].Nombre.Trimmed()), "Berta");
  EXPECT_EQ(Utf8(l.t.Personajes[2].Nombre.Trimmed()), "Dora");
  EXPECT_EQ(l.t.Personajes[3], Personaje{});
  EXPECT_EQ(l.Frase(1, 1, 1), "mus");
  EXPECT_EQ(l.Frase(2, 1, 1), "vale");
}

TEST(LeerPersonajes, ReadsAnEmptyFileAsNoCharacters) {
  Lectura l;
  const Table antes = l.t;
  l.Leer("");
  EXPECT_EQ(l.t, antes);
}

TEST(LeerPersonajes, TrimsBlanksOfNamesStoriesAndPhrases) {
  Lectura l;
  l.Leer(RegistroLeido("  Berta  ", "050", "  Vende jarabes.  ") + "QMus>\r\n  mus " +
         std::string(90, ' ') + "\r\n");
  EXPECT_TRUE(l.t.Personajes[1].Nombre.Full().starts_with(u"Berta  "));
  EXPECT_TRUE(l.t.Personajes[1].Historia.Full().starts_with(u"Vende jarabes.  "));
  EXPECT_TRUE(l.t.Mensajes[1][1][1].Full().starts_with(u"mus  "));
}

TEST(LeerPersonajes, CutsEveryTextToItsWidth) {
  const std::string cien(100, 'a');
  const std::string doscientas(200, 'b');
  for (const std::string sobra : {"", "x"}) {
    Lectura l;
    l.Leer(RegistroLeido(cien + sobra, "050", doscientas + sobra) + UnaFrase("QMus", cien + sobra));
    EXPECT_EQ(Utf8(l.t.Personajes[1].Nombre.Full()), cien);
    EXPECT_EQ(Utf8(l.t.Personajes[1].Historia.Full()), doscientas);
    EXPECT_EQ(Utf8(l.t.Mensajes[1][1][1].Full()), cien);
  }
}

TEST(LeerPersonajes, AcceptsEitherLineEndAndALastLineWithoutOne) {
  const std::vector<std::string> archivos{
      "Datos>\r\nBerta\r\n040\r\nJarabes\r\nQMus>\r\nmus\r\n",
      "Datos>\r\nBerta\r\n040\r\nJarabes\r\nQMus>\r\nmus",
      "Datos>\nBerta\n040\nJarabes\nQMus>\nmus\n",
      "Datos>\nBerta\n040\nJarabes\nQMus>\nmus",
      "Datos>\r\nBerta\n040\r\nJarabes\nQMus>\r\nmus\n",
  };
  Table esperada;
  esperada.Personajes[1].Nombre = u"Berta";
  esperada.Personajes[1].Ordaguero = 40;
  esperada.Personajes[1].Historia = u"Jarabes";
  esperada.Mensajes[1][1][1] = u"mus";
  for (const std::string& archivo : archivos) {
    Lectura l;
    l.Leer(archivo);
    esperada.Carpeta = l.t.Carpeta;
    EXPECT_EQ(l.t, esperada);
  }
}

TEST(LeerPersonajes, ReadsTheLettersOfWindows1252) {
  Lectura l;
  l.Leer(RegistroLeido("El t\xEDo \xC1ngel", "050", "cobra en \x80 \x81") +
         "QMus>\r\n\x93\xF1o\xF1o\x94 \xBFmus?\r\n");
  EXPECT_EQ(Utf8(l.t.Personajes[1].Nombre.Trimmed()), "El tío Ángel");
  EXPECT_EQ(Utf8(l.t.Personajes[1].Historia.Trimmed()), "cobra en € \u0081");
  EXPECT_EQ(l.Frase(1, 1, 1), "“ñoño” ¿mus?");
}

TEST(LeerPersonajes, ReadsTheFirstThreeCharactersOfTheOrdaguero) {
  struct Caso {
    std::string Linea;
    int Valor;
  };
  const std::vector<Caso> casos{
      {"040", 40}, {"7", 7},    {"12abc", 12}, {"100", 100}, {"1000", 100}, {"999", 999},
      {"-05", -5}, {"-005", 0}, {"-50", -50},  {"+5", 5},    {" 40", 40},   {"  40", 4},
      {"abc", 0},  {"a40", 0},  {"", 0},       {"4 0", 4},   {"0x1", 0},    {"4.9", 4},
      {"-", 0},    {"1e2", 1},  {"4-5", 4},    {"--5", 0},   {"   ", 0},    {"000", 0},
  };
  for (const Caso& caso : casos) {
    Lectura l;
    l.Leer(RegistroLeido("Berta", caso.Linea));
    EXPECT_EQ(l.t.Personajes[1].Ordaguero, caso.Valor) << '"' << caso.Linea << '"';
  }
}

TEST(LeerPersonajes, ReadsABlankLineAsABlankPhrase) {
  Lectura l;
  l.Leer(RegistroLeido("Berta") + "QMus>\r\n\r\n   \r\nmus\r\n");
  for (const int hueco : {1, 2}) {
    EXPECT_EQ(l.Frase(1, 1, hueco), "");
    EXPECT_FALSE(l.NuncaLlenada(1, 1, hueco));
  }
  EXPECT_EQ(l.Frase(1, 1, 3), "mus");
}

TEST(LeerPersonajes, RestartsThePhrasesAtEveryMarker) {
  Lectura l;
  l.Leer(RegistroLeido("Berta") + "QMus>\r\nuno\r\ndos\r\nNMus>\r\ntres\r\nQMus>\r\ncuatro\r\n");
  EXPECT_EQ(l.Frase(1, 1, 1), "cuatro");
  EXPECT_EQ(l.Frase(1, 1, 2), "dos");
  EXPECT_EQ(l.Frase(1, 2, 1), "tres");
}

TEST(LeerPersonajes, RecognisesAMarkerByItsTextBeforeTheFirstSign) {
  Lectura l;
  l.Leer("Datos>comentario\r\nBerta\r\n050\r\nhistoria\r\n" +
         std::string{"NMus>>\r\nuno\r\nPaso>Envi>\r\ndos\r\n"});
  EXPECT_EQ(Utf8(l.t.Personajes[1].Nombre.Trimmed()), "Berta");
  EXPECT_EQ(l.Frase(1, 2, 1), "uno");
  EXPECT_EQ(l.Frase(1, 7, 1), "dos");
  EXPECT_TRUE(l.NuncaLlenada(1, 8, 1));
}

TEST(LeerPersonajes, TakesALineWithTheSignAnywhereForAMarker) {
  Lectura l;
  l.Leer(RegistroLeido("Berta") + "NMus>\r\nuno\r\ndos\r\nno > esto\r\ntres\r\nhola>\r\n>\r\n");
  EXPECT_EQ(l.Frase(1, 2, 1), "tres");  // after the marker the slots start again at 1
  EXPECT_EQ(l.Frase(1, 2, 2), "dos");
  EXPECT_TRUE(l.NuncaLlenada(1, 2, 3));
}

TEST(LeerPersonajes, RestartsThePhrasesAtAnUnknownMarker) {
  for (const std::string marca : {"Otra", " NMus", "NMus ", "nmus", "NMUS", "xPaso", "", "Dato"}) {
    Lectura l;
    l.Leer(RegistroLeido("Berta") + "TPar>\r\nuno\r\ndos\r\n" + marca + ">\r\ntres\r\n");
    EXPECT_EQ(l.Frase(1, 3, 1), "tres") << marca;
    EXPECT_EQ(l.Frase(1, 3, 2), "dos") << marca;
    EXPECT_TRUE(l.NuncaLlenada(1, 2, 1)) << marca;
  }
}

// The editor's reader ignores case; this one does not.
TEST(LeerPersonajes, Kept_LowerCaseMarkersAreUnknown) {
  Lectura l;
  l.Leer(RegistroLeido("Berta") + "qmus>\r\nuno\r\nnmus>\r\ndos\r\ntres\r\nenvi>\r\ncuatro\r\n" +
         RegistroLeido("Dora") + "NMus>\r\nno\r\npaso>\r\ncinco\r\n");
  EXPECT_EQ(l.Frase(1, 1, 1), "cuatro");
  EXPECT_EQ(l.Frase(1, 1, 2), "tres");
  EXPECT_TRUE(l.NuncaLlenada(1, 2, 1));
  EXPECT_TRUE(l.NuncaLlenada(1, 8, 1));
  EXPECT_EQ(l.Frase(2, 2, 1), "cinco");
  EXPECT_TRUE(l.NuncaLlenada(2, 7, 1));
}

TEST(LeerPersonajes, Kept_ALowerCaseRecordMarkerStartsNoRecord) {
  Lectura l;
  EXPECT_EQ(l.Fallo("datos>\r\nBerta\r\n050\r\nhistoria\r\n"),
            "Jugadores.dat, línea 2: hay una frase antes del primer personaje. El programa va a "
            "terminar su ejecución.");
}

TEST(LeerPersonajes, Kept_AFourthAndAFifthPhraseTakeTheThirdsPlace) {
  Lectura l;
  l.Leer(RegistroLeido("Berta") + "QMus>\r\nuno\r\ndos\r\ntres\r\ncuatro\r\n");
  EXPECT_EQ(l.Frase(1, 1, 3), "cuatro");
  l.Leer(RegistroLeido("Berta") + "QMus>\r\nuno\r\ndos\r\ntres\r\ncuatro\r\ncinco\r\n");
  EXPECT_EQ(l.Frase(1, 1, 1), "uno");
  EXPECT_EQ(l.Frase(1, 1, 2), "dos");
  EXPECT_EQ(l.Frase(1, 1, 3), "cinco");
  EXPECT_TRUE(l.NuncaLlenada(1, 2, 1));
}

TEST(LeerPersonajes, Kept_ANewRecordGoesOnWithTheLastKindOfPhrase) {
  Lectura l;
  l.Leer(RegistroLeido("Berta") + "suelta\r\nSQui>\r\nquiero\r\n" + RegistroLeido("Dora") +
         "otra\r\n");
  EXPECT_EQ(l.Frase(1, 1, 1), "suelta");
  EXPECT_EQ(l.Frase(1, 12, 1), "quiero");
  EXPECT_EQ(l.Frase(2, 12, 1), "otra");
  EXPECT_TRUE(l.NuncaLlenada(2, 1, 1));
}

TEST(LeerPersonajes, Kept_WhatTheFileDoesNotFillStaysAsItWas) {
  Lectura l;
  l.t.Personajes[2].Nombre = u"Dora";
  l.t.Mensajes[1][1][2] = u"de antes";
  l.t.Mensajes[2][5][1] = u"también";
  l.Leer(RegistroLeido("Berta") + "QMus>\r\nmus\r\n");
  EXPECT_EQ(Utf8(l.t.Personajes[2].Nombre.Trimmed()), "Dora");
  EXPECT_EQ(l.Frase(1, 1, 1), "mus");
  EXPECT_EQ(l.Frase(1, 1, 2), "de antes");
  EXPECT_EQ(l.Frase(2, 5, 1), "también");
}

TEST(LeerPersonajes, EndsTheProgramWithoutAFile) {
  Lectura l;
  EXPECT_EQ(l.Fallo(),
            "Jugadores.dat: no se encuentra el archivo. El programa va a terminar su ejecución.");
}

TEST(LeerPersonajes, EndsTheProgramForARecordCutShort) {
  struct Caso {
    std::string Archivo;
    std::string Fallo;
  };
  const std::vector<Caso> casos{
      {"Datos>\r\n", "Jugadores.dat, línea 2: el archivo se acaba y falta el nombre"},
      {"Datos>", "Jugadores.dat, línea 2: el archivo se acaba y falta el nombre"},
      {"Datos>\r\nBerta\r\n",
       "Jugadores.dat, línea 3: el archivo se acaba y falta el valor de ordaguero"},
      {"Datos>\r\nBerta\r\n040\r\n",
       "Jugadores.dat, línea 4: el archivo se acaba y falta la historia"},
      {RegistroLeido("Berta") + "Datos>\r\nDora\r\n040",
       "Jugadores.dat, línea 8: el archivo se acaba y falta la historia"},
  };
  for (const Caso& caso : casos) {
    Lectura l;
    EXPECT_EQ(l.Fallo(caso.Archivo),
              caso.Fallo + " del personaje. El programa va a terminar su ejecución.");
    EXPECT_EQ(l.carpeta.Read("Jugadores.dat"), caso.Archivo);
  }
}

TEST(LeerPersonajes, EndsTheProgramForAPhraseBeforeTheFirstRecord) {
  const std::string resto =
      ": hay una frase antes del primer personaje. El programa va a terminar su ejecución.";
  Lectura l;
  EXPECT_EQ(l.Fallo("hola\r\n" + RegistroLeido("Berta")), "Jugadores.dat, línea 1" + resto);
  EXPECT_EQ(l.Fallo("\r\n" + RegistroLeido("Berta")), "Jugadores.dat, línea 1" + resto);
  EXPECT_EQ(l.Fallo("QMus>\r\nhola\r\n" + RegistroLeido("Berta")),
            "Jugadores.dat, línea 2" + resto);
}

TEST(LeerPersonajes, AllowsMarkersBeforeTheFirstRecord) {
  Lectura l;
  l.Leer("Otra>\r\nPaso>\r\n" + RegistroLeido("Berta") + "me quedo\r\n");
  EXPECT_EQ(l.Frase(1, 7, 1), "me quedo");
}

TEST(LeerPersonajes, HasRoomForAHundredCharacters) {
  std::string archivo;
  for (int i = 1; i <= 100; ++i) archivo += RegistroLeido("Numero " + std::to_string(i));
  Lectura l;
  l.Leer(archivo + "Derr>\r\nadios\r\n");
  EXPECT_EQ(Utf8(l.t.Personajes[100].Nombre.Trimmed()), "Numero 100");
  EXPECT_EQ(l.Frase(100, 14, 1), "adios");
  EXPECT_EQ(l.Fallo(archivo + RegistroLeido("Numero 101")),
            "Jugadores.dat, línea 401: hay más de 100 personajes. El programa va a terminar su "
            "ejecución.");
}

}  // namespace
}  // namespace tasca::test
