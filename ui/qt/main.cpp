// tasca: the game in windows.
#include "ui/program_folder.h"
#include "ui/qt/application.h"
#include "ui/qt/program.h"

int main(int argc, char** argv) {
  tasca::Application aplicacion{argc, argv};
  tasca::Program programa{tasca::ProgramFolder(argv[0])};
  return aplicacion.Run([&programa] { programa.OpenDlgInicio(); }, programa.AtSessionEnd());
}
