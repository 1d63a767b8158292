// Conversion with utfcpp, after invalid input has been replaced.
#include "ui/utf8.h"

#include <utf8.h>

#include <iterator>

namespace tasca {
namespace {

constexpr char32_t Sustituto = 0xFFFD;

bool IsHighSurrogate(char16_t letra) { return letra >= 0xD800 && letra <= 0xDBFF; }
bool IsLowSurrogate(char16_t letra) { return letra >= 0xDC00 && letra <= 0xDFFF; }

}  // namespace

std::string ToUtf8(std::u16string_view texto) {
  std::string bytes;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    char32_t letra = texto[i];
    const bool esPar =
        IsHighSurrogate(texto[i]) && i + 1 < texto.size() && IsLowSurrogate(texto[i + 1]);
    if (esPar) {
      letra = 0x10000U + ((letra - 0xD800U) << 10U) + (texto[++i] - 0xDC00U);
    } else if (IsHighSurrogate(texto[i]) || IsLowSurrogate(texto[i])) {
      letra = Sustituto;
    }
    utf8::append(letra, std::back_inserter(bytes));
  }
  return bytes;
}

std::u16string FromUtf8(std::string_view bytes) {
  std::string valido;
  utf8::replace_invalid(bytes.begin(), bytes.end(), std::back_inserter(valido), Sustituto);
  std::u16string texto;
  utf8::utf8to16(valido.begin(), valido.end(), std::back_inserter(texto));
  return texto;
}

}  // namespace tasca
