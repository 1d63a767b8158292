// The words on the table.
#include "ui/mesa/palabras.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/support/tables.h"

namespace tasca::test {
namespace {

std::string Estado(CeldaPizarra celda) { return Utf8(EstadoEscrito(celda)); }

TEST(EstadoEscrito, TellsHowALanceStands) {
  using E = EstadoLance;
  for (const auto& [estado, escrito] : {std::pair{E::PorJugar, "—"},
                                        {E::NoSeJugo, "—"},
                                        {E::Declaran, "declaran"},
                                        {E::Ordago, "¡órdago!"},
                                        {E::OrdagoQuerido, "órdago querido"},
                                        {E::NoQuerida, "no querida"},
                                        {E::NoHay, "no hay"},
                                        {E::EnPaso, "en paso"},
                                        {E::SinEnvite, "sin envite"}}) {
    EXPECT_EQ(Estado({.Lance = NumeroLance::Grande, .Estado = estado}), escrito);
  }
}

TEST(EstadoEscrito, CountsTheStonesOfABet) {
  using E = EstadoLance;
  EXPECT_EQ(Estado({.Estado = E::Envite, .Piedras = 2}), "envite 2");
  EXPECT_EQ(Estado({.Estado = E::Envite, .Piedras = 4, .Vistas = 2}), "2 vistas + 4");
  EXPECT_EQ(Estado({.Estado = E::Envite, .Piedras = 4, .Vistas = 1}), "1 vista + 4");
  EXPECT_EQ(Estado({.Estado = E::Queridas, .Piedras = 6}), "6 queridas");
  EXPECT_EQ(Estado({.Estado = E::Queridas, .Piedras = 1}), "1 querida");
}

TEST(NombreDeLance, NamesTheFive) {
  EXPECT_EQ(Utf8(NombreDeLance(NumeroLance::Grande)), "Grande");
  EXPECT_EQ(Utf8(NombreDeLance(NumeroLance::Pequena)), "Pequeña");
  EXPECT_EQ(Utf8(NombreDeLance(NumeroLance::Pares)), "Pares");
  EXPECT_EQ(Utf8(NombreDeLance(NumeroLance::Juego)), "Juego");
  EXPECT_EQ(Utf8(NombreDeLance(NumeroLance::Punto)), "Punto");
}

TEST(ParesEscritos, AreSilentWhileNothingIsKnown) {
  EXPECT_EQ(Utf8(ParesEscritos(Declarado::Si)), "pares sí");
  EXPECT_EQ(Utf8(JuegoEscrito(Declarado::No)), "juego no");
  EXPECT_EQ(Utf8(ParesEscritos(Declarado::SinSaber)), "");
}

TEST(ParejaEscrita, SaysWhoseItIs) {
  EXPECT_EQ(Utf8(ParejaEscrita(1)), "Pareja 1: nosotros");
  EXPECT_EQ(Utf8(ParejaEscrita(0)), "Pareja 0: ellos");
}

TEST(EnPalabras, WritesSmallNumbersOut) {
  EXPECT_EQ(Utf8(EnPalabras(0)), "ninguna");
  EXPECT_EQ(Utf8(EnPalabras(4)), "cuatro");
  EXPECT_EQ(Utf8(EnPalabras(5)), "5");
}

}  // namespace
}  // namespace tasca::test
