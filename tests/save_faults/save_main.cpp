// save-once FOLDER NAME: saves a cast of one character, between two system calls that nothing else
// makes, so that a tracer can tell the save's calls from those of starting and ending.
#include <unistd.h>

#include <exception>
#include <iostream>
#include <memory>

#include "base/code_page.h"
#include "base/endings.h"
#include "characters/character_file.h"
#include "ui/utf8.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const auto mesa = std::make_unique<tasca::Table>();
  mesa->Carpeta = argv[1];
  mesa->Personajes[1].Nombre = tasca::Decode(argv[2]);
  try {
    static_cast<void>(::getppid());
    tasca::EscribirPersonajes(*mesa, 1);
    static_cast<void>(::getppid());
    return 0;
  } catch (const tasca::RunTimeError& error) {
    std::cout << tasca::ToUtf8(error.Message());
  } catch (const std::exception& error) {
    std::cout << error.what();
  }
  return 1;
}
