// tasca-manual FILE: writes the manual as one Markdown document, with the pictures of art/cards/.
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "ui/manual/card_reference.h"
#include "ui/manual/markup.h"

namespace {

// Pictures beside each other, seen from docs/.
std::string FilesOf(std::string_view referencia) {
  std::string dibujos;
  for (const int carta : tasca::CardsOfReference(referencia)) {
    if (!dibujos.empty()) dibujos += ' ';
    dibujos += R"(<img src="../art/cards/)" + tasca::NameOfCard(carta) + R"(.svg" alt=")" +
               tasca::CardsInWords({carta}) + R"(" height="92">)";
  }
  return dibujos;
}

constexpr std::string_view Header =
    "<!-- Generated from data/manual: cmake --build --preset release --target manual -->\n\n";

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: tasca-manual MANUAL.MD\n";
    return 2;
  }
  try {
    std::ofstream archivo{argv[1], std::ios::binary};
    archivo << Header << tasca::ManualMarkdown(FilesOf) << std::flush;
    if (archivo) return 0;
    std::cerr << "tasca-manual: " << argv[1] << " cannot be written\n";
  } catch (const std::exception& error) {
    std::cerr << "tasca-manual: " << error.what() << '\n';
  }
  return 1;
}
