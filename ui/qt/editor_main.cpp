// tasca-editor: the editor of the character file.
#include "ui/program_folder.h"
#include "ui/qt/application.h"
#include "ui/qt/editor_program.h"

int main(int argc, char** argv) {
  tasca::Application aplicacion{argc, argv};
  tasca::EditorProgram programa{tasca::ProgramFolder(argv[0])};
  return aplicacion.Run([&programa] { programa.Open(); }, programa.AtSessionEnd());
}
