// The program tasca-terminal.
#include <unistd.h>

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

}  // namespace

int main(int /*argc*/, char** argv) {
  return tasca::RunTerminal(
      ProgramFolder(argv[0]),
      {.In = std::cin, .Out = std::cout, .Err = std::cerr, .Echoes = ::isatty(STDIN_FILENO) != 0});
}
