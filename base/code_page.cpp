// The conversion table: Windows-1252 equals Latin-1 except for the 32 codes 80 to 9F.
#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tasca {
namespace {

constexpr unsigned PrimerCodigo = 0x80;

constexpr std::array<char16_t, 32> Codigos80a9F{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> EncodeUnit(char16_t letra) {
  if (letra < PrimerCodigo || (letra >= 0xA0 && letra <= 0xFF)) return static_cast<char>(letra);
  const auto* const en = std::find(Codigos80a9F.begin(), Codigos80a9F.end(), letra);
  if (en == Codigos80a9F.end()) return std::nullopt;
  return static_cast<char>(PrimerCodigo + static_cast<unsigned>(en - Codigos80a9F.begin()));
}

}  // namespace

char16_t DecodeByte(unsigned char byte) {
  if (byte < PrimerCodigo || byte >= PrimerCodigo + Codigos80a9F.size()) return byte;
  return Codigos80a9F[byte - PrimerCodigo];
}

std::u16string Decode(std::string_view bytes) {
  std::u16string texto(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), texto.begin(),
                 [](char byte) { return DecodeByte(static_cast<unsigned char>(byte)); });
  return texto;
}

bool InCodePage(char16_t letra) { return EncodeUnit(letra).has_value(); }

std::string Encode(std::u16string_view texto) {
  std::string bytes;
  bytes.reserve(texto.size());
  for (const char16_t letra : texto) bytes += EncodeUnit(letra).value_or('?');
  return bytes;
}

}  // namespace tasca
