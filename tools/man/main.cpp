// tasca-man HEAD PAGE CHAPTER...: writes a manual page: the file HEAD, in roff, and after it
// chapters of the manual by their numbers, from 0.
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tools/man/roff.h"
#include "ui/manual/card_reference.h"
#include "ui/manual/chapters.h"
#include "ui/manual/markup.h"

namespace {

std::string Content(const char* archivo) {
  std::ifstream flujo{archivo, std::ios::binary};
  std::string texto{std::istreambuf_iterator<char>{flujo}, {}};
  if (!flujo || texto.empty()) throw std::runtime_error{std::string{archivo} + " cannot be read"};
  return texto;
}

// The cards of a hand are named anyway.
std::string InWords(std::string_view referencia) {
  if (referencia.starts_with("mano:")) return {};
  return tasca::CardsInWords(tasca::CardsOfReference(referencia));
}

std::string Chapter(const std::string& numero) {
  const auto capitulos = tasca::ManualChapters();
  const std::size_t n = std::stoul(numero);
  if (n >= capitulos.size()) throw std::runtime_error{"there is no chapter " + numero};
  return tasca::RoffOf(tasca::ChapterMarkdown(capitulos[n], InWords));
}

}  // namespace

int main(int argc, char** argv) {
  const std::span<char*> argumentos{argv, static_cast<std::size_t>(argc)};
  if (argc < 3) {
    std::cerr << "usage: tasca-man HEAD PAGE CHAPTER...\n";
    return 2;
  }
  try {
    std::string pagina = Content(argumentos[1]);
    for (const char* const numero : argumentos.subspan(3)) pagina += Chapter(numero);
    std::ofstream archivo{argumentos[2], std::ios::binary};
    archivo << pagina << std::flush;
    if (archivo) return 0;
    std::cerr << "tasca-man: " << argumentos[2] << " cannot be written\n";
  } catch (const std::exception& error) {
    std::cerr << "tasca-man: " << error.what() << '\n';
  }
  return 1;
}
