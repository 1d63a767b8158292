// Writing the character file, and reading it back with the editor's reader.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "characters/character_file.h"
#include "tests/support/errors.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

using Archivos = std::vector<std::string>;

// A phrase as written: padded to 100 characters, with the line end.
std::string Frase(const std::string& frase) {
  return frase + std::string(100 - frase.size(), ' ') + "\r\n";
}

// The lines of a record and its fourteen markers; `frases` follow the first one.
std::string RegistroEscrito(const std::string& nombre, const std::string& ordaguero,
                            const std::string& historia, const std::string& frases = {}) {
  return "Datos>\r\n" + nombre + "\r\n" + ordaguero + "\r\n" + historia + "\r\nQMus>\r\n" + frases +
         "NMus>\r\nTPar>\r\nNPar>\r\nTJue>\r\nNJue>\r\nPaso>\r\nEnvi>\r\nEnvM>\r\nOrda>\r\nNQui>"
         "\r\n"
         "SQui>\r\nVict>\r\nDerr>\r\n";
}

Table ConPersonaje(std::u16string_view nombre, int ordaguero, std::u16string_view historia) {
  Table t;
  t.Personajes[1].Nombre = nombre;
  t.Personajes[1].Ordaguero = ordaguero;
  t.Personajes[1].Historia = historia;
  return t;
}

TEST(TextoPersonajes, WritesARecordWithAllItsMarkers) {
  Table t = ConPersonaje(u"La boticaria", 40, u"Vende jarabes.");
  t.Mensajes[1][1][1] = u"Mus, y jarabe";
  t.Mensajes[1][1][2] = u"Venga mus";
  EXPECT_EQ(TextoPersonajes(t, 1), RegistroEscrito("La boticaria", "040", "Vende jarabes.",
                                                   Frase("Mus, y jarabe") + Frase("Venga mus")));
}

TEST(TextoPersonajes, WritesEveryKindUnderItsMarker) {
  Table t = ConPersonaje(u"Berta", 50, u"");
  for (int categoria = 1; categoria <= 14; ++categoria) {
    t.Mensajes[1][categoria][1] = Join(u"frase ", categoria);
  }
  const std::string texto = TextoPersonajes(t, 1);
  EXPECT_TRUE(texto.starts_with("Datos>\r\nBerta\r\n050\r\n\r\nQMus>\r\n" + Frase("frase 1") +
                                "NMus>\r\n" + Frase("frase 2") + "TPar>\r\n" + Frase("frase 3")));
  EXPECT_TRUE(texto.ends_with("Envi>\r\n" + Frase("frase 8") + "EnvM>\r\n" + Frase("frase 9") +
                              "Orda>\r\n" + Frase("frase 10") + "NQui>\r\n" + Frase("frase 11") +
                              "SQui>\r\n" + Frase("frase 12") + "Vict>\r\n" + Frase("frase 13") +
                              "Derr>\r\n" + Frase("frase 14")));
}

TEST(TextoPersonajes, WritesOrdagueroWithAtLeastThreeDigits) {
  const std::vector<std::pair<int, std::string>> casos{
      {0, "000"},     {5, "005"},       {7, "007"},     {50, "050"},
      {99, "099"},    {100, "100"},     {1000, "1000"}, {-5, "-005"},
      {-100, "-100"}, {32767, "32767"}, {999, "999"},   {-32768, "-32768"}};
  for (const auto& [valor, escrito] : casos) {
    EXPECT_EQ(TextoPersonajes(ConPersonaje(u"Berta", valor, u"Cose."), 1),
              RegistroEscrito("Berta", escrito, "Cose."));
  }
}

TEST(TextoPersonajes, LeavesOutPhrasesThatAreBlankOrWereNeverFilled) {
  Table t = ConPersonaje(u"Berta", 50, u"Cose.");
  t.Mensajes[1][1][1] = u"uno";
  t.Mensajes[1][1][2] = u"   ";
  t.Mensajes[1][1][3] = u"tres";
  EXPECT_EQ(TextoPersonajes(t, 1),
            RegistroEscrito("Berta", "050", "Cose.", Frase("uno") + Frase("tres")));
  t.Mensajes[1][1][1] = std::u16string_view{u"a\0b", 3};
  EXPECT_EQ(TextoPersonajes(t, 1), RegistroEscrito("Berta", "050", "Cose.", Frase("tres")));
}

TEST(TextoPersonajes, Kept_OnlyPhrasesKeepTheirPadding) {
  Table t = ConPersonaje(u"  Berta", 50, u" Cose. ");
  t.Mensajes[1][1][1] = u"  mus";
  EXPECT_EQ(TextoPersonajes(t, 1), RegistroEscrito("Berta", "050", "Cose.", Frase("  mus")));
}

