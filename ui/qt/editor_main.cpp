// tasca-editor: the editor of the character file.
#include "ui/game_folder.h"
#include "ui/options.h"
#include "ui/program_folder.h"
#include "ui/qt/application.h"
#include "ui/qt/editor_program.h"
#include "ui/state_folder.h"

namespace {

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-editor",
    .Usage = " [--carpeta CARPETA | ARCHIVO]",
    .About =
        "Abre el editor de los personajes de la tasca y de sus frases.\n"
        "ARCHIVO es otro archivo de personajes, que se abre y se guarda en su lugar.\n",
    .TakesArguments = true,
    .TakesFolder = true};

tasca::EditorPlace Place(int argc, const char* const* argv) {
  const auto dados = tasca::Operands(Programa, argc, argv);
  if (!dados.empty()) return tasca::PlaceOfFile(dados.front());
  return tasca::PlaceOfGame(tasca::FindGameFolder(
      tasca::ProgramFolder(argv[0]), tasca::ChosenFolder(argc, argv), tasca::DataFolder()));
}

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::AnswerOptions(Programa, argc, argv)) return *estado;
  tasca::Application aplicacion{argc, argv};
  // Application has removed the toolkit's own options.
  if (const auto estado = tasca::RefuseOptions(Programa, argc, argv)) return *estado;
  if (tasca::Operands(Programa, argc, argv).size() > 1) return tasca::UsageError(Programa);
  const tasca::EditorPlace sitio = Place(argc, argv);
  tasca::EditorProgram programa{sitio.Folder, sitio.Start};
  return aplicacion.Run([&programa] { programa.Open(); }, programa.AtSessionEnd());
}
