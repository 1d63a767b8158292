// tasca-trace FOLDER: plays the game over standard input and output, one JSON object a line.
#include <exception>
#include <iostream>

#include "ui/options.h"
#include "ui/trace/session.h"

namespace {

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-trace",
    .Usage = " FOLDER (the one with Jugadores.dat)",
    .About = "Plays the game over standard input and output, one JSON object a line.\n",
    .Speaks = tasca::Language::English,
    .TakesArguments = true};

}  // namespace

int main(int argc, char** argv) {
  try {
    if (const auto estado = tasca::TakeOptions(Programa, argc, argv)) return *estado;
    if (argc != 2) return tasca::UsageError(Programa);
    std::ios::sync_with_stdio(false);
    return tasca::RunTrace(argv[1], std::cin, std::cout, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "tasca-trace: " << error.what() << '\n';
    return 1;
  }
}