TEST(TextoPersonajes, WritesTheCharactersInTheirOrderUpToTheCount) {
  Table t = ConPersonaje(u"Berta", 50, u"Cose.");
  t.Personajes[2].Nombre = u"Dora";
  t.Personajes[2].Historia = u"Canta.";
  t.Personajes[3].Nombre = u"sobra";
  EXPECT_EQ(TextoPersonajes(t, 2),
            RegistroEscrito("Berta", "050", "Cose.") + RegistroEscrito("Dora", "000", "Canta."));
  EXPECT_EQ(TextoPersonajes(t, 0), "");
  EXPECT_EQ(TextoPersonajes(t, -1), "");
}

TEST(TextoPersonajes, WritesTheLettersOfWindows1252) {
  EXPECT_EQ(TextoPersonajes(ConPersonaje(u"el tío Ángel", 50, u"Cobra en €."), 1),
            RegistroEscrito("el t\xEDo \xC1ngel", "050", "Cobra en \x80."));
}

struct Carpeta {
  TempFolder carpeta;
  Table t = ConPersonaje(u"Berta", 50, u"Cose.");

  Carpeta() { t.Carpeta = carpeta.Path(); }
};

TEST(EscribirPersonajes, CreatesTheFileWithoutACopy) {
  const Carpeta c;
  EscribirPersonajes(c.t, 1);
  EXPECT_EQ(c.carpeta.Read("Jugadores.dat"), RegistroEscrito("Berta", "050", "Cose."));
  EXPECT_EQ(c.carpeta.Names(), (Archivos{"Jugadores.dat"}));
}

TEST(EscribirPersonajes, WritesNothingToATableThatMayNotBeSaved) {
  const TempFolder carpeta;
  Table t = ConPersonaje(u"Berta", 50, u"");
  t.Carpeta = carpeta.Path();
  t.SinGuardar = u"no hay sitio.";
  EXPECT_EQ(ErrorOf([&] { EscribirPersonajes(t, 1); }),
            "No se ha podido escribir el archivo " + (carpeta.Path() / "Jugadores.dat").string() +
                ": no hay sitio. El programa va a terminar su ejecución.");
  EXPECT_EQ(carpeta.Names(), Archivos{});
}

TEST(EscribirPersonajes, WritesTheFileOfAnotherName) {
  const TempFolder carpeta;
  Table t = ConPersonaje(u"Berta", 50, u"");
  t.Carpeta = carpeta.Path();
  t.ArchivoDePersonajes = "otros.dat";
  EscribirPersonajes(t, 1);
  EscribirPersonajes(t, 1);
  EXPECT_EQ(carpeta.Names(), (Archivos{"otros.bak", "otros.dat"}));
  EXPECT_EQ(LeerPersonajesSinMayusculas(t), 1);
}

TEST(CopiaDeSeguridad, IsNeverTheFileItself) {
  EXPECT_EQ(CopiaDeSeguridad("/a/Jugadores.dat"), "/a/Jugadores.bak");
  EXPECT_EQ(CopiaDeSeguridad("/a/Jugadores.bak"), "/a/Jugadores.bak.bak");
  EXPECT_EQ(CopiaDeSeguridad("/a.dat/otros"), "/a.dat/otros.bak");
}

TEST(EscribirPersonajes, KeepsOneBackupCopy) {
  const Carpeta c;
  c.carpeta.Write("Jugadores.dat", "uno");
  EscribirPersonajes(c.t, 1);
  EXPECT_EQ(c.carpeta.Read("Jugadores.bak"), "uno");
  EscribirPersonajes(c.t, 0);
  EXPECT_EQ(c.carpeta.Read("Jugadores.bak"), RegistroEscrito("Berta", "050", "Cose."));
  EXPECT_EQ(c.carpeta.Read("Jugadores.dat"), "");
  EXPECT_EQ(c.carpeta.Names(), (Archivos{"Jugadores.bak", "Jugadores.dat"}));
}

TEST(EscribirPersonajes, IgnoresAFolderBesideTheCopy) {
  const Carpeta c;
  c.carpeta.Write("Jugadores.dat", "uno");
  std::filesystem::create_directory(c.carpeta.Path() / "Jugadores.bak.tmp");
  EscribirPersonajes(c.t, 1);
  EXPECT_EQ(c.carpeta.Read("Jugadores.dat"), RegistroEscrito("Berta", "050", "Cose."));
  EXPECT_EQ(c.carpeta.Read("Jugadores.bak"), "uno");
}

TEST(EscribirPersonajes, KeepsTheFileWhenTheBackupFails) {
  const Carpeta c;
  c.carpeta.Write("Jugadores.dat", "uno");
  std::filesystem::create_directory(c.carpeta.Path() / "Jugadores.bak");
  EXPECT_EQ(ErrorOf([&] { EscribirPersonajes(c.t, 1); }),
            "No se ha podido escribir el archivo " + (c.carpeta.Path() / "Jugadores.bak").string() +
                ": hay otra cosa en su lugar." + FinDelPrograma);
  EXPECT_EQ(c.carpeta.Read("Jugadores.dat"), "uno");
}

