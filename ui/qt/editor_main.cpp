// tasca-editor: the editor of the character file.
#include <filesystem>
#include <system_error>

#include "ui/game_folder.h"
#include "ui/options.h"
#include "ui/own_files.h"
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

tasca::EditorProgram EditorOf(const std::filesystem::path& archivo) {
  std::error_code error;
  const std::filesystem::path completo = std::filesystem::absolute(archivo, error);
  const std::filesystem::path& ruta = error ? archivo : completo;
  return tasca::EditorProgram{ruta.parent_path(), {.File = ruta.filename()}};
}

tasca::EditorProgram EditorOf(const tasca::GameFolder& carpeta) {
  return tasca::EditorProgram{
      carpeta.Files, {.NotSaved = carpeta.NotSaved, .News = tasca::TakeNewFiles(carpeta.Files)}};
}

tasca::EditorProgram Editor(int argc, const char* const* argv) {
  const auto dados = tasca::Operands(Programa, argc, argv);
  if (!dados.empty()) return EditorOf(std::filesystem::path{dados.front()});
  return EditorOf(tasca::FindGameFolder(tasca::ProgramFolder(argv[0]),
                                        tasca::ChosenFolder(argc, argv), tasca::DataFolder()));
}

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::AnswerOptions(Programa, argc, argv)) return *estado;
  tasca::Application aplicacion{argc, argv};
  // Application has removed the toolkit's own options.
  if (const auto estado = tasca::RefuseOptions(Programa, argc, argv)) return *estado;
  if (tasca::Operands(Programa, argc, argv).size() > 1) return tasca::UsageError(Programa);
  tasca::EditorProgram programa = Editor(argc, argv);
  return aplicacion.Run([&programa] { programa.Open(); }, programa.AtSessionEnd());
}
