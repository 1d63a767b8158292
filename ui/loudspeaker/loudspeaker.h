#pragma once
// The loudspeaker, over SDL_mixer: one sound at a time. The device is opened for the first sound
// and stays open until it is closed; where there is none, nothing is heard.
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

  // Plays a WAV or MP3 file `veces` times in place of what is playing. False when nothing is heard:
  // no times, no such file, one that holds no sound, or no device.
  bool Play(const std::filesystem::path& archivo, int veces, const Gains& factores);
  // Whether the last sound still plays. A device that has taken no samples for long is closed.
  bool Playing();
  void Close();

 private:
  struct FreeChunk {
    void operator()(Mix_Chunk* sonido) const { Mix_FreeChunk(sonido); }
  };

  bool Open();
  void Stop();

  bool abierto_ = false;
  std::unique_ptr<Mix_Chunk, FreeChunk> sonido_;
  std::chrono::steady_clock::time_point limite_;
};

}  // namespace tasca
