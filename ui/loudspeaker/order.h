#pragma once
// The protocol between the game and tasca-sound: one packet a message.
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca {

// Stops the current sound and plays a file; with Ajustes.Veces 0 it only stops. tasca-sound answers
// with Numero as decimal text when the sound has ended or could not be played.
struct SoundOrder {
  int Numero = 0;
  MediaPlayerSettings Ajustes;
  std::filesystem::path Archivo;
};

// Sent by tasca-sound when it has closed the device after some seconds without a sound. The game
// may end it then.
inline constexpr std::string_view SonidoOcioso = "idle";

// Formats an order as "12 1 300 -500 /folder/file": number, times, balance, volume, path.
std::string ToPacket(const SoundOrder& orden);
// Parses an order. Nothing if the packet has another format.
std::optional<SoundOrder> FromPacket(std::string_view paquete);

}  // namespace tasca
