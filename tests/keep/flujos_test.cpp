// The bytes of the values of a match.
#include "keep/flujos.h"

#include <gtest/gtest.h>

#include "base/integer.h"

namespace tasca::test {
namespace {

std::string Escrito(Integer numero) {
  EscritorPartida escritor;
  escritor.Numero(numero, {});
  return escritor.Bytes();
}

TEST(EscritorPartida, WritesNumbersAsTwoBytesTheLeastSignificantFirst) {
  EXPECT_EQ(Escrito(1), (std::string{"\x01\x00", 2}));
  EXPECT_EQ(Escrito(0x1234), "\x34\x12");
  EXPECT_EQ(Escrito(-2), "\xFE\xFF");
  EXPECT_EQ(Escrito(INT16_MIN), (std::string{"\x00\x80", 2}));
}

TEST(EscritorPartida, WritesTextsWithTheirLength) {
  EscritorPartida escritor;
  escritor.Texto(u"añ");
  EXPECT_EQ(escritor.Bytes(), (std::string{"\x02\x00\x00\x00\x61\x00\xF1\x00", 8}));
}

TEST(EscritorPartida, WritesFixedTextsWithoutTheirPadding) {
  FixedText<10> campo;
  campo = u" a";
  EscritorPartida escritor;
  escritor.Texto(campo);
  EXPECT_EQ(escritor.Bytes(), (std::string{"\x02\x00\x00\x00\x20\x00\x61\x00", 8}));
}

TEST(LectorPartida, ReadsNumbersOfBothSigns) {
  for (const int numero : {0, 1, 255, 256, INT16_MAX, -1, -256, INT16_MIN}) {
    const std::string bytes = Escrito(numero);
    LectorPartida lector{bytes};
    Integer leido = 7;
    lector.Numero(leido, {});
    EXPECT_TRUE(lector.BienLeido()) << numero;
    EXPECT_EQ(leido, numero);
  }
}

TEST(LectorPartida, FailsForNumbersOutsideTheRange) {
  for (const int numero : {-1, 4}) {
    const std::string bytes = Escrito(numero);
    LectorPartida lector{bytes};
    Integer leido = 7;
    lector.Numero(leido, {0, 3});
    EXPECT_FALSE(lector.BienLeido()) << numero;
    EXPECT_EQ(leido, 0);
  }
}

TEST(LectorPartida, FailsAtTheEndOfTheBytes) {
  LectorPartida lector{"\x01"};
  Integer leido = 7;
  lector.Numero(leido, {});
  EXPECT_FALSE(lector.BienLeido());
}

TEST(LectorPartida, FailsIfBytesAreLeft) {
  LectorPartida lector{std::string_view{"\x01\x00\x02", 3}};
  Integer leido;
  lector.Numero(leido, {});
  EXPECT_FALSE(lector.BienLeido());
}

TEST(LectorPartida, DistinguishesAFixedTextThatWasNeverFilled) {
  FixedText<3> sinLlenar;
  FixedText<3> vacio;
  vacio = u"";
  EscritorPartida escritor;
  escritor.Texto(sinLlenar);
  escritor.Texto(vacio);
  LectorPartida lector{escritor.Bytes()};
  FixedText<3> uno;
  uno = u"xxx";
  FixedText<3> otro = uno;
  lector.Texto(uno);
  lector.Texto(otro);
  EXPECT_TRUE(lector.BienLeido());
  EXPECT_TRUE(uno == sinLlenar);
  EXPECT_TRUE(otro == vacio);
}

TEST(LectorPartida, FailsForATextThatDoesNotFit) {
  EscritorPartida escritor;
  escritor.Texto(u"demasiado");
  LectorPartida lector{escritor.Bytes()};
  FixedText<3> campo;
  lector.Texto(campo);
  EXPECT_FALSE(lector.BienLeido());
}

// The length is checked before memory is reserved for it.
TEST(LectorPartida, FailsForLengthsThatTheBytesCannotHold) {
  LectorPartida texto{"\xFF\xFF\xFF\xFF"};
  std::u16string leido = u"antes";
  texto.Texto(leido);
  EXPECT_FALSE(texto.BienLeido());
  EXPECT_EQ(leido, u"");
  LectorPartida lista{"\xFF\xFF\xFF\xFF"};
  std::vector<int> leida;
  lista.Lista(leida);
  EXPECT_FALSE(lista.BienLeido());
  EXPECT_TRUE(leida.empty());
}

TEST(LectorPartida, ReadsZerosAfterAFailure) {
  LectorPartida lector{"\xFF\xFF\xFF\xFF\x05\x05"};
  std::u16string texto;
  Integer numero = 7;
  lector.Texto(texto);
  lector.Numero(numero, {});
  EXPECT_EQ(numero, 0);
  EXPECT_FALSE(lector.BienLeido());
}

TEST(LectorPartida, ReadsTheGeneratorSoThatItsNextDrawsAreTheSame) {
  Rnd rnd;
  rnd.Seed(42);
  for (int i = 0; i < 1000; ++i) rnd();
  EscritorPartida escritor;
  escritor.Generador(rnd);
  LectorPartida lector{escritor.Bytes()};
  Rnd leido;
  lector.Generador(leido);
  ASSERT_TRUE(lector.BienLeido());
  EXPECT_EQ(leido.Draws(), 1000U);
  for (int i = 0; i < 2000; ++i) ASSERT_EQ(leido(), rnd()) << i;
}

TEST(LectorPartida, FailsForAGeneratorThatIsNone) {
  for (const char* motor : {"", "hola", "1 2 3"}) {
    EscritorPartida escritor;
    escritor.Generador(Rnd{});
    std::string bytes = escritor.Bytes().substr(0, 8);
    bytes += static_cast<char>(std::string_view{motor}.size());
    bytes += std::string(3, '\0') + motor;
    LectorPartida lector{bytes};
    Rnd leido;
    lector.Generador(leido);
    EXPECT_FALSE(lector.BienLeido()) << motor;
  }
}

// Whether a new generator is read after its text was changed from `antes` to `ahora`, which has the
// same length.
bool SeLeeElGenerador(std::string_view antes, std::string_view ahora) {
  EscritorPartida escritor;
  escritor.Generador(Rnd{});
  std::string bytes = escritor.Bytes();
  const std::size_t lugar = bytes.rfind(antes);
  EXPECT_NE(lugar, std::string::npos) << antes;
  bytes.replace(lugar, antes.size(), ahora);
  LectorPartida lector{bytes};
  Rnd leido;
  lector.Generador(leido);
  return lector.BienLeido();
}

// A new generator has the position 624. The first word of its state is its seed, 5489; the second
// is 1301868182, and 5301868182 has more than 32 bits.
TEST(LectorPartida, FailsForAnImpossibleGenerator) {
  EXPECT_TRUE(SeLeeElGenerador(" 624", " 624"));
  EXPECT_TRUE(SeLeeElGenerador(" 624", " 623"));
  EXPECT_FALSE(SeLeeElGenerador(" 624", " 625"));
  EXPECT_FALSE(SeLeeElGenerador(" 624", " 62x"));
  EXPECT_FALSE(SeLeeElGenerador(" 624", "-624"));
  EXPECT_TRUE(SeLeeElGenerador("5489 1301868182", "5489 4294967295"));
  EXPECT_FALSE(SeLeeElGenerador("5489 1301868182", "5489 4294967296"));
  EXPECT_FALSE(SeLeeElGenerador("5489 1301868182", "5489 13018681 2"));
}

}  // namespace
}  // namespace tasca::test
