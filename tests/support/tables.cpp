// Builds the test table and its hands.
#include "tests/support/tables.h"

#include <gtest/gtest.h>

#include <map>

#include "base/text.h"
#include "cards/deck.h"
#include "characters/character_file.h"

namespace tasca::test {
namespace {

constexpr std::string_view Figuras = "A234567SCR";

void AnotarFrases(Table& t) {
  for (int personaje = 1; personaje <= 5; ++personaje) {
    for (int categoria = 1; categoria <= 14; ++categoria) {
      for (int hueco = 1; hueco <= 3; ++hueco) {
        const auto etiqueta = EtiquetasMensaje.at(static_cast<std::size_t>(categoria - 1));
        t.Mensajes[personaje][categoria][hueco] = Join(etiqueta, hueco);
      }
    }
  }
}

void Utf8Append(std::string& bytes, char32_t letra) {
  if (letra < 0x80) {
    bytes += static_cast<char>(letra);
  } else if (letra < 0x800) {
    bytes += static_cast<char>(0xC0U | (letra >> 6U));
    bytes += static_cast<char>(0x80U | (letra & 0x3FU));
  } else {
    bytes += static_cast<char>(0xE0U | (letra >> 12U));
    bytes += static_cast<char>(0x80U | ((letra >> 6U) & 0x3FU));
    bytes += static_cast<char>(0x80U | (letra & 0x3FU));
  }
}

}  // namespace

Table MesaDePrueba() {
  Table t;
  Rnd rnd;
  CrearBaraja(t, rnd);
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    t.OrdenAsiento[asiento] = asiento;
    DarMano(t, asiento, "7 6 5 4");
  }
  t.Declaracion[NumeroLance::Pares] = SinDeclaracion;
  t.Declaracion[NumeroLance::Juego] = SinDeclaracion;
  t.PiedrasJuego = 35;
  t.JuegosVaca = 3;
  t.VacasPartida = 3;
  t.PersonajeAsiento = {0, 3, 4, 5};
  t.Personajes[0].Nombre = u"Ana";
  t.Personajes[1].Nombre = u"Default indirecto";
  t.Personajes[2].Nombre = u"Default directo";
  t.Personajes[3].Nombre = u"Berta";
  t.Personajes[4].Nombre = u"el Cojo";
  t.Personajes[5].Nombre = u"Dora";
  t.NombreJugador = u"Ana";
  t.EstiloDirecto = true;
  t.UsarExpresiones = true;
  AnotarFrases(t);
  return t;
}

int NumeroDeCarta(char figura, int palo) {
  const std::size_t rango = Figuras.find(figura);
  EXPECT_NE(rango, std::string_view::npos) << figura << " is not a rank";
  return (palo - 1) * 10 + static_cast<int>(rango) + 1;
}

void DarMano(Table& t, Seat asiento, std::string_view cartas) {
  std::map<char, int> palos;
  int hueco = 0;
  for (const char figura : cartas) {
    if (figura == ' ') continue;
    t.Manos[asiento][++hueco] = figura == '-' ? 0 : NumeroDeCarta(figura, ++palos[figura]);
  }
  EXPECT_EQ(hueco, 4) << cartas << " is not a hand";
}

std::string Utf8(std::u16string_view texto) {
  std::string bytes;
  for (const char16_t letra : texto) Utf8Append(bytes, letra);
  return bytes;
}

}  // namespace tasca::test
