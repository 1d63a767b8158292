// tasca-check [FILE]: prints every fault of a character file. Exit status: 0 without faults, 1 with
// faults, 2 if the file cannot be read.
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "base/path_text.h"
#include "base/text.h"
#include "characters/check.h"
#include "ui/options.h"
#include "ui/plain_text.h"

namespace tasca {
namespace {

constexpr int SinFaltas = 0;
constexpr int ConFaltas = 1;
constexpr int NoSePuedeLeer = 2;

constexpr ProgramOptions Programa{
    .Name = "tasca-check",
    .Usage = " ARCHIVO (el de los personajes) o --carpeta CARPETA",
    .About =
        "Dice cada falta de un archivo de personajes, con su línea. Termina con 0 si no hay\n"
        "ninguna, con 1 si las hay y con 2 si el archivo no se puede leer.\n",
    .TakesArguments = true,
    .TakesFolder = true};

// Prints exactly one line: line breaks in the text or in the file's name are replaced.
void PrintLine(std::ostream& salida, std::u16string_view texto) {
  salida << PlainLine(texto) << '\n';
}

// The file that is given, or else that of the chosen folder; nothing if it is not clear.
std::optional<std::filesystem::path> File(int argc, const char* const* argv) {
  const std::vector<std::string_view> dados = Operands(Programa, argc, argv);
  if (dados.size() > 1) return std::nullopt;
  if (!dados.empty()) return dados.front();
  const std::optional<std::filesystem::path> carpeta = ChosenFolder(argc, argv);
  return carpeta ? std::optional{*carpeta / "Jugadores.dat"} : std::nullopt;
}

int Check(const std::filesystem::path& archivo) {
  const Revision revision = RevisarPersonajes(archivo);
  for (const Falta& falta : revision.Faltas) {
    PrintLine(std::cout, Join(PlaceInFile(archivo, falta.Linea), falta.Texto));
  }
  if (revision.Faltas.empty()) {
    PrintLine(std::cout,
              Join(PlaceInFile(archivo, 0), u"sin faltas; ", revision.Personajes, u" personajes, ",
                   revision.Ofrecidos, u" se ofrecen como jugadores."));
  }
  std::cout.flush();
  if (!std::cout) throw RunTimeError{u"No se puede escribir el resultado."};
  return revision.Faltas.empty() ? SinFaltas : ConFaltas;
}

}  // namespace
}  // namespace tasca

int main(int argc, char** argv) {
  try {
    if (const auto estado = tasca::TakeOptions(tasca::Programa, argc, argv)) return *estado;
    const std::optional<std::filesystem::path> archivo = tasca::File(argc, argv);
    return archivo ? tasca::Check(*archivo) : tasca::UsageError(tasca::Programa);
  } catch (const tasca::RunTimeError& error) {
    tasca::PrintLine(std::cerr, error.Message());
  } catch (const std::exception& error) {
    std::cerr << "tasca-check: " << error.what() << '\n';
  }
  return tasca::NoSePuedeLeer;
}
