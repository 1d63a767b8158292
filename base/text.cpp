// Trimming, searching and replacing, comparison and number formatting.
#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tasca {

std::u16string_view TrimRight(std::u16string_view texto) {
  const std::size_t ultima = texto.find_last_not_of(u' ');
  return ultima == std::u16string_view::npos ? std::u16string_view{} : texto.substr(0, ultima + 1);
}

std::u16string_view Trim(std::u16string_view texto) {
  const std::u16string_view sinFinal = TrimRight(texto);
  const std::size_t primera = sinFinal.find_first_not_of(u' ');
  return primera == std::u16string_view::npos ? sinFinal : sinFinal.substr(primera);
}

std::u16string ReplaceAll(std::u16string_view texto, std::u16string_view buscado,
                          std::u16string_view nuevo) {
  std::u16string resultado;
  std::size_t desde = 0;
  for (std::size_t en = texto.find(buscado); en != std::u16string_view::npos;
       en = texto.find(buscado, desde)) {
    resultado += texto.substr(desde, en - desde);
    resultado += nuevo;
    desde = en + buscado.size();
  }
  resultado += texto.substr(desde);
  return resultado;
}

bool Contains(std::u16string_view texto, std::u16string_view buscado) {
  return texto.find(buscado) != std::u16string_view::npos;
}

std::u16string_view Before(std::u16string_view texto, char16_t letra) {
  return texto.substr(0, texto.find(letra));
}

bool EqualExactly(std::u16string_view uno, std::u16string_view otro) { return uno == otro; }

bool EqualIgnoringCase(std::u16string_view uno, std::u16string_view otro) {
  const auto minuscula = [](char16_t letra) {
    return letra >= u'A' && letra <= u'Z' ? static_cast<char16_t>(letra - u'A' + u'a') : letra;
  };
  return std::equal(
      uno.begin(), uno.end(), otro.begin(), otro.end(),
      [minuscula](char16_t una, char16_t otra) { return minuscula(una) == minuscula(otra); });
}

std::u16string ToText(int numero) {
  std::array<char, 16> cifras{};
  char* const fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), numero).ptr;
  return {cifras.data(), fin};
}

}  // namespace tasca
