// Word wrap of UTF-8 text.
#include "ui/terminal/wrap.h"

#include <algorithm>

namespace tasca {
namespace {

// Counts code points: every byte that is no UTF-8 continuation byte.
std::size_t Characters(std::string_view texto) {
  return static_cast<std::size_t>(std::count_if(texto.begin(), texto.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

// Removes the first `fin` bytes (npos for all) from the front of the text and returns them.
std::string_view TakeUntil(std::string_view& texto, std::size_t fin) {
  const std::string_view parte = texto.substr(0, fin);
  texto.remove_prefix(parte.size());
  return parte;
}

std::string WrapLine(std::string_view linea, std::size_t ancho) {
  std::string partida;
  std::size_t columna = 0;
  while (!linea.empty()) {
    const std::string_view blancos = TakeUntil(linea, linea.find_first_not_of(' '));
    const std::string_view palabra = TakeUntil(linea, linea.find(' '));
    const std::size_t letras = Characters(palabra);
    if (columna > 0 && columna + blancos.size() + letras > ancho) {
      if (palabra.empty()) break;
      partida += '\n';
      columna = 0;
    } else {
      partida += blancos;
      columna += blancos.size();
    }
    partida += palabra;
    columna += letras;
  }
  return partida;
}

}  // namespace

std::string Wrap(std::string_view texto, std::size_t ancho) {
  if (ancho == 0) return std::string{texto};
  std::string partido;
  for (;;) {
    partido += WrapLine(TakeUntil(texto, texto.find('\n')), ancho);
    if (texto.empty()) return partido;
    partido += '\n';
    texto.remove_prefix(1);
  }
}

}  // namespace tasca
