// tasca-terminal: the game at a text terminal.
#include <sys/ioctl.h>
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

// The descriptor to poll while sounds play, or -1 for no sound: over SSH the player would not hear
// this machine's loudspeaker.
int Keyboard() {
  const bool delante = ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0;
  const bool lejos = IsSet("SSH_CONNECTION") || IsSet("SSH_TTY");
  return delante && !lejos ? STDIN_FILENO : -1;
}

// The current width of the terminal, 0 if the output is no terminal. It can change at any time.
std::size_t Width() {
  constexpr std::size_t corriente = 80;
  if (::isatty(STDOUT_FILENO) == 0) return 0;
  winsize medidas{};
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): ioctl() has no other form.
  if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &medidas) != 0) return corriente;
  return medidas.ws_col > 0 ? medidas.ws_col : corriente;
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
                                                            .Keyboard = Keyboard(),
                                                            .Width = Width});
}
