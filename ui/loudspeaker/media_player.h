#pragma once
// The media player Mp1 as a face holds it: it opens files and says when one has ended. The playing
// is done by tasca-sound, a program in the game's folder, which starts with the first sound and is
// let go when it has been quiet for a while. Nothing here waits, and no thread is involved: a face
// watches a descriptor beside its other events.
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
  // What still plays is cut off.
  ~MediaPlayer();

  // Plays a file of `carpeta` in place of the one playing. One that cannot be heard, for whatever
  // reason, ends at once.
  void Open(const std::filesystem::path& carpeta, std::u16string_view archivo,
            const MediaPlayerSettings& ajustes);
  // Stops what plays; its end is not reported.
  void Stop();

  // Sound off: what plays ends, and so does at once whatever is opened later.
  void TurnOn(bool encendido);
  bool IsOn() const { return encendido_; }

  // Readable when something has happened: TakeEnd is to be called then.
  int Descriptor() const { return vigia_; }
  // Whether the sound opened last has ended; says so once. Never right inside Open.
  bool TakeEnd();

 private:
  bool Start(const std::filesystem::path& programa);
  void EndSoon();
  // A new connection; gives its other end.
  int Connect();
  void Disconnect();
  bool Send(const std::string& paquete) const;
  void Hear(std::string_view paquete);

  int vigia_ = -1;     // watches the connection, whichever it is
  int conexion_ = -1;  // to tasca-sound, or to nobody when there is but an end to report
  pid_t proceso_ = 0;
  int numero_ = 0;
  bool pendiente_ = false;
  bool encendido_ = true;
};

}  // namespace tasca
