// A match at the terminal that is left or killed, and goes on at the next start.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/ui_terminal/sessions.h"
#include "tests/ui_terminal/terminal_program.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

constexpr auto Oferta = "Hay una partida sin terminar. ¿Desea seguir con ella? [S/n] ";
constexpr auto Comienzo = "Pulse enter para empezar";

class KeptAtTerminal : public testing::Test {
 protected:
  KeptAtTerminal() {
    LlenarCarpeta(carpeta_);
    CopyTerminalProgram(carpeta_.Path());
  }

  std::vector<std::string> Orden() const {
    return {"XDG_STATE_HOME=" + estado_.Path().string(), carpeta_.Path() / "tasca-terminal"};
  }
  // Starts a match and leaves it after the first step, which refuses mus.
  void PlayAStep() {
    TerminalProgram programa{Pipes, Orden()};
    programa.Type(AllDefaults);
    ASSERT_TRUE(programa.Shows(Comienzo)) << programa.Shown();
    programa.Type("\nn\n");
    ASSERT_TRUE(programa.Shows("Ana: NMus")) << programa.Shown();
    EXPECT_EQ(programa.End(), 0);
  }
  bool HayPartida() const { return fs::exists(estado_.Path() / "tasca" / "partida"); }

  TempFolder carpeta_;
  TempFolder estado_;
};

TEST_F(KeptAtTerminal, GoesOnWithItsTranscript) {
  PlayAStep();
  TerminalProgram programa{Pipes, Orden()};
  ASSERT_TRUE(programa.Shows(Oferta)) << programa.Shown();
  programa.Type("\n");
  EXPECT_TRUE(programa.Shows("Ana: NMus")) << programa.Shown();
  EXPECT_TRUE(programa.Shows("Pulse enter para continuar")) << programa.Shown();
  programa.Type("\n");
  EXPECT_TRUE(programa.Shows("La grande")) << programa.Shown();
  EXPECT_EQ(programa.Shown().find("Su nombre"), std::string::npos);
  EXPECT_EQ(programa.End(), 0);
  EXPECT_TRUE(HayPartida());
}

TEST_F(KeptAtTerminal, StartsAnotherAfterNo) {
  PlayAStep();
  TerminalProgram programa{Pipes, Orden()};
  ASSERT_TRUE(programa.Shows(Oferta)) << programa.Shown();
  programa.Type("n\n");
  EXPECT_TRUE(programa.Shows("Su nombre: ")) << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
  EXPECT_FALSE(HayPartida());
}

TEST_F(KeptAtTerminal, StaysIfTheInputEndsAtTheQuestion) {
  PlayAStep();
  TerminalProgram programa{Pipes, Orden()};
  ASSERT_TRUE(programa.Shows(Oferta)) << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
  EXPECT_TRUE(HayPartida());
}

TEST_F(KeptAtTerminal, OutlivesAKilledProgram) {
  {
    TerminalProgram programa{Pipes, Orden()};
    programa.Type(AllDefaults + "\n");
    // The question of the second step: the first one is kept.
    ASSERT_TRUE(programa.Shows("¿mus?")) << programa.Shown();
  }
  TerminalProgram programa{Pipes, Orden()};
  EXPECT_TRUE(programa.Shows(Oferta)) << programa.Shown();
}

TEST_F(KeptAtTerminal, TheSecondProgramSaysThatItDoesNotKeepItsMatch) {
  TerminalProgram primero{Pipes, Orden()};
  primero.Type(AllDefaults);
  ASSERT_TRUE(primero.Shows(Comienzo)) << primero.Shown();
  TerminalProgram segundo{Pipes, Orden()};
  segundo.Type(AllDefaults);
  EXPECT_TRUE(
      segundo.Shows("[Esta partida no se guarda para otro día: hay otra tasca abierta, que "
                    "guarda la suya. Se juega igual.]"))
      << segundo.Shown();
  EXPECT_TRUE(segundo.Shows(Comienzo)) << segundo.Shown();
}

TEST_F(KeptAtTerminal, PlaysWithoutAHome) {
  TerminalProgram programa{Pipes, {"XDG_STATE_HOME=", "HOME=", carpeta_.Path() / "tasca-terminal"}};
  programa.Type(AllDefaults);
  EXPECT_TRUE(
      programa.Shows("[Esta partida no se guarda para otro día: no se sabe cuál es su "
                     "carpeta personal. Se juega igual.]"))
      << programa.Shown();
  EXPECT_TRUE(programa.Shows(Comienzo)) << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
}

}  // namespace
}  // namespace tasca::test
