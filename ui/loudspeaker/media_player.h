#pragma once
// The media player Mp1: opens sound files and reports when one has ended. Playback runs in the
// program tasca-sound in the game's folder, which is started by the first sound and ended after
// some seconds without one. No call blocks and no thread is used: the event loop of the window or
// the terminal watches a file descriptor.
#include <filesystem>
#include <string>
#include <string_view>

#include "table/table.h"
#include "ui/loudspeaker/connection.h"

namespace tasca {

class MediaPlayer {
 public:
  // Plays a file of `carpeta` and replaces the current one. If it cannot be played for any reason,
  // its end is reported at once.
  void Open(const std::filesystem::path& carpeta, std::u16string_view archivo,
            const MediaPlayerSettings& ajustes);
  // Stops the current sound without reporting its end.
  void Stop();

  // Switches the sound off or on. Off ends the current sound; files opened while it is off end at
  // once. Both ends are reported.
  void TurnOn(bool encendido);
  bool IsOn() const { return encendido_; }

  // For the event loop. Call TakeEnd when it becomes readable.
  int Descriptor() const { return conexion_.Descriptor(); }
  // True once after the last opened sound has ended. Open itself never reports an end.
  bool TakeEnd();

 private:
  void Hear(std::string_view paquete);

  Connection conexion_;     // cuts off a sound that is still playing when it closes
  int numero_ = 0;          // of the last order
  bool pendiente_ = false;  // its end has not been reported yet
  bool encendido_ = true;
};

}  // namespace tasca
