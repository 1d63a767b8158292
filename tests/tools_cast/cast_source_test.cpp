// Reading the source text of the cast.
#include "tools/cast/cast_source.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/errors.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

struct Reparto {
  TempFolder carpeta;
  Table t;
  int cuantos = 0;

  void Leer(std::string_view texto) {
    carpeta.Write("reparto.txt", texto);
    cuantos = LeerReparto(t, carpeta.Path() / "reparto.txt");
  }
  // The error message for this text, without the file's name and without FinDelPrograma.
  std::string Fallo(std::string_view texto) {
    const std::string mensaje = ErrorOf([&] { Leer(texto); });
    const std::string ruta = (carpeta.Path() / "reparto.txt").string();
    EXPECT_TRUE(mensaje.starts_with(ruta)) << mensaje;
    EXPECT_TRUE(mensaje.ends_with(FinDelPrograma)) << mensaje;
    return mensaje.substr(ruta.size(),
                          mensaje.size() - ruta.size() - std::string_view{FinDelPrograma}.size());
  }
  std::string Frase(int personaje, int categoria, int hueco) const {
    return Utf8(t.Mensajes[personaje][categoria][hueco].Trimmed());
  }
};

TEST(LeerReparto, ReadsCharactersInTheirOrder) {
  Reparto r;
  r.Leer(
      "# el reparto\n\nNombre: La boticaria\nOrdaguero: 40\nHistoria: Cura: catarros.\n"
      "QMus: Venga, mus\nDerr: ¡Ay!\nQMus:  Otro mus \n\nNombre: el tío Ángel\r\nQMus: Mus\r\n");
  EXPECT_EQ(r.cuantos, 2);
  EXPECT_EQ(Utf8(r.t.Personajes[1].Nombre.Trimmed()), "La boticaria");
  EXPECT_EQ(r.t.Personajes[1].Ordaguero, 40);
  EXPECT_EQ(Utf8(r.t.Personajes[1].Historia.Trimmed()), "Cura: catarros.");
  EXPECT_EQ(r.Frase(1, 1, 1), "Venga, mus");
  EXPECT_EQ(r.Frase(1, 1, 2), "Otro mus");
  EXPECT_EQ(r.Frase(1, 14, 1), "¡Ay!");
  EXPECT_EQ(Utf8(r.t.Personajes[2].Nombre.Trimmed()), "el tío Ángel");
  EXPECT_EQ(r.Frase(2, 1, 1), "Mus");
}

TEST(LeerReparto, ReadsAnEmptyTextAsNoCharacters) {
  Reparto r;
  r.Leer("\n# nadie\n");
  EXPECT_EQ(r.cuantos, 0);
}

TEST(LeerReparto, StripsTheByteOrderMark) {
  Reparto r;
  r.Leer("\xEF\xBB\xBF# el reparto\nNombre: Lola\n");
  EXPECT_EQ(r.cuantos, 1);
}

TEST(LeerReparto, NamesTheLineOfEveryFault) {
  Reparto r;
  EXPECT_EQ(r.Fallo("QMus: Mus\n"), ", línea 1: el primer personaje no tiene nombre.");
  EXPECT_EQ(r.Fallo("Nombre: Lola\nmus\n"), ", línea 2: la línea no es «clave: texto».");
  EXPECT_EQ(r.Fallo("Nombre: Lola\n\nQMus: \n"), ", línea 3: falta el texto.");
  EXPECT_EQ(r.Fallo("Nombre: Lola\nqmus: Mus\n"), ", línea 2: no se conoce «qmus».");
  EXPECT_EQ(r.Fallo("Nombre: Lola\nQMus: 1\nQMus: 2\nQMus: 3\nQMus: 4\n"),
            ", línea 5: es la cuarta frase para esta ocasión.");
  EXPECT_EQ(r.Fallo("Nombre: L>la\n"),
            ", línea 1: El signo > no puede guardarse: separa las partes del archivo.");
  EXPECT_EQ(r.Fallo("Nombre: Łola\n"), ", línea 1: El archivo no tiene sitio para ese carácter.");
  EXPECT_EQ(r.Fallo("Nombre: t\xEDo\n"), ", línea 1: El archivo no tiene sitio para ese carácter.");
}

TEST(LeerReparto, TakesOrdagueroOfUpToThreeDigits) {
  Reparto r;
  r.Leer("Nombre: Lola\nOrdaguero: 095\n");
  EXPECT_EQ(r.t.Personajes[1].Ordaguero, 95);
  for (const std::string numero : {"1000", "-5", "4.5", "mucho"}) {
    EXPECT_EQ(r.Fallo("Nombre: Lola\nOrdaguero: " + numero + "\n"),
              ", línea 2: el valor de Ordaguero no es un número de hasta tres cifras.");
  }
}

TEST(LeerReparto, LimitsEveryTextToItsWidth) {
  const std::vector<std::pair<std::string, std::size_t>> anchos{
      {"Nombre", 100}, {"Historia", 200}, {"QMus", 100}};
  for (const auto& [clave, ancho] : anchos) {
    Reparto r;
    const std::string linea = "Nombre: Lola\n" + clave + ": " + std::string(ancho, 'a');
    r.Leer(linea + "\n");
    EXPECT_EQ(r.Fallo(linea + "a\n"), ", línea 2: El texto no puede ser más largo.");
  }
}

TEST(LeerReparto, HasRoomForAHundredCharacters) {
  std::string cien;
  for (int i = 0; i < 100; ++i) cien += "Nombre: Lola\n";
  Reparto r;
  r.Leer(cien);
  EXPECT_EQ(r.cuantos, 100);
  EXPECT_EQ(r.Fallo(cien + "Nombre: Lola\n"), ", línea 101: hay más de 100 personajes.");
}

}  // namespace
}  // namespace tasca::test
