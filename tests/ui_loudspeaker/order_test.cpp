// The protocol between the game and tasca-sound.
#include "ui/loudspeaker/order.h"

#include <gtest/gtest.h>

namespace tasca::test {
namespace {

TEST(SoundOrder, IsALineOfNumbersAndAFile) {
  EXPECT_EQ(ToPacket({.Numero = 12,
                      .Ajustes = {.Veces = 3, .Balance = -300, .Volumen = -500},
                      .Archivo = "/la tasca/Son.wav"}),
            "12 3 -300 -500 /la tasca/Son.wav");
}

TEST(SoundOrder, IsReadBack) {
  const auto orden = FromPacket("70000 4 300 -10000  raro \n nombre");
  ASSERT_TRUE(orden);
  EXPECT_EQ(orden->Numero, 70000);
  EXPECT_EQ(orden->Ajustes, (MediaPlayerSettings{.Veces = 4, .Balance = 300, .Volumen = -10000}));
  EXPECT_EQ(orden->Archivo, " raro \n nombre");
  const auto parar = FromPacket(ToPacket({.Numero = 1, .Ajustes = {.Veces = 0}, .Archivo = {}}));
  ASSERT_TRUE(parar);
  EXPECT_EQ(parar->Ajustes.Veces, 0);
  EXPECT_TRUE(parar->Archivo.empty());
}

TEST(SoundOrder, RejectsInvalidPackets) {
  for (const char* const paquete : {"", " ", "1", "1 2 3 4", "1 2 3 x ", "a 2 3 4 f", "1  2 3 4 f",
                                    "1 2 3 40000 f", "99999999999 1 0 0 f"}) {
    EXPECT_FALSE(FromPacket(paquete)) << paquete;
  }
}

}  // namespace
}  // namespace tasca::test
