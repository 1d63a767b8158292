#pragma once
// The media player Mp1: opens sound files and reports when one has ended. Playback runs in the
// program tasca-sound, which is started by the first sound and ended after some seconds without
// one. No call blocks and no thread is used: the event loop of the window or
// the terminal watches a file descriptor.
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "table/table.h"
#include "ui/loudspeaker/connection.h"

namespace tasca {

// Where the program and the sounds of the game are. An empty path means the folder of the sound.
struct SoundPlaces {
  std::filesystem::path Program;  // the file tasca-sound
  std::filesystem::path Shipped;  // the folder of the sounds that the folder of a sound lacks
};

class MediaPlayer {
 public:
  void Use(SoundPlaces lugares) { lugares_ = std::move(lugares); }

  // Plays a file of `carpeta`, or else the one shipped under its name, and replaces the current
  // one. If it cannot be played for any reason, its end is reported at once.
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
  std::filesystem::path FileOf(const std::filesystem::path& carpeta,
                               std::u16string_view archivo) const;

  SoundPlaces lugares_;
  Connection conexion_;     // cuts off a sound that is still playing when it closes
  int numero_ = 0;          // of the last order
  bool pendiente_ = false;  // its end has not been reported yet
  bool encendido_ = true;
};

}  // namespace tasca
