#pragma once
// What the game says to tasca-sound, and what it hears back, one packet each.
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca {

// Plays a file in place of what is playing; no times only stops. The answer, once it has ended or
// could not be played, is the number of the order as text.
struct SoundOrder {
  int Numero = 0;
  MediaPlayerSettings Ajustes;
  std::filesystem::path Archivo;
};

// Said by tasca-sound when it has been quiet for a while and the device is closed: it may be let
// go.
inline constexpr std::string_view SonidoOcioso = "idle";

// "12 1 300 -500 /folder/file": number, times, balance, volume, file.
std::string ToPacket(const SoundOrder& orden);
// Nothing when the packet is none of these.
std::optional<SoundOrder> FromPacket(std::string_view paquete);

}  // namespace tasca
