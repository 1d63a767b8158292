// The seal of kept bytes.
#include "keep/sello.h"

#include <gtest/gtest.h>

namespace tasca::test {
namespace {

constexpr std::string_view Formato = "prueba 1\n";

TEST(Sellar, PutsTheFormatAndTheHashBeforeTheValues) {
  // FNV-1a of no bytes is its start value, 0xcbf29ce484222325.
  EXPECT_EQ(Sellar(Formato, ""), "prueba 1\n\x25\x23\x22\x84\xe4\x9c\xf2\xcb");
  // Of "a" it is 0xaf63dc4c8601ec8c.
  EXPECT_EQ(Sellar(Formato, "a"),
            "prueba 1\n\x8c\xec\x01\x86\x4c\xdc\x63\xaf"
            "a");
}

TEST(Abrir, GivesTheValuesBack) {
  const std::string sellado = Sellar(Formato, "unos valores");
  EXPECT_EQ(Abrir(Formato, sellado), "unos valores");
}

TEST(Abrir, RejectsEveryChangedByte) {
  const std::string sellado = Sellar(Formato, "unos valores");
  for (std::size_t i = 0; i < sellado.size(); ++i) {
    std::string otro = sellado;
    otro[i] = static_cast<char>(otro[i] ^ 1);
    EXPECT_EQ(Abrir(Formato, otro), std::nullopt) << i;
  }
}

TEST(Abrir, RejectsEveryCutAndMoreBytes) {
  const std::string sellado = Sellar(Formato, "unos valores");
  for (std::size_t i = 0; i < sellado.size(); ++i) {
    EXPECT_EQ(Abrir(Formato, sellado.substr(0, i)), std::nullopt) << i;
  }
  EXPECT_EQ(Abrir(Formato, sellado + "x"), std::nullopt);
}

TEST(Abrir, RejectsAnotherFormat) {
  EXPECT_EQ(Abrir("prueba 2\n", Sellar(Formato, "unos valores")), std::nullopt);
}

TEST(SumaSellada, IsTheChecksum) {
  EXPECT_EQ(SumaSellada(Formato, Sellar(Formato, "a")), "\x8c\xec\x01\x86\x4c\xdc\x63\xaf");
}

}  // namespace
}  // namespace tasca::test
