// The program tasca-terminal.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "ui/terminal/terminal.h"

namespace {

// The executable's folder, where the game's files lie.
std::filesystem::path ProgramFolder(const char* orden) {
  std::error_code error;
  const std::filesystem::path propio = std::filesystem::read_symlink("/proc/self/exe", error);
  return (error ? std::filesystem::path{orden} : propio).parent_path();
}

bool IsSet(const char* variable) {
  return std::getenv(variable) != nullptr;  // NOLINT(concurrency-mt-unsafe): there is one thread
}

// Who plays from another machine would not hear this one's loudspeaker.
int Keyboard() {
  const bool delante = ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0;
  const bool lejos = IsSet("SSH_CONNECTION") || IsSet("SSH_TTY");
  return delante && !lejos ? STDIN_FILENO : -1;
}

}  // namespace

int main(int /*argc*/, char** argv) {
  return tasca::RunTerminal(ProgramFolder(argv[0]), {.In = std::cin,
                                                     .Out = std::cout,
                                                     .Err = std::cerr,
                                                     .Echoes = ::isatty(STDIN_FILENO) != 0,
                                                     .Keyboard = Keyboard()});
}
