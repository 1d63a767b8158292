// tasca-terminal: the game at a text terminal.
#include <cstdlib>
#include <iostream>

#include "ui/game_folder.h"
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
    .Usage = " [--carpeta CARPETA]",
    .About = "Abre la tasca en la terminal: el mus de cuatro, usted y tres personajes.\n",
    .TakesFolder = true};

tasca::TerminalFolders Folders(int argc, const char* const* argv) {
  const tasca::GameFolder carpeta = tasca::FindGameFolder(
      tasca::ProgramFolder(argv[0]), tasca::ChosenFolder(argc, argv), tasca::DataFolder());
  return {.Files = carpeta.Files,
          .State = tasca::StateFolder(),
          .Sound = {.Program = carpeta.SoundProgram, .Shipped = carpeta.Shipped},
          .NotSaved = carpeta.NotSaved};
}

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::TakeOptions(Programa, argc, argv)) return *estado;
  return tasca::RunTerminal(Folders(argc, argv), {.In = std::cin,
                                                  .Out = std::cout,
                                                  .Err = std::cerr,
                                                  .Echoes = tasca::InputIsTerminal(),
                                                  .Keyboard = Keyboard(),
                                                  .Width = tasca::TerminalWidth});
}
