// Reading and writing "mus.ini".
#include "startup/settings.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <vector>

#include "base/errors.h"
#include "base/write_error.h"
#include "tests/support/errors.h"
#include "tests/support/plain_user.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

const std::string UltimoJugador = "> Nombre del \xFAltimo jugador\r\n";

// A table with the default parameters and a folder.
struct Ajustes {
  TempFolder carpeta;
  Table t;

  Ajustes() {
    t.Carpeta = carpeta.Path();
    t.PiedrasJuego = 35;
    t.JuegosVaca = 3;
    t.VacasPartida = 3;
  }
  explicit Ajustes(std::string_view archivo) : Ajustes{} { Write(archivo); }

  void Write(std::string_view archivo) const { carpeta.Write("mus.ini", archivo); }
  std::string Read() const { return carpeta.Read("mus.ini"); }

  // The piedras, juegos and vacas after reading.
  std::array<int, 3> Parametros() {
    LeerParametrosPartida(t);
    return {t.PiedrasJuego, t.JuegosVaca, t.VacasPartida};
  }
  std::string Nombre() const { return Utf8(LeerIni(t)); }
  // The file after the name has been saved.
  std::string Guardado(std::u16string_view nombre) const {
    GuardarIni(t, nombre);
    return Read();
  }
};

// The error message of an operation, without the folder's name; "" if it throws no error.
std::string Fallo(const Ajustes& a, const std::function<void()>& operacion) {
  std::string mensaje = ErrorOf(operacion);
  const std::string carpetaYBarra = a.t.Carpeta.string() + "/";
  if (!mensaje.starts_with(carpetaYBarra)) return mensaje;
  return mensaje.substr(carpetaYBarra.size());
}

std::string FaltaLaLinea(int linea) {
  return "mus.ini, línea " + std::to_string(linea) +
         ": el archivo se acaba y falta alguna de sus cuatro primeras líneas. El programa va a "
         "terminar su ejecución.";
}

using Parametros = std::array<int, 3>;

TEST(LeerParametrosPartida, LeavesTheDefaultsWithoutAFile) {
  EXPECT_EQ(Ajustes{}.Parametros(), (Parametros{35, 3, 3}));
}

TEST(LeerParametrosPartida, TakesTheFirstThreeLines) {
  EXPECT_EQ(Ajustes{"40\r\n5\r\n1\r\nAna> x\r\n"}.Parametros(), (Parametros{40, 5, 1}));
  EXPECT_EQ(Ajustes{"40\n5\n1\n"}.Parametros(), (Parametros{40, 5, 1}));
  EXPECT_EQ(Ajustes{"40\n5\n1"}.Parametros(), (Parametros{40, 5, 1}));
}

TEST(LeerParametrosPartida, IgnoresWhatFollowsTheNumber) {
  Ajustes a{"40 piedras por juego\r\n5> al mejor de\r\n 1vaca\r\nAna\r\n"};
  EXPECT_EQ(a.Parametros(), (Parametros{40, 5, 1}));
}

TEST(LeerParametrosPartida, ChecksEachLineSeparately) {
  EXPECT_EQ((Ajustes{"0\r\n5\r\n1000\r\nAna\r\n"}.Parametros()), (Parametros{35, 5, 3}));
  EXPECT_EQ((Ajustes{"40\r\nx\r\n2\r\nAna\r\n"}.Parametros()), (Parametros{40, 3, 2}));
}

TEST(LeerParametrosPartida, TakesWholeNumbersFrom1To999) {
  constexpr int Intacto = 35;
  struct Caso {
    std::string Linea;
    int Piedras;
  };
  const std::vector<Caso> casos{
      {"1", 1},
      {"0", Intacto},
      {"-1", Intacto},
      {"-40", Intacto},
      {"999", 999},
      {"1000", Intacto},
      {"0.5", Intacto},  // half to even: 0
      {"0.6", 1},
      {"1.5", 2},
      {"2.5", 2},
      {"2.51", 3},
      {"40.4 piedras", 40},
      {"999.4", 999},
      {"999.5", Intacto},  // 1000
      {"2,5", 2},
      {"+7", 7},
      {"   7", 7},
      {"0007", 7},
      {"4e1", 40},
      {"4e1000", Intacto},
      {"99999999999999999999", Intacto},
      {"32768", Intacto},
      {"65576", Intacto},  // 40 in the low 16 bits
      {"piedras: 40", Intacto},
      {"nan", Intacto},
      {"inf", Intacto},
      {"", Intacto},
      {"&H28", Intacto},
  };
  for (const Caso& caso : casos) {
    EXPECT_EQ((Ajustes{caso.Linea + "\r\n3\r\n3\r\nAna\r\n"}.Parametros()),
              (Parametros{caso.Piedras, 3, 3}))
        << '"' << caso.Linea << '"';
  }
}

