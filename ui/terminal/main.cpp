// tasca-terminal: the game at a text terminal.
#include <cstdlib>
#include <iostream>

#include "ui/options.h"
#include "ui/program_folder.h"
#include "ui/state_folder.h"
#include "ui/terminal/terminal.h"
#include "ui/terminal/tty.h"

namespace {

bool IsSet(const char* variable) {
  return std::getenv(variable) != nullptr;  // NOLINT(concurrency-mt-unsafe): there is one thread
}

// The descriptor to poll while sounds play, or -1 for no sound: over SSH the player would not hear
// this machine's loudspeaker.
int Keyboard() {
  const bool delante = tasca::InputIsTerminal() && tasca::OutputIsTerminal();
  const bool lejos = IsSet("SSH_CONNECTION") || IsSet("SSH_TTY");
  return delante && !lejos ? tasca::InputDescriptor() : -1;
}

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-terminal",
    .Usage = "",
    .About = "Abre la tasca en la terminal: el mus de cuatro, usted y tres personajes.\n"};

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::TakeOptions(Programa, argc, argv)) return *estado;
  return tasca::RunTerminal({.Files = tasca::ProgramFolder(argv[0]), .State = tasca::StateFolder()},
                            {.In = std::cin,
                             .Out = std::cout,
                             .Err = std::cerr,
                             .Echoes = tasca::InputIsTerminal(),
                             .Keyboard = Keyboard(),
                             .Width = tasca::TerminalWidth});
}
