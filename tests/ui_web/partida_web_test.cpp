// The bytes of a page's match.
#include "ui/web/partida_web.h"

#include <gtest/gtest.h>

namespace tasca::test {
namespace {

const PartidaWeb ConPaso{
    .Partida = std::string{"bytes\0\xFF", 7},
    .Cronica = u"— Mano 1 —\r\n",
    .Paso = PasoAbierto{.KeyCode = 13,
                        .Shift = 3,
                        .Hora = {23, 59, 58},
                        .Guion = {{.Clase = ClaseEntrada::Texto, .Texto = u"13", .Hora = {1, 2, 3}},
                                  {.Clase = ClaseEntrada::FinDeSonido, .Numero = 6},
                                  {.Clase = ClaseEntrada::Boton, .Numero = 2}}}};

TEST(PartidaWeb, IsReadAsItWasWritten) {
  const auto leida = LeerPartidaWeb(EscribirPartidaWeb(ConPaso));
  ASSERT_TRUE(leida && leida->Paso);
  EXPECT_EQ(leida->Partida, ConPaso.Partida);
  EXPECT_EQ(leida->Cronica, ConPaso.Cronica);
  EXPECT_EQ(leida->Paso->KeyCode, 13);
  EXPECT_EQ(leida->Paso->Shift, 3);
  EXPECT_EQ(leida->Paso->Hora.Segundo, 58);
  ASSERT_EQ(leida->Paso->Guion.size(), 3);
  EXPECT_EQ(leida->Paso->Guion[0].Texto, u"13");
  EXPECT_EQ(leida->Paso->Guion[0].Hora.Minuto, 2);
  EXPECT_EQ(leida->Paso->Guion[1].Clase, ClaseEntrada::FinDeSonido);
  EXPECT_EQ(leida->Paso->Guion[1].Numero, 6);
  EXPECT_EQ(leida->Paso->Guion[2].Numero, 2);
  EXPECT_EQ(EscribirPartidaWeb(*leida), EscribirPartidaWeb(ConPaso));
}

TEST(PartidaWeb, NeedsNoOpenStep) {
  const auto leida = LeerPartidaWeb(EscribirPartidaWeb({.Partida = "p"}));
  ASSERT_TRUE(leida);
  EXPECT_EQ(leida->Partida, "p");
  EXPECT_FALSE(leida->Paso);
}

TEST(PartidaWeb, IsRejectedIfAByteIsChangedOrMissing) {
  const std::string bytes = EscribirPartidaWeb(ConPaso);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::string otros = bytes;
    otros[i] = static_cast<char>(otros[i] ^ 0x20);
    EXPECT_FALSE(LeerPartidaWeb(otros)) << "changed: " << i;
    EXPECT_FALSE(LeerPartidaWeb(bytes.substr(0, i))) << "cut: " << i;
  }
  EXPECT_FALSE(LeerPartidaWeb(bytes + "x"));
}

TEST(PartidaWeb, IsRejectedWithAnImpossibleTime) {
  PartidaWeb partida = ConPaso;
  partida.Paso->Hora.Hora = 24;
  EXPECT_FALSE(LeerPartidaWeb(EscribirPartidaWeb(partida)));
}

}  // namespace
}  // namespace tasca::test
