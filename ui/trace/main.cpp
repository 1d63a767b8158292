// tasca-trace [FOLDER]: plays the game over standard input and output, one JSON object a line.
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>

#include "ui/options.h"
#include "ui/trace/session.h"

namespace {

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-trace",
    .Usage = " FOLDER (the one with Jugadores.dat) or --carpeta FOLDER",
    .About = "Plays the game over standard input and output, one JSON object a line.\n",
    .Speaks = tasca::Language::English,
    .TakesArguments = true,
    .TakesFolder = true};

// The folder that is given without an option, or else the chosen one; nothing if it is not clear.
std::optional<std::filesystem::path> Folder(int argc, const char* const* argv) {
  const auto dadas = tasca::Operands(Programa, argc, argv);
  if (dadas.empty()) return tasca::ChosenFolder(argc, argv);
  if (dadas.size() > 1) return std::nullopt;
  return dadas.front();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (const auto estado = tasca::TakeOptions(Programa, argc, argv)) return *estado;
    const std::optional<std::filesystem::path> carpeta = Folder(argc, argv);
    if (!carpeta) return tasca::UsageError(Programa);
    std::ios::sync_with_stdio(false);
    return tasca::RunTrace(*carpeta, std::cin, std::cout, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "tasca-trace: " << error.what() << '\n';
    return 1;
  }
}