TEST(LeerParametrosPartida, EndsTheProgramWhenALineIsMissing) {
  const std::array<std::string, 3> archivos{"", "40\r\n", "40\r\n5"};
  for (int lineas = 0; lineas <= 2; ++lineas) {
    Ajustes a{archivos.at(static_cast<std::size_t>(lineas))};
    EXPECT_EQ(Fallo(a, [&a] { LeerParametrosPartida(a.t); }), FaltaLaLinea(lineas + 1));
  }
}

TEST(LeerParametrosPartida, EndsTheProgramWhenTheFileIsAFolder) {
  Ajustes a;
  std::filesystem::create_directory(a.t.Carpeta / "mus.ini");
  EXPECT_EQ(Fallo(a, [&a] { LeerParametrosPartida(a.t); }),
            "mus.ini: no es un archivo. El programa va a terminar su ejecución.");
}

TEST(LeerIni, FindsNobodyWithoutAFile) { EXPECT_EQ(Ajustes{}.Nombre(), ""); }

TEST(LeerIni, TakesTheTextBeforeTheFirstSignOfLineFour) {
  struct Caso {
    std::string Linea;
    std::string Nombre;
  };
  const std::vector<Caso> casos{
      {"Ana> Nombre del \xFAltimo jugador", "Ana"},
      {"Ana", "Ana"},
      {"  Ana Mar\xED"
       "a  > x",
       "Ana María"},
      {"  Ana  ", "Ana"},
      {"Ana>B>C", "Ana"},
      {"> Nombre del \xFAltimo jugador", ""},
      {"   > x", ""},
      {"", ""},
      {"\x80uro \x93\xD1\x94", "€uro “Ñ”"},
  };
  for (const Caso& caso : casos) {
    EXPECT_EQ((Ajustes{"35\r\n3\r\n3\r\n" + caso.Linea + "\r\nLuis> x\r\n"}.Nombre()), caso.Nombre);
    EXPECT_EQ((Ajustes{"35\n3\n3\n" + caso.Linea + "\n"}.Nombre()), caso.Nombre);
  }
}

TEST(LeerIni, NeedsNoLineEndAfterLineFour) {
  EXPECT_EQ(Ajustes{"35\r\n3\r\n3\r\nAna"}.Nombre(), "Ana");
}

TEST(LeerIni, EndsTheProgramWithFewerThanFourLines) {
  const std::array<std::string, 4> archivos{"", "35\r\n", "35\r\n3", "35\r\n3\r\n3\r\n"};
  for (int lineas = 0; lineas <= 3; ++lineas) {
    const Ajustes a{archivos.at(static_cast<std::size_t>(lineas))};
    EXPECT_EQ(Fallo(a, [&a] { LeerIni(a.t); }), FaltaLaLinea(lineas + 1));
  }
}

TEST(GuardarIni, ThrowsForATableThatMayNotBeSaved) {
  Ajustes a;
  a.t.SinGuardar = u"no hay sitio.";
  EXPECT_THROW(GuardarIni(a.t, u"Ana"), WriteError);
  a.Write("1\r\n2\r\n3\r\nEva> x\r\n");
  EXPECT_THROW(GuardarIni(a.t, u"Ana"), WriteError);
  EXPECT_EQ(a.Read(), "1\r\n2\r\n3\r\nEva> x\r\n");
}

TEST(GuardarIni, NeverCreatesTheFile) {
  const Ajustes a;
  GuardarIni(a.t, u"Ana");
  EXPECT_TRUE(std::filesystem::is_empty(a.t.Carpeta));
}

TEST(GuardarIni, PutsTheNameIntoLineFourAndTheOldLineIntoLineFive) {
  EXPECT_EQ((Ajustes{"35\r\n3\r\n3\r\nLuis> x\r\n"}.Guardado(u"Ana")),
            "35\r\n3\r\n3\r\nAna" + UltimoJugador + "Luis> x\r\n");
}

TEST(GuardarIni, DropsTheOldLineFiveAndWhatFollows) {
  const Ajustes a{"35\r\n3\r\n3\r\nLuis> x\r\nEva> y\r\nmas\r\n\r\n"};
  EXPECT_EQ(a.Guardado(u"Ana"), "35\r\n3\r\n3\r\nAna" + UltimoJugador + "Luis> x\r\n");
  EXPECT_EQ(a.Guardado(u"Eva"), "35\r\n3\r\n3\r\nEva" + UltimoJugador + "Ana" + UltimoJugador);
}

TEST(GuardarIni, IsReadBack) {
  const Ajustes a{"35\r\n3\r\n3\r\nLuis> x\r\n"};
  GuardarIni(a.t, u"Íñigo €");
  EXPECT_EQ(a.Nombre(), "Íñigo €");
}

TEST(GuardarIni, WritesAnEmptyName) {
  const Ajustes a{"35\r\n3\r\n3\r\nLuis> x\r\n"};
  EXPECT_EQ(a.Guardado(u""), "35\r\n3\r\n3\r\n" + UltimoJugador + "Luis> x\r\n");
  EXPECT_EQ(a.Nombre(), "");
}

