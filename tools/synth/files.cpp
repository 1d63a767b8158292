// WAV and MP3 encoding.
#include "tools/synth/files.h"

#include <lame/lame.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <vector>

namespace tasca::synth {
namespace {

using Samples = std::vector<std::int16_t>;

Samples Rounded(const Clip& clip) {
  constexpr double maximo = 32767;
  Samples muestras;
  muestras.reserve(clip.size());
  for (const double muestra : clip) {
    muestras.push_back(static_cast<std::int16_t>(std::lround(muestra * maximo)));
  }
  return muestras;
}

// Appends a number in little-endian order.
void AddNumber(std::string& bytes, std::uint32_t numero, int cuantos) {
  for (int i = 0; i < cuantos; ++i) bytes += static_cast<char>(numero >> (8 * i) & 0xFFU);
}

using Encoder = std::unique_ptr<lame_global_flags, decltype(&lame_close)>;

Encoder NewEncoder() {
  constexpr int kilobitsPorSegundo = 128;
  constexpr int lenta = 0;
  Encoder codificador{lame_init(), &lame_close};
  lame_set_in_samplerate(codificador.get(), static_cast<int>(Frecuencia));
  lame_set_out_samplerate(codificador.get(), static_cast<int>(Frecuencia));
  lame_set_num_channels(codificador.get(), 1);
  lame_set_mode(codificador.get(), MONO);
  lame_set_brate(codificador.get(), kilobitsPorSegundo);
  lame_set_quality(codificador.get(), lenta);
  if (lame_init_params(codificador.get()) < 0) throw std::runtime_error{"no MP3 encoder"};
  return codificador;
}

}  // namespace

std::string ToWav(const Clip& clip) {
  constexpr std::uint32_t cabecera = 36;
  constexpr auto hercios = static_cast<std::uint32_t>(Frecuencia);
  const Samples muestras = Rounded(clip);
  const auto largo = static_cast<std::uint32_t>(2 * muestras.size());
  std::string bytes = "RIFF";
  AddNumber(bytes, cabecera + largo, 4);
  bytes += "WAVEfmt ";
  AddNumber(bytes, 16, 4);  // size of the format chunk
  AddNumber(bytes, 1, 2);   // PCM
  AddNumber(bytes, 1, 2);   // channels
  AddNumber(bytes, hercios, 4);
  AddNumber(bytes, 2 * hercios, 4);  // bytes a second
  AddNumber(bytes, 2, 2);            // bytes a sample
  AddNumber(bytes, 16, 2);           // bits a sample
  bytes += "data";
  AddNumber(bytes, largo, 4);
  for (const std::int16_t muestra : muestras) {
    AddNumber(bytes, static_cast<std::uint16_t>(muestra), 2);
  }
  return bytes;
}

std::string ToMp3(const Clip& clip) {
  const Encoder codificador = NewEncoder();
  const Samples muestras = Rounded(clip);
  std::vector<unsigned char> bytes(2 * muestras.size() + 16384);
  const auto hueco = static_cast<int>(bytes.size());
  const int cuerpo = lame_encode_buffer(codificador.get(), muestras.data(), nullptr,
                                        static_cast<int>(muestras.size()), bytes.data(), hueco);
  if (cuerpo < 0) throw std::runtime_error{"the MP3 encoder failed"};
  const int final = lame_encode_flush(codificador.get(), bytes.data() + cuerpo, hueco - cuerpo);
  std::string archivo{bytes.begin(), bytes.begin() + cuerpo + final};
  // The LAME tag replaces the first frame. Players read the encoder's padding from it.
  std::vector<unsigned char> etiqueta(archivo.size());
  const std::size_t largo =
      lame_get_lametag_frame(codificador.get(), etiqueta.data(), etiqueta.size());
  return archivo.replace(0, largo, {etiqueta.begin(), etiqueta.begin() + static_cast<long>(largo)});
}

}  // namespace tasca::synth
