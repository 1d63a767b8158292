// save-once characters|settings FOLDER NAME: saves a cast of one character, or the last player's
// name, between two system calls that nothing else makes, so that a tracer can tell the save's
// calls from those of starting and ending.
#include <unistd.h>

#include <exception>
#include <iostream>
#include <memory>
#include <string_view>

#include "base/code_page.h"
#include "base/endings.h"
#include "characters/character_file.h"
#include "startup/settings.h"
#include "ui/utf8.h"

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const bool ajustes = argv[1] == std::string_view{"settings"};
  const auto mesa = std::make_unique<tasca::Table>();
  mesa->Carpeta = argv[2];
  const std::u16string nombre = tasca::Decode(argv[3]);
  mesa->Personajes[1].Nombre = nombre;
  try {
    // A sanitizer makes system calls of its own when it meets a type of stream for the first time:
    // that must be before the save.
    if (ajustes) static_cast<void>(tasca::LeerIni(*mesa));
    static_cast<void>(::getppid());
    if (ajustes) {
      tasca::GuardarIni(*mesa, nombre);
    } else {
      tasca::EscribirPersonajes(*mesa, 1);
    }
    static_cast<void>(::getppid());
    return 0;
  } catch (const tasca::RunTimeError& error) {
    std::cout << tasca::ToUtf8(error.Message());
  } catch (const std::exception& error) {
    std::cout << error.what();
  }
  return 1;
}
