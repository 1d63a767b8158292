// Formatting and parsing of orders.
#include "ui/loudspeaker/order.h"

#include <charconv>
#include <cstdint>

namespace tasca {
namespace {

// Removes a number and the following blank from the front. False if there is none.
template <class Number>
bool TakeNumber(std::string_view& texto, Number& numero) {
  const auto leido = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
  if (leido.ec != std::errc{}) return false;
  texto.remove_prefix(static_cast<std::size_t>(leido.ptr - texto.data()));
  if (!texto.starts_with(' ')) return false;
  texto.remove_prefix(1);
  return true;
}

}  // namespace

std::string ToPacket(const SoundOrder& orden) {
  std::string paquete;
  for (const int numero :
       {orden.Numero, static_cast<int>(orden.Ajustes.Veces),
        static_cast<int>(orden.Ajustes.Balance), static_cast<int>(orden.Ajustes.Volumen)}) {
    paquete += std::to_string(numero) + ' ';
  }
  return paquete + orden.Archivo.native();
}

std::optional<SoundOrder> FromPacket(std::string_view paquete) {
  int numero = 0;
  std::int16_t veces = 0;
  std::int16_t balance = 0;
  std::int16_t volumen = 0;
  const bool completa = TakeNumber(paquete, numero) && TakeNumber(paquete, veces) &&
                        TakeNumber(paquete, balance) && TakeNumber(paquete, volumen);
  if (!completa) return std::nullopt;
  return SoundOrder{.Numero = numero,
                    .Ajustes = {.Veces = veces, .Balance = balance, .Volumen = volumen},
                    .Archivo = paquete};
}

}  // namespace tasca
