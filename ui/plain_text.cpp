// Replaces control characters and removes padding.
#include "ui/plain_text.h"

#include <algorithm>

#include "base/text.h"
#include "ui/utf8.h"

namespace tasca {
namespace {

constexpr std::u16string_view Saltos = u"\r\n";

// Shortens the padding of fixed-width fields.
std::u16string WithoutPadding(std::u16string_view texto) {
  constexpr std::size_t Relleno = 3;
  std::u16string breve;
  while (!texto.empty()) {
    const std::size_t blancos = std::min(texto.find_first_not_of(u' '), texto.size());
    texto.remove_prefix(blancos);
    const bool sobra = texto.empty() || Contains(u",.\r\n", texto.substr(0, 1));
    if (blancos < Relleno) {
      breve.append(blancos, u' ');
    } else if (!sobra) {
      breve += u' ';
    }
    const std::size_t letras = std::min(texto.find(u' '), texto.size());
    breve += texto.substr(0, letras);
    texto.remove_prefix(letras);
  }
  return breve;
}

}  // namespace

std::string PlainText(std::u16string_view texto) {
  constexpr char16_t Sustituto = 0xFFFD;
  const std::u16string breve = WithoutPadding(texto);
  std::u16string_view resto = breve;
  std::u16string limpio;
  while (!resto.empty()) {
    const std::size_t salto = LeadingBreak(resto);
    if (salto > 0) {
      limpio += u'\n';
    } else {
      limpio += IsControl(resto.front()) ? Sustituto : resto.front();
    }
    resto.remove_prefix(salto > 0 ? salto : 1);
  }
  return ToUtf8(limpio);
}

std::string PlainLine(std::u16string_view texto) {
  constexpr std::u16string_view Sustituto = u"\uFFFD";
  return PlainText(ReplaceAll(ReplaceAll(texto, u"\r", Sustituto), u"\n", Sustituto));
}

std::size_t LeadingBreak(std::u16string_view texto) {
  if (texto.starts_with(Saltos)) return 2;
  return !texto.empty() && Saltos.find(texto.front()) != std::u16string_view::npos ? 1 : 0;
}

std::u16string_view WholeLines(std::u16string_view texto) {
  const std::size_t ultimo = texto.find_last_of(Saltos);
  return ultimo == std::u16string_view::npos ? u"" : texto.substr(0, ultimo + 1);
}

}  // namespace tasca
