#pragma once
// The media player Mp1: opens sound files and reports when one has ended. Playback runs in the
// program tasca-sound in the game's folder, which is started by the first sound and ended after
// some seconds without one. No call blocks and no thread is used: the event loop of the window or
// the terminal watches a file descriptor.
#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca {

class MediaPlayer {
 public:
  MediaPlayer();
  MediaPlayer(const MediaPlayer&) = delete;
  MediaPlayer& operator=(const MediaPlayer&) = delete;
  // Cuts off a sound that is still playing.
  ~MediaPlayer();

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

  // An epoll descriptor. Call TakeEnd when it becomes readable.
  int Descriptor() const { return vigia_; }
  // True once after the last opened sound has ended. Open itself never reports an end.
  bool TakeEnd();

 private:
  bool Start(const std::filesystem::path& programa);
  // Makes TakeEnd report the end of the current sound.
  void EndSoon();
  // Opens a new socket pair and returns the program's end of it, or -1.
  int Connect();
  void Disconnect();
  bool Send(const std::string& paquete) const;
  void Hear(std::string_view paquete);

  int vigia_ = -1;          // epoll descriptor that watches conexion_
  int conexion_ = -1;       // our end of the socket pair
  pid_t proceso_ = 0;       // tasca-sound, 0 for none
  int numero_ = 0;          // of the last order
  bool pendiente_ = false;  // its end has not been reported yet
  bool encendido_ = true;
};

}  // namespace tasca
