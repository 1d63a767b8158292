// The program tasca-terminal: at a terminal, over SSH, in a pipe, through a link, and by its name.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/ui_loudspeaker/stand_in.h"
#include "tests/ui_terminal/sessions.h"
#include "tests/ui_terminal/terminal_program.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

constexpr Sides Terminal{};

class TerminalProgramRun : public testing::Test {
 protected:
  TerminalProgramRun() {
    LlenarCarpeta(carpeta_);
    CopyTerminalProgram(carpeta_.Path());
    StandIn(carpeta_, ": >\"$here/started\"\nexec cat");
  }

  std::string Program() const { return carpeta_.Path() / "tasca-terminal"; }
  bool LoudspeakerStarted() const { return fs::exists(carpeta_.Path() / "started"); }

  // "plays" or "silent", from the program's answer to the command "sonido" after the first deal.
  std::string AnswerAboutSound(const Sides& lados, const Words& variables) {
    Words orden = variables;
    orden.push_back(Program());
    TerminalProgram programa{lados, orden};
    programa.Type(AllDefaults);
    EXPECT_TRUE(programa.Shows("Pulse enter para empezar")) << programa.Shown();
    programa.Type("sonido\n");
    const bool sin = programa.Shows("onido.");
    EXPECT_TRUE(sin) << programa.Shown();
    EXPECT_EQ(programa.End(), 0);
    const bool hay = programa.Shown().find("En esta terminal no hay sonido.") == std::string::npos;
    return hay ? "plays" : "silent";
  }

  TempFolder carpeta_;
};

TEST_F(TerminalProgramRun, PlaysSoundAtALocalTerminal) {
  TerminalProgram programa{Terminal, {Program()}};
  programa.Type(AllDefaults);
  EXPECT_TRUE(Eventually([this] { return LoudspeakerStarted(); }));
  programa.Type("sonido\n");
  EXPECT_TRUE(programa.Shows("Sin sonido.")) << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
}

TEST_F(TerminalProgramRun, IsSilentOverSsh) {
  EXPECT_EQ(AnswerAboutSound(Terminal, {"SSH_CONNECTION=192.0.2.7 50000 192.0.2.1 22"}), "silent");
  EXPECT_EQ(AnswerAboutSound(Terminal, {"SSH_TTY=/dev/pts/0"}), "silent");
  EXPECT_FALSE(LoudspeakerStarted());
  EXPECT_EQ(AnswerAboutSound(Terminal, {}), "plays");
}

TEST_F(TerminalProgramRun, IsSilentUnlessThePlayerTypesAndReadsAtATerminal) {
  EXPECT_EQ(AnswerAboutSound(Pipes, {}), "silent");
  EXPECT_EQ(AnswerAboutSound({.TypesAtTerminal = false}, {}), "silent");
  EXPECT_EQ(AnswerAboutSound({.ReadsAtTerminal = false}, {}), "silent");
  EXPECT_FALSE(LoudspeakerStarted());
}

// The terminal echoes the Enter, so that the program must not print a line break too.
TEST_F(TerminalProgramRun, PrintsNoLineBreakAfterAnEchoedAnswer) {
  TerminalProgram programa{Terminal, {Program()}};
  ASSERT_TRUE(programa.Shows("Su nombre: [Ana] ")) << programa.Shown();
  programa.Type("Eva\n");
  EXPECT_TRUE(programa.Shows("Compañero: [0 Aleatorio] "));
  EXPECT_NE(programa.Shown().find("\r\nSu nombre: [Ana] Eva\r\n0 Aleatorio\r\n"), std::string::npos)
      << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
}

// The hint before the first question, as printed.
std::string FirstHint(TerminalProgram& programa) {
  EXPECT_TRUE(programa.Shows("Su nombre: ")) << programa.Shown();
  const std::string& todo = programa.Shown();
  const std::size_t desde = todo.find("Enter deja");
  EXPECT_NE(desde, std::string::npos) << todo;
  return todo.substr(desde, todo.rfind("Su nombre: ") - desde);
}

TEST_F(TerminalProgramRun, WrapsLinesAtTheWidthOfTheTerminal) {
  TerminalProgram programa{{.Columns = 40}, {Program()}};
  EXPECT_EQ(FirstHint(programa),
            "Enter deja lo que está entre corchetes;\r\nq sale del juego; ? da ayuda.\r\n");
}

TEST_F(TerminalProgramRun, WrapsLinesAtEightyColumnsIfTheWidthIsUnknown) {
  TerminalProgram programa{Terminal, {Program()}};
  programa.Type("\nx\n");
  EXPECT_TRUE(programa.Shows("nombres.\r\n")) << programa.Shown();
  const std::string corte =
      "Escriba uno de los números o el comienzo de uno de los\r\nnombres.\r\n";
  EXPECT_TRUE(programa.Shows("Eso no se ofrece. " + corte)) << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
}

TEST_F(TerminalProgramRun, DoesNotWrapLinesInAPipe) {
  TerminalProgram programa{{.ReadsAtTerminal = false, .Columns = 40}, {Program()}};
  EXPECT_EQ(FirstHint(programa),
            "Enter deja lo que está entre corchetes; q sale del juego; ? da ayuda.\n");
}

TEST_F(TerminalProgramRun, EndsThePromptsLineInAPipe) {
  TerminalProgram programa{Pipes, {Program()}};
  programa.Type("Eva\n");
  EXPECT_EQ(programa.End(), 0);
  EXPECT_NE(programa.Shown().find("\nSu nombre: [Ana] \n0 Aleatorio\n"), std::string::npos)
      << programa.Shown();
}

// Only the output is a pipe: the terminal still echoes the input.
TEST_F(TerminalProgramRun, PrintsNoLineBreakIfOnlyTheInputIsATerminal) {
  TerminalProgram programa{{.ReadsAtTerminal = false}, {Program()}};
  programa.Type("Eva\n");
  EXPECT_TRUE(programa.Shows("Compañero: "));
  EXPECT_NE(programa.Shown().find("\nSu nombre: [Ana] 0 Aleatorio\n"), std::string::npos)
      << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
}

TEST_F(TerminalProgramRun, FindsItsFilesThroughALinkFromAnotherFolder) {
  const TempFolder otra;
  LlenarCarpeta(otra);
  otra.Write("mus.ini", "35\r\n3\r\n3\r\nOtra> Nombre\r\n");
  fs::create_symlink(Program(), otra.Path() / "mus");
  TerminalProgram programa{Pipes, {otra.Path() / "mus"}};
  EXPECT_TRUE(programa.Shows("Su nombre: [Ana] ")) << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
}

TEST_F(TerminalProgramRun, FindsItsFilesWhenItIsFoundInThePath) {
  TerminalProgram programa{Pipes, {"PATH=/usr/bin:" + carpeta_.Path().string(), "tasca-terminal"}};
  EXPECT_TRUE(programa.Shows("Su nombre: [Ana] ")) << programa.Shown();
  EXPECT_EQ(programa.End(), 0);
}

}  // namespace
}  // namespace tasca::test
