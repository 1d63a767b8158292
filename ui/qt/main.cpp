// tasca: the game in windows.
#include "ui/program_folder.h"
#include "ui/qt/application.h"
#include "ui/qt/program.h"

int main(int argc, char** argv) {
  const tasca::Application aplicacion{argc, argv};
  tasca::Program programa{tasca::ProgramFolder(argv[0])};
  return tasca::Application::Run([&programa] { programa.OpenDlgInicio(); });
}
