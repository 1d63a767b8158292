// Numbers the sounds, and hears from tasca-sound which of them has ended.
#include "ui/loudspeaker/media_player.h"

#include <optional>
#include <system_error>
#include <utility>

#include "ui/loudspeaker/order.h"

namespace tasca {
namespace {

constexpr const char* Programa = "tasca-sound";

}  // namespace

void MediaPlayer::Open(const std::filesystem::path& carpeta, std::u16string_view archivo,
                       const MediaPlayerSettings& ajustes) {
  ++numero_;
  pendiente_ = true;
  const std::string orden =
      ToPacket({.Numero = numero_, .Ajustes = ajustes, .Archivo = FileOf(carpeta, archivo)});
  const std::filesystem::path programa =
      lugares_.Program.empty() ? carpeta / Programa : lugares_.Program;
  if (encendido_ && (conexion_.Send(orden) || (conexion_.Start(programa) && conexion_.Send(orden))))
    return;
  conexion_.HangUp();
}

void MediaPlayer::Stop() {
  ++numero_;
  pendiente_ = false;
  conexion_.Send(ToPacket({.Numero = numero_, .Ajustes = {.Veces = 0}, .Archivo = {}}));
}

void MediaPlayer::TurnOn(bool encendido) {
  if (std::exchange(encendido_, encendido) == encendido || encendido) return;
  if (pendiente_) return conexion_.HangUp();
  conexion_.Close();
}

bool MediaPlayer::TakeEnd() {
  const bool hubo = pendiente_;
  while (const std::optional<std::string> paquete = conexion_.Receive()) Hear(*paquete);
  return hubo && !pendiente_;
}

std::filesystem::path MediaPlayer::FileOf(const std::filesystem::path& carpeta,
                                          std::u16string_view archivo) const {
  std::error_code error;
  const bool esta = lugares_.Shipped.empty() || std::filesystem::exists(carpeta / archivo, error);
  return (esta ? carpeta : lugares_.Shipped) / archivo;
}

// An empty packet means that the connection has been closed.
void MediaPlayer::Hear(std::string_view paquete) {
  if (paquete.empty() || paquete == std::to_string(numero_)) pendiente_ = false;
  if (paquete.empty() || (paquete == SonidoOcioso && !pendiente_)) conexion_.Close();
}

}  // namespace tasca
