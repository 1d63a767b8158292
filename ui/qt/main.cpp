// tasca: the game in windows.
#include "ui/qt/application.h"
#include "ui/qt/program.h"

int main(int argc, char** argv) {
  const tasca::Application aplicacion{argc, argv};
  tasca::Program programa{tasca::Application::Carpeta()};
  return tasca::Application::Run([&programa] { programa.OpenDlgInicio(); });
}
