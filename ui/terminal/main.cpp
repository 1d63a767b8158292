// The program tasca-terminal.
#include <unistd.h>

#include <cstdlib>
#include <iostream>

#include "ui/options.h"
#include "ui/program_folder.h"
#include "ui/terminal/terminal.h"

namespace {

bool IsSet(const char* variable) {
  return std::getenv(variable) != nullptr;  // NOLINT(concurrency-mt-unsafe): there is one thread
}

// Who plays from another machine would not hear this one's loudspeaker.
int Keyboard() {
  const bool delante = ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0;
  const bool lejos = IsSet("SSH_CONNECTION") || IsSet("SSH_TTY");
  return delante && !lejos ? STDIN_FILENO : -1;
}

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-terminal",
    .Usage = "",
    .About = "Abre la tasca en la terminal: el mus de cuatro, usted y tres personajes.\n"};

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::TakeOptions(Programa, argc, argv)) return *estado;
  return tasca::RunTerminal(tasca::ProgramFolder(argv[0]), {.In = std::cin,
                                                            .Out = std::cout,
                                                            .Err = std::cerr,
                                                            .Echoes = ::isatty(STDIN_FILENO) != 0,
                                                            .Keyboard = Keyboard()});
}
