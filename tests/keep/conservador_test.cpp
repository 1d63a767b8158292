// Keeping the match and offering it again, with what the player is told.
#include "keep/conservador.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "keep/partida_guardada.h"
#include "tests/support/partida_en_juego.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Sucesos = std::vector<std::string>;

constexpr auto Oferta =
    "yesno[]: Hay una partida sin terminar. ¿Desea seguir con ella? (icon, default yes)";

// A match, a port whose answers are scripted, and a folder of states.
struct Conservacion : testing::Test {
  // Keeps the match as a program would that then ends.
  void GuardarYAcabar() {
    Conservador conservador{Estado.Path()};
    conservador.Guardar(Juego);
  }
  // Offers the match as a program would that has just started.
  bool Ofrecer() {
    OtraMesa = std::make_unique<Table>();
    Game otro{*OtraMesa, OtroGenerador, Puerto};
    return Conservador{Estado.Path()}.Ofrecer(otro);
  }
  bool HayPartida() const { return fs::exists(Estado.Path() / "partida"); }

  TempFolder Estado;
  PartidaEnJuego Partida{7};
  ScriptedPort Puerto;
  Game Juego{*Partida.Mesa, Partida.Generador, Puerto};
  std::unique_ptr<Table> OtraMesa;
  Rnd OtroGenerador;
};

TEST_F(Conservacion, OffersNothingIfNothingIsKept) {
  EXPECT_FALSE(Ofrecer());
  EXPECT_EQ(Puerto.TakeEvents(), Sucesos{});
}

TEST_F(Conservacion, GoesOnWithTheKeptMatch) {
  Partida.Pasos(5);
  GuardarYAcabar();
  Puerto.Yes();
  EXPECT_TRUE(Ofrecer());
  EXPECT_EQ(Puerto.TakeEvents(), Sucesos{Oferta});
  EXPECT_EQ(Puerto.Preguntas, std::vector{Pregunta::SeguirPartida});
  EXPECT_TRUE(static_cast<Form1State&>(*OtraMesa) == *Partida.Mesa);
  EXPECT_TRUE(OtroGenerador.Engine() == Partida.Generador.Engine());
  EXPECT_TRUE(HayPartida());
}

TEST_F(Conservacion, ForgetsTheMatchAfterNo) {
  GuardarYAcabar();
  Puerto.No();
  EXPECT_FALSE(Ofrecer());
  EXPECT_FALSE(HayPartida());
  EXPECT_TRUE(*OtraMesa == Table{});
}

TEST_F(Conservacion, ForgetsAMatchThatIsOver) {
  Conservador conservador{Estado.Path()};
  conservador.Guardar(Juego);
  conservador.Olvidar();
  conservador.Esperar();
  EXPECT_FALSE(HayPartida());
  conservador.Guardar(Juego);
  conservador.Esperar();
  EXPECT_TRUE(HayPartida()) << "the next match, even if it is equal";
}

TEST_F(Conservacion, WritesOnlyWhatHasChanged) {
  Conservador conservador{Estado.Path()};
  conservador.Guardar(Juego);
  conservador.Esperar();
  fs::remove(Estado.Path() / "partida");
  conservador.Guardar(Juego);
  conservador.Esperar();
  EXPECT_FALSE(HayPartida());
  Partida.Paso();
  conservador.Guardar(Juego);
  conservador.Esperar();
  EXPECT_TRUE(Estado.Read("partida") == EscribirPartida(*Partida.Mesa, Partida.Generador));
}

TEST_F(Conservacion, SetsADamagedFileAside) {
  Estado.Write("partida", "no es una partida");
  EXPECT_FALSE(Ofrecer());
  const std::string apartada = (Estado.Path() / "partida-apartada").string();
  EXPECT_EQ(
      Puerto.TakeEvents(),
      Sucesos{"box: La partida que se guardó está dañada o es de otra versión del juego, y no "
              "se puede seguir. Queda en " +
              apartada + "."});
  EXPECT_FALSE(HayPartida());
  EXPECT_EQ(Estado.Read("partida-apartada"), "no es una partida");
  EXPECT_FALSE(Ofrecer());
  EXPECT_EQ(Puerto.TakeEvents(), Sucesos{}) << "said once";
}

TEST_F(Conservacion, TheSecondProgramPlaysWithoutKeepingAndSaysSoOnce) {
  GuardarYAcabar();
  const std::string guardada = Estado.Read("partida");
  const Conservador primero{Estado.Path()};
  Conservador segundo{Estado.Path()};
  EXPECT_FALSE(segundo.Ofrecer(Juego)) << "the match of the other program";
  for (int vez = 0; vez < 3; ++vez) {
    Partida.Paso();
    segundo.Esperar();
    segundo.Guardar(Juego);
  }
  segundo.Olvidar();
  EXPECT_EQ(Puerto.TakeEvents(),
            Sucesos{"box: Esta partida no se guarda para otro día: hay otra tasca abierta, que "
                    "guarda la suya. Se juega igual."});
  EXPECT_TRUE(Estado.Read("partida") == guardada);
}

TEST_F(Conservacion, SaysOnceThatThereIsNoFolder) {
  Conservador conservador{""};
  EXPECT_FALSE(conservador.Ofrecer(Juego));
  conservador.Guardar(Juego);
  conservador.Guardar(Juego);
  EXPECT_EQ(Puerto.TakeEvents(),
            Sucesos{"box: Esta partida no se guarda para otro día: no se sabe cuál es su carpeta "
                    "personal. Se juega igual."});
}

TEST_F(Conservacion, SaysOnceThatASaveHasFailed) {
  Conservador conservador{Estado.Path()};
  fs::create_directories(Estado.Path() / "partida" / "llena");
  for (int vez = 0; vez < 3; ++vez) {
    Partida.Paso();
    conservador.Esperar();
    conservador.Guardar(Juego);
  }
  EXPECT_EQ(Puerto.TakeEvents(),
            Sucesos{"box: Esta partida no se guarda para otro día: hay otra cosa en su lugar. Se "
                    "juega igual."});
}

// A save that has failed is tried again at the next step.
TEST_F(Conservacion, KeepsTheMatchOnceTheDiskHasRoomAgain) {
  Conservador conservador{Estado.Path()};
  fs::create_directories(Estado.Path() / "partida" / "llena");
  conservador.Guardar(Juego);
  conservador.Esperar();
  fs::remove_all(Estado.Path() / "partida");
  Partida.Paso();
  conservador.Guardar(Juego);
  conservador.Esperar();
  EXPECT_TRUE(Estado.Read("partida") == EscribirPartida(*Partida.Mesa, Partida.Generador));
  EXPECT_EQ(Puerto.TakeEvents().size(), 1U);
}

}  // namespace
}  // namespace tasca::test