TEST(LeerPersonajesSinMayusculas, ReadsBackWhatWasWritten) {
  Carpeta c;
  c.t.Personajes[2].Nombre = u"Dora";
  c.t.Personajes[2].Ordaguero = 999;
  c.t.Personajes[2].Historia = u"Canta.";
  c.t.Mensajes[1][14][3] = u"adiós";
  c.t.Mensajes[2][9][1] = u"envido &";
  EscribirPersonajes(c.t, 2);
  Table leida;
  leida.Carpeta = c.t.Carpeta;
  EXPECT_EQ(LeerPersonajesSinMayusculas(leida), 2);
  c.t.Mensajes[1][14][1] = u"adiós";  // it is now in slot 1: the empty slots were not written
  c.t.Mensajes[1][14][3] = FixedText<AnchoFrase>{};
  EXPECT_EQ(leida, c.t);
}

// Three characters are read, and the sign is one of them.
TEST(LeerPersonajesSinMayusculas, Kept_ANegativeOrdagueroLosesADigitWheneverItIsReadBack) {
  Carpeta c;
  c.t.Personajes[1].Ordaguero = -57;
  for (const int leido : {-5, 0, 0}) {
    EscribirPersonajes(c.t, 1);
    LeerPersonajesSinMayusculas(c.t);
    EXPECT_EQ(c.t.Personajes[1].Ordaguero, leido);
  }
}

TEST(LeerPersonajesSinMayusculas, Kept_IgnoresTheCaseOfTags) {
  Carpeta c;
  c.carpeta.Write("Jugadores.dat",
                  "DATOS>\r\nDora\r\n040\r\nCanta.\r\nqmus>\r\nmus\r\ndERR>\r\nadios\r\n"
                  "datos>\r\nLola\r\n041\r\nBaila.\r\n");
  EXPECT_EQ(LeerPersonajesSinMayusculas(c.t), 2);
  EXPECT_EQ(Utf8(c.t.Personajes[1].Nombre.Trimmed()), "Dora");
  EXPECT_EQ(Utf8(c.t.Mensajes[1][1][1].Trimmed()), "mus");
  EXPECT_EQ(Utf8(c.t.Mensajes[1][14][1].Trimmed()), "adios");
  EXPECT_EQ(Utf8(c.t.Personajes[2].Nombre.Trimmed()), "Lola");
}

TEST(LeerPersonajesSinMayusculas, CountsNoneInAnEmptyFileAndAHundredAtMost) {
  Carpeta c;
  c.carpeta.Write("Jugadores.dat", "");
  EXPECT_EQ(LeerPersonajesSinMayusculas(c.t), 0);
  std::string archivo;
  for (int i = 0; i < 100; ++i) archivo += RegistroEscrito("Lola", "050", "Baila.");
  c.carpeta.Write("Jugadores.dat", archivo);
  EXPECT_EQ(LeerPersonajesSinMayusculas(c.t), 100);
  c.carpeta.Write("Jugadores.dat", archivo + "Datos>\r\n");
  EXPECT_EQ(ErrorOf([&] { LeerPersonajesSinMayusculas(c.t); }),
            (c.carpeta.Path() / "Jugadores.dat").string() +
                ", línea 1801: hay más de 100 personajes." + FinDelPrograma);
}

TEST(ValorOrdaguero, IsTheWholeNumberAtTheStart) {
  EXPECT_EQ(ValorOrdaguero(u"40"), 40);
  EXPECT_EQ(ValorOrdaguero(u" -5 puntos"), -5);
  EXPECT_EQ(ValorOrdaguero(u"12abc"), 12);
  EXPECT_EQ(ValorOrdaguero(u"mucho"), 0);
  EXPECT_EQ(ValorOrdaguero(u""), 0);
  EXPECT_EQ(ValorOrdaguero(u"32767"), 32767);
}

TEST(SeLeeComoSeEscribe, IsTrueFrom0To999) {
  for (int valor = -32768; valor <= 32767; ++valor) {
    EXPECT_EQ(SeLeeComoSeEscribe(valor), valor >= 0 && valor <= 999) << valor;
  }
}

TEST(ValorOrdaguero, OverflowsOutside16Bits) {
  const std::string desbordamiento =
      std::string{"Desbordamiento: el número no está entre -32768 y 32767."} + FinDelPrograma;
  EXPECT_EQ(ErrorOf([] { ValorOrdaguero(u"32768"); }), desbordamiento);
  EXPECT_EQ(ErrorOf([] { ValorOrdaguero(u"999999999999999999999"); }), desbordamiento);
}

}  // namespace
}  // namespace tasca::test
