// Cutting texts into pieces.
#include "ui/manual/pieces.h"

#include <charconv>

#include "ui/utf8.h"

namespace tasca {
namespace {

// ASCII and Latin-1 only: no Spanish heading needs more.
char16_t LowerCase(char16_t letra) {
  const bool esMayuscula =
      (letra >= u'A' && letra <= u'Z') || (letra >= u'À' && letra <= u'Þ' && letra != u'×');
  return esMayuscula ? static_cast<char16_t>(letra + (u'a' - u'A')) : letra;
}

bool IsOfAWord(char16_t letra) {
  const bool esCifra = letra >= u'0' && letra <= u'9';
  return esCifra || letra == u'-' || (letra >= u'a' && letra <= u'z') || letra >= u'À';
}

}  // namespace

std::string_view WithoutBlanks(std::string_view texto) {
  const std::size_t desde = texto.find_first_not_of(' ');
  if (desde == std::string_view::npos) return {};
  return texto.substr(desde, texto.find_last_not_of(' ') - desde + 1);
}

std::vector<std::string_view> SplitAt(std::string_view texto, std::string_view separador) {
  std::vector<std::string_view> partes;
  for (;;) {
    const std::size_t fin = texto.find(separador);
    partes.push_back(WithoutBlanks(texto.substr(0, fin)));
    if (fin == std::string_view::npos) return partes;
    texto.remove_prefix(fin + separador.size());
  }
}

std::vector<std::string_view> LinesOf(std::string_view texto) {
  std::vector<std::string_view> lineas;
  while (!texto.empty()) {
    const std::size_t fin = texto.find('\n');
    lineas.push_back(texto.substr(0, fin));
    texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
  }
  return lineas;
}

std::optional<int> WholeNumber(std::string_view texto) {
  constexpr std::string_view menos = "−";
  const bool esNegativo = texto.starts_with(menos);
  if (esNegativo) texto.remove_prefix(menos.size());
  int numero = 0;
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
  if (error != std::errc{} || fin != texto.data() + texto.size()) return std::nullopt;
  return esNegativo ? -numero : numero;
}

std::optional<Heading> HeadingOf(std::string_view linea) {
  const std::size_t nivel = linea.find_first_not_of('#');
  if (nivel == 0 || nivel == std::string_view::npos || linea[nivel] != ' ') return std::nullopt;
  return Heading{static_cast<int>(nivel), WithoutBlanks(linea.substr(nivel))};
}

std::string AnchorOfTitle(std::string_view titulo) {
  std::u16string ancla;
  for (const char16_t letra : FromUtf8(titulo)) {
    const char16_t minuscula = LowerCase(letra);
    if (letra == u' ') {
      ancla += u'-';
    } else if (IsOfAWord(minuscula)) {
      ancla += minuscula;
    }
  }
  return ToUtf8(ancla);
}

}  // namespace tasca
