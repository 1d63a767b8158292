// tasca-editor: the editor of the character file.
#include "ui/options.h"
#include "ui/program_folder.h"
#include "ui/qt/application.h"
#include "ui/qt/editor_program.h"

namespace {

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-editor",
    .Usage = "",
    .About = "Abre el editor de los personajes de la tasca y de sus frases.\n"};

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::AnswerOptions(Programa, argc, argv)) return *estado;
  tasca::Application aplicacion{argc, argv};
  // Application has removed the toolkit's own options.
  if (const auto estado = tasca::RefuseOptions(Programa, argc, argv)) return *estado;
  tasca::EditorProgram programa{tasca::ProgramFolder(argv[0])};
  return aplicacion.Run([&programa] { programa.Open(); }, programa.AtSessionEnd());
}
