#pragma once
// Plays one sound at a time through SDL_mixer. The first sound opens the audio device, which stays
// open until Close. Without a device every sound fails at once.
#include <SDL_mixer.h>

#include <chrono>
#include <filesystem>
#include <memory>

#include "ui/loudspeaker/gains.h"

namespace tasca {

class Loudspeaker {
 public:
  Loudspeaker() = default;
  Loudspeaker(const Loudspeaker&) = delete;
  Loudspeaker& operator=(const Loudspeaker&) = delete;
  ~Loudspeaker() { Close(); }

  // Stops the current sound and plays a WAV or MP3 file `veces` times. Returns false if nothing is
  // played: `veces` is not positive, the file is missing, too large or no sound, or there is no
  // device.
  bool Play(const std::filesystem::path& archivo, int veces, const Gains& factores);
  // Whether the last sound is still playing. Closes the device if it takes longer than the sound's
  // duration plus three seconds, because it has stopped consuming samples then.
  bool Playing();
  // Stops the sound and closes the device. The next Play opens it again.
  void Close();

 private:
  struct FreeChunk {
    void operator()(Mix_Chunk* sonido) const { Mix_FreeChunk(sonido); }
  };

  bool Open();
  void Stop();

  bool abierto_ = false;
  std::unique_ptr<Mix_Chunk, FreeChunk> sonido_;
  std::chrono::steady_clock::time_point limite_;  // when the sound should have ended
};

}  // namespace tasca
