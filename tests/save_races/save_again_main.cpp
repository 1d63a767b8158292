// save-again FOLDER NUMBER: repeatedly saves that writer's name and characters until it is killed.
// Prints a dot after each round. If a save fails, prints the error and ends.
#include <charconv>
#include <exception>
#include <iostream>
#include <memory>
#include <string_view>

#include "base/errors.h"
#include "characters/character_file.h"
#include "startup/settings.h"
#include "tests/save_races/writers_text.h"
#include "ui/utf8.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::string_view cifras = argv[2];
  int numero = 0;
  std::from_chars(cifras.data(), cifras.data() + cifras.size(), numero);
  try {
    const auto mesa = std::make_unique<tasca::Table>();
    mesa->Carpeta = argv[1];
    const int personajes = tasca::test::FillCast(*mesa, numero);
    while (std::cout) {
      tasca::GuardarIni(*mesa, tasca::test::WritersName(numero));
      tasca::EscribirPersonajes(*mesa, personajes);
      std::cout << '.' << std::flush;
    }
  } catch (const tasca::RunTimeError& error) {
    std::cout << tasca::ToUtf8(error.Message()) << std::flush;
  } catch (const std::exception& error) {
    std::cout << error.what() << std::flush;
  }
  return 1;
}
