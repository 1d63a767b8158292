// The checksum, and where it stands.
#include "keep/sello.h"

#include <cstdint>

namespace tasca {
namespace {

constexpr std::size_t LargoSuma = 8;

// The FNV-1a hash, least significant byte first. Any change of a single byte changes it.
std::string SumaDe(std::string_view bytes) {
  constexpr std::uint64_t Primo = 0x100000001b3;
  std::uint64_t suma = 0xcbf29ce484222325;
  for (const char byte : bytes) suma = (suma ^ static_cast<unsigned char>(byte)) * Primo;
  std::string texto;
  for (std::size_t i = 0; i < LargoSuma; ++i, suma >>= 8U) {
    texto += static_cast<char>(static_cast<unsigned char>(suma & 0xFFU));
  }
  return texto;
}

}  // namespace

std::string Sellar(std::string_view cabecera, std::string_view valores) {
  std::string bytes{cabecera};
  return bytes.append(SumaDe(valores)).append(valores);
}

std::optional<std::string_view> Abrir(std::string_view cabecera, std::string_view bytes) {
  if (!bytes.starts_with(cabecera)) return std::nullopt;
  const std::string_view suma = SumaSellada(cabecera, bytes);
  bytes.remove_prefix(cabecera.size() + suma.size());
  if (SumaDe(bytes) != suma) return std::nullopt;
  return bytes;
}

std::string_view SumaSellada(std::string_view cabecera, std::string_view bytes) {
  return bytes.substr(0, cabecera.size() + LargoSuma).substr(cabecera.size());
}

}  // namespace tasca
