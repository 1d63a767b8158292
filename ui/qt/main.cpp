// tasca: the game in windows.
#include "ui/game_folder.h"
#include "ui/options.h"
#include "ui/program_folder.h"
#include "ui/qt/application.h"
#include "ui/qt/program.h"
#include "ui/state_folder.h"

namespace {

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca",
    .Usage = " [--carpeta CARPETA]",
    .About =
        "Abre la tasca en una ventana: el mus de cuatro, usted y tres personajes.\n"
        "Donde no hay pantalla se juega con tasca-terminal.\n",
    .TakesFolder = true};

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::AnswerOptions(Programa, argc, argv)) return *estado;
  tasca::Application aplicacion{argc, argv};
  // Application has removed the toolkit's own options.
  if (const auto estado = tasca::RefuseOptions(Programa, argc, argv)) return *estado;
  const tasca::GameFolder carpeta = tasca::FindGameFolder(
      tasca::ProgramFolder(argv[0]), tasca::ChosenFolder(argc, argv), tasca::DataFolder());
  tasca::Program programa{carpeta, tasca::StateFolder()};
  return aplicacion.Run([&programa] { programa.Open(); }, programa.AtSessionEnd());
}
