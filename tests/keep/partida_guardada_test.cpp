// A match written and read back: the same table, the same generator, the same game; and everything
// that must not be taken for a match.
#include "keep/partida_guardada.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/partida_en_juego.h"

namespace tasca::test {
namespace {

// A table and a generator that were read.
struct Leida {
  explicit Leida(std::string_view bytes) : Valida{LeerPartida(bytes, *Mesa, Generador)} {}

  std::unique_ptr<Table> Mesa = std::make_unique<Table>();
  Rnd Generador;
  bool Valida;
};

std::string Escrita(const PartidaEnJuego& partida) {
  return EscribirPartida(*partida.Mesa, partida.Generador);
}

// Whether a match is refused after this change to its table.
bool SeRechaza(const std::function<void(Table&)>& cambio, int pasos = 0) {
  PartidaEnJuego partida{4};
  partida.Pasos(pasos);
  EXPECT_TRUE(Leida{Escrita(partida)}.Valida) << "the match without the change";
  cambio(*partida.Mesa);
  return !Leida{Escrita(partida)}.Valida;
}

class PartidaGuardada : public testing::TestWithParam<unsigned> {};

// What is read is the match, and is written like it.
void ExpectTheSameBack(const PartidaEnJuego& partida) {
  const std::string bytes = Escrita(partida);
  const auto esperada = SoloLosSentados(*partida.Mesa);
  esperada->Carpeta.clear();
  const Leida leida{bytes};
  ASSERT_TRUE(leida.Valida);
  EXPECT_TRUE(*leida.Mesa == *esperada);
  EXPECT_EQ(leida.Generador.Draws(), partida.Generador.Draws());
  EXPECT_TRUE(leida.Generador.Engine() == partida.Generador.Engine());
  EXPECT_TRUE(EscribirPartida(*leida.Mesa, leida.Generador) == bytes);
}

TEST_P(PartidaGuardada, GivesTheTableAndTheGeneratorBackAfterEveryStep) {
  PartidaEnJuego partida{GetParam()};
  for (int paso = 0; paso < 150 && !HasFailure(); ++paso) {
    SCOPED_TRACE(paso);
    ExpectTheSameBack(partida);
    partida.Paso();
  }
}

TEST_P(PartidaGuardada, GoesOnAsIfTheMatchHadNotBeenInterrupted) {
  PartidaEnJuego entera{GetParam()};
  PartidaEnJuego cortada{GetParam()};
  for (int paso = 0; paso < 150; ++paso) {
    entera.Paso();
    const std::string bytes = Escrita(cortada);
    *cortada.Mesa = {};
    cortada.Generador = {};
    ASSERT_TRUE(LeerPartida(bytes, *cortada.Mesa, cortada.Generador));
    cortada.Paso();
    ASSERT_TRUE(static_cast<const Form1State&>(*entera.Mesa) == *cortada.Mesa) << paso;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PartidaGuardada, testing::Range(0U, 6U));

TEST(LeerPartida, KeepsWhatBelongsToTheRunningProgram) {
  const PartidaEnJuego partida{1};
  Table t;
  Rnd rnd;
  t.Carpeta = "/otra";
  t.ArchivoDePersonajes = "otros.dat";
  t.SinGuardar = u"no.";
  t.AvisadoSinNombre = true;
  ASSERT_TRUE(LeerPartida(Escrita(partida), t, rnd));
  EXPECT_EQ(t.Carpeta, "/otra");
  EXPECT_EQ(t.ArchivoDePersonajes, "otros.dat");
  EXPECT_EQ(t.SinGuardar, u"no.");
  EXPECT_TRUE(t.AvisadoSinNombre);
}

TEST(LeerPartida, NeedsNoCharacterFile) {
  PartidaEnJuego partida{2};
  partida.Pasos(3);
  const std::u16string nombre{PersonajeDe(*partida.Mesa, 2).Nombre.Trimmed()};
  Leida leida{Escrita(partida)};
  ASSERT_TRUE(leida.Valida);
  EXPECT_EQ(PersonajeDe(*leida.Mesa, 2).Nombre.Trimmed(), nombre);
  EXPECT_EQ(leida.Mesa->Personajes[0].Nombre.Trimmed(), u"Ana");
}

TEST(LeerPartida, TakesALongTranscript) {
  PartidaEnJuego partida{2};
  partida.Mesa->Text2.assign(1'000'000, u'ñ');
  Leida leida{Escrita(partida)};
  ASSERT_TRUE(leida.Valida);
  EXPECT_TRUE(leida.Mesa->Text2 == partida.Mesa->Text2);
}

TEST(LeerPartida, RefusesEveryTruncation) {
  const std::string bytes = Escrita(PartidaEnJuego{3});
  for (std::size_t largo = 0; largo < bytes.size(); largo += largo < 64 ? 1 : 97) {
    EXPECT_FALSE(Leida{bytes.substr(0, largo)}.Valida) << largo;
  }
}

TEST(LeerPartida, RefusesMoreBytesThanWereWritten) {
  const std::string bytes = Escrita(PartidaEnJuego{3});
  EXPECT_FALSE(Leida{bytes + '\0'}.Valida);
  EXPECT_FALSE(Leida{bytes + bytes}.Valida);
}

TEST(LeerPartida, RefusesEveryChangedBit) {
  std::string bytes = Escrita(PartidaEnJuego{3});
  for (std::size_t i = 0; i < bytes.size(); i += i < 256 ? 1 : 61) {
    for (const unsigned bit : {0x01U, 0x10U, 0x80U}) {
      const char antes = bytes[i];
      bytes[i] = static_cast<char>(static_cast<unsigned char>(antes) ^ bit);
      EXPECT_FALSE(Leida{bytes}.Valida) << i;
      bytes[i] = antes;
    }
  }
  EXPECT_TRUE(Leida{bytes}.Valida);
}

TEST(LeerPartida, RefusesForeignFiles) {
  EXPECT_FALSE(Leida{""}.Valida);
  EXPECT_FALSE(Leida{"tasca-partida 1\n"}.Valida);
  EXPECT_FALSE(Leida{std::string(5000, '\0')}.Valida);
  EXPECT_FALSE(Leida{"35 piedras por juego\r\n3\r\n3\r\n"}.Valida);
}

TEST(LeerPartida, RefusesAnotherFormat) {
  std::string bytes = Escrita(PartidaEnJuego{3});
  ASSERT_TRUE(bytes.starts_with("tasca-partida 1\n"));
  bytes[14] = '0';
  EXPECT_FALSE(Leida{bytes}.Valida);
}

TEST(LeerPartida, ChangesNothingIfItRefuses) {
  PartidaEnJuego partida{5};
  const auto mesa = std::make_unique<Table>(*partida.Mesa);
  const std::uint64_t sacados = partida.Generador.Draws();
  std::string bytes = Escrita(PartidaEnJuego{6});
  bytes.back() = static_cast<char>(bytes.back() + 1);
  EXPECT_FALSE(LeerPartida(bytes, *partida.Mesa, partida.Generador));
  EXPECT_TRUE(*partida.Mesa == *mesa);
  EXPECT_EQ(partida.Generador.Draws(), sacados);
}

TEST(LeerPartida, RefusesCardsThatAreNoHand) {
  EXPECT_TRUE(SeRechaza([](Table& t) { t.Manos[2][3] = 0; }));
  EXPECT_TRUE(SeRechaza([](Table& t) { t.Manos[2][3] = 41; }));
  EXPECT_TRUE(SeRechaza([](Table& t) { t.Manos[2] = t.Manos[3]; })) << "a card in two hands";
  EXPECT_TRUE(SeRechaza([](Table& t) { t.Manos[1] = {1, 11, 21, 10}; }, 3)) << "not sorted";
}

TEST(LeerPartida, RefusesADeckThatIsNone) {
  EXPECT_TRUE(SeRechaza([](Table& t) { t.Baraja[40] = t.Baraja[39]; }));
  EXPECT_TRUE(SeRechaza([](Table& t) { t.Baraja[40] = 0; }));
  EXPECT_TRUE(SeRechaza([](Table& t) { t.CartaSiguiente = 41; }));
  EXPECT_TRUE(SeRechaza([](Table& t) { t.DescarteSiguiente = 0; }));
}

TEST(LeerPartida, RefusesASpeakingOrderThatDoesNotGoRound) {
  EXPECT_TRUE(SeRechaza([](Table& t) { t.OrdenAsiento = {1, 2, 4, 3}; }));
  EXPECT_TRUE(SeRechaza([](Table& t) { t.OrdenAsiento = {2, 3, 4, 5}; }));
  EXPECT_FALSE(SeRechaza([](Table& t) { t.OrdenAsiento = {3, 4, 1, 2}; }));
}

TEST(LeerPartida, RefusesNumbersOutsideTheirRange) {
  const std::vector<std::function<void(Table&)>> cambios{
      [](Table& t) { t.Fase = static_cast<Fase>(14); },
      [](Table& t) { t.Fase = static_cast<Fase>(-2); },
      [](Table& t) { t.SeguirLance = -2; },
      [](Table& t) { t.RondasMus = -1; },
      [](Table& t) { t.ParejaCortaMus = 2; },
      [](Table& t) { t.Apuesta[5] = -3; },
      [](Table& t) { t.Declaracion[3] = 2; },
      [](Table& t) { t.ParejaEnvite = -1; },
      [](Table& t) { t.OrdenPares[1] = 5; },
      [](Table& t) { t.TurnoJuego[1] = -1; },
      [](Table& t) { t.Juegos[0] = -1; },
      [](Table& t) { t.Vacas[1] = -1; },
      [](Table& t) { t.PiedrasJuego = 0; },
      [](Table& t) { t.JuegosVaca = 0; },
      [](Table& t) { t.VacasPartida = 0; },
      [](Table& t) { t.PiedrasJuego = 1000; },
      [](Table& t) { t.SonidoActual = 1; },
      [](Table& t) { t.CartasCambiadas[2] = 5; },
      [](Table& t) { t.PosicionSonido = 5; },
      [](Table& t) { t.SonidosDados = -1; },
      [](Table& t) { t.Mp1.Veces = 5; },
      [](Table& t) { t.Mp1.Balance = 10'001; },
      [](Table& t) { t.Mp1.Volumen = 1; },
      [](Table& t) { t.CartasVistas[4][4] = 41; },
      [](Table& t) { t.PersonajeAsiento[2] = 0; },
      [](Table& t) { t.Dichos.push_back({.Asiento = 5, .Frase = {}}); },
      [](Table& t) { t.Dichos.push_back({.Cantidad = -3, .Frase = {}}); },
  };
  for (std::size_t i = 0; i < cambios.size(); ++i) EXPECT_TRUE(SeRechaza(cambios[i])) << i;
}

TEST(LeerPartida, TakesWhatTheRulesAllow) {
  EXPECT_FALSE(SeRechaza([](Table& t) { t.Piedras = {-2, 41}; })) << "refused puntos cost stones";
  EXPECT_FALSE(SeRechaza([](Table& t) { t.Apuesta[5] = ApuestaPagada; }));
  EXPECT_FALSE(SeRechaza([](Table& t) { t.Text1.clear(); }));
  EXPECT_FALSE(SeRechaza([](Table& t) { t.NombreJugador = std::u16string(3, u'\0'); }));
}

}  // namespace
}  // namespace tasca::test
