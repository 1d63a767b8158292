// Playback through SDL_mixer.
#include "ui/loudspeaker/loudspeaker.h"

#include <SDL.h>

#include <span>
#include <system_error>

namespace tasca {
namespace {

constexpr int Frecuencia = 44100;
constexpr int Lados = 2;
constexpr int Canal = 0;

// Whether it is a regular file of a plausible size. Checks the type first: devices and pipes have
// no end, and file_size() of them is implementation-defined.
bool MayHoldSound(const std::filesystem::path& archivo) {
  constexpr std::uintmax_t maximo = 16'000'000;
  std::error_code error;
  if (!std::filesystem::is_regular_file(archivo, error)) return false;
  const std::uintmax_t bytes = std::filesystem::file_size(archivo, error);
  return !error && bytes > 0 && bytes <= maximo;
}

// The device is opened with this format only, so every chunk holds interleaved 16-bit stereo.
std::span<std::int16_t> Samples(const Mix_Chunk& sonido) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): SDL hands out bytes.
  return {reinterpret_cast<std::int16_t*>(sonido.abuf), sonido.alen / sizeof(std::int16_t)};
}

std::chrono::milliseconds Duration(const Mix_Chunk& sonido, int veces) {
  const auto pares = static_cast<std::int64_t>(Samples(sonido).size()) / Lados;
  return std::chrono::milliseconds{pares * veces * 1000 / Frecuencia};
}

}  // namespace

bool Loudspeaker::Open() {
  if (abierto_) return true;
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  constexpr int muestrasDeUnaVez = 1024;
  if (Mix_OpenAudioDevice(Frecuencia, AUDIO_S16SYS, Lados, muestrasDeUnaVez, nullptr, 0) != 0) {
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  abierto_ = true;
  Mix_AllocateChannels(Canal + 1);
  return true;
}

bool Loudspeaker::Play(const std::filesystem::path& archivo, int veces, const Gains& factores) {
  Stop();
  if (veces <= 0 || !MayHoldSound(archivo) || !Open()) return false;
  sonido_.reset(Mix_LoadWAV(archivo.c_str()));
  if (!sonido_) return false;
  Scale(Samples(*sonido_), factores);
  if (Mix_PlayChannel(Canal, sonido_.get(), veces - 1) != Canal) return false;
  constexpr std::chrono::seconds demora{3};
  limite_ = std::chrono::steady_clock::now() + Duration(*sonido_, veces) + demora;
  return true;
}

bool Loudspeaker::Playing() {
  if (!sonido_) return false;
  if (Mix_Playing(Canal) == 0) {
    Stop();
  } else if (std::chrono::steady_clock::now() > limite_) {
    Close();
  }
  return sonido_ != nullptr;
}

void Loudspeaker::Stop() {
  if (abierto_) Mix_HaltChannel(Canal);
  sonido_.reset();
}

void Loudspeaker::Close() {
  if (!abierto_) return;
  Stop();
  Mix_CloseAudio();
  Mix_Quit();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  abierto_ = false;
}

}  // namespace tasca