TEST(GuardarIni, Kept_ANameWithTheSignIsReadBackOnlyUpToIt) {
  const Ajustes a{"35\r\n3\r\n3\r\n\r\n"};
  EXPECT_EQ(a.Guardado(u"A>B"), "35\r\n3\r\n3\r\nA>B" + UltimoJugador + "\r\n");
  EXPECT_EQ(a.Nombre(), "A");
}

TEST(GuardarIni, KeepsTheFirstThreeLinesByteForByte) {
  const std::vector<std::string> principios{
      "35\n3\n3\n",
      "35 piedras\r\n3\n3 \x81\x8D\x8F\x90\x9D \xFF\r\n",
      "\r\n\r\n\r\n",
      "  no soy un n\xFAmero\t\r\n3> a > b\r\n\n",
      std::string{"35\0a\r\n3\r\r\n3\r\n", 13},
  };
  for (const std::string& principio : principios) {
    const std::string guardado = Ajustes{principio + "Luis> x\r\n"}.Guardado(u"Ana");
    EXPECT_EQ(guardado.substr(0, principio.size()), principio);
    EXPECT_EQ(guardado.substr(principio.size()), "Ana" + UltimoJugador + "Luis> x\r\n");
  }
}

TEST(GuardarIni, KeepsTheBytesOfTheOldNameLineAndEndsIt) {
  for (const std::string final : {"\r\n", "\n", ""}) {
    EXPECT_EQ((Ajustes{"35\n3\n3\nLu\xEDs \x81\x90 > a > b  " + final}.Guardado(u"Ana")),
              "35\n3\n3\nAna" + UltimoJugador + "Lu\xEDs \x81\x90 > a > b  \r\n");
  }
}

TEST(GuardarIni, WritesTheNameInWindows1252) {
  struct Caso {
    std::u16string Nombre;
    std::string Bytes;
  };
  const std::vector<Caso> casos{
      {u"Íñigo", "\xCD\xF1igo"},
      {u"€uro “Ñ”", "\x80uro \x93\xD1\x94"},
      {u"Łukasz 日本", "?ukasz ??"},
      {u"\u0081\u009D", "\x81\x9D"},
  };
  for (const Caso& caso : casos) {
    EXPECT_EQ((Ajustes{"35\r\n3\r\n3\r\nLuis\r\n"}.Guardado(caso.Nombre)),
              "35\r\n3\r\n3\r\n" + caso.Bytes + UltimoJugador + "Luis\r\n");
  }
}

TEST(GuardarIni, LeavesNothingElseInTheFolder) {
  const Ajustes a{"35\r\n3\r\n3\r\nLuis\r\n"};
  GuardarIni(a.t, u"Ana");
  std::vector<std::string> archivos;
  for (const auto& entrada : std::filesystem::directory_iterator{a.t.Carpeta}) {
    archivos.push_back(entrada.path().filename().string());
  }
  EXPECT_EQ(archivos, std::vector<std::string>{"mus.ini"});
}

TEST(GuardarIni, EndsTheProgramWithFewerThanFourLinesAndLeavesTheFile) {
  const std::array<std::string, 4> archivos{"", "35\r\n", "35\r\n3", "35\r\n3\r\n3\r\n"};
  for (int lineas = 0; lineas <= 3; ++lineas) {
    const std::string& archivo = archivos.at(static_cast<std::size_t>(lineas));
    const Ajustes a{archivo};
    EXPECT_EQ(Fallo(a, [&a] { GuardarIni(a.t, u"Ana"); }), FaltaLaLinea(lineas + 1));
    EXPECT_EQ(a.Read(), archivo);
  }
}

// The game continues after a WriteError, but not after other run-time errors.
TEST(GuardarIni, ThrowsWriteErrorForAFailedWriteOnly) {
  const Ajustes a{"35\r\n3\r\n3\r\nLuis> x\r\n"};
  const PlainUser usuario{a.carpeta};
  std::filesystem::permissions(a.t.Carpeta / "mus.ini", std::filesystem::perms{0444});
  EXPECT_THROW(GuardarIni(a.t, u"Ana"), WriteError);
  EXPECT_EQ(a.Read(), "35\r\n3\r\n3\r\nLuis> x\r\n");
  std::filesystem::permissions(a.t.Carpeta / "mus.ini", std::filesystem::perms{0222});
  EXPECT_EQ(Fallo(a, [&a] { GuardarIni(a.t, u"Ana"); }),
            "mus.ini: no se puede leer el archivo. El programa va a terminar su ejecución.");
}

TEST(GuardarIni, AcceptsFourOrMoreLines) {
  std::string archivo = "35\r\n3\r\n3\r\nLuis> x";
  for (int lineas = 4; lineas <= 6; ++lineas) {
    EXPECT_EQ(Ajustes{archivo}.Guardado(u"Ana"),
              "35\r\n3\r\n3\r\nAna" + UltimoJugador + "Luis> x\r\n");
    archivo += "\r\nEva> y";
  }
}

}  // namespace
}  // namespace tasca::test
