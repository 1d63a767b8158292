// tasca-cast SOURCE TARGET: compiles the cast's source into a character file.
#include <exception>
#include <iostream>
#include <memory>

#include "base/errors.h"
#include "base/replace_file.h"
#include "characters/character_file.h"
#include "tools/cast/cast_source.h"
#include "ui/options.h"
#include "ui/utf8.h"

namespace {

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-cast",
    .Usage = " PERSONAJES.TXT JUGADORES.DAT",
    .About = "Writes a character file, the second, from the cast as people write it, the first.\n",
    .Speaks = tasca::Language::English,
    .TakesArguments = true};

}  // namespace

int main(int argc, char** argv) {
  try {
    if (const auto estado = tasca::TakeOptions(Programa, argc, argv)) return *estado;
    if (argc != 3) return tasca::UsageError(Programa);
    const auto mesa = std::make_unique<tasca::Table>();
    const int cuantos = tasca::LeerReparto(*mesa, argv[1]);
    tasca::ReplaceFile(argv[2], tasca::TextoPersonajes(*mesa, cuantos));
    return 0;
  } catch (const tasca::RunTimeError& error) {
    std::cerr << "tasca-cast: " << tasca::ToUtf8(error.Message()) << '\n';
  } catch (const std::exception& error) {
    std::cerr << "tasca-cast: " << error.what() << '\n';
  }
  return 1;
}
