// Decodes, records and recognises the sounds.
#include "tests/ui_loudspeaker/recording.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <numeric>
#include <optional>
#include <span>
#include <sstream>
#include <utility>

#include "tests/support/program_path.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 4> Archivos{"Son_BarajaCartas.mp3", "Son_ReparteCartas.mp3",
                                              "Son_DaUnaCarta.wav", "Son_aplauso.wav"};

using Samples = std::span<const double>;

struct Sides {
  std::vector<double> Izquierda;
  std::vector<double> Derecha;
};

char* Bytes(std::array<std::int16_t, 2>& par) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the recording is a file of bytes.
  return reinterpret_cast<char*>(par.data());
}

Sides Split(const std::string& bytes) {
  Sides lados;
  for (std::size_t i = 0; i + 3 < bytes.size(); i += 4) {
    std::array<std::int16_t, 2> par{};
    std::copy_n(bytes.data() + i, sizeof par, Bytes(par));
    lados.Izquierda.push_back(par[0]);
    lados.Derecha.push_back(par[1]);
  }
  return lados;
}

double Product(Samples uno, Samples otro) {
  return std::inner_product(uno.begin(), uno.end(), otro.begin(), 0.0);
}

// The gain between a sound and a stretch of the same length; nothing if they differ otherwise.
std::optional<double> FactorBetween(Samples sonido, Samples tramo) {
  const double factor = Product(sonido, tramo) / Product(sonido, sonido);
  const double energia = Product(tramo, tramo);
  const double resto = energia - factor * factor * Product(sonido, sonido);
  constexpr double redondeo = 0.34;  // the mean square rounding error of a sample
  const double permitido = 1e-3 * energia + redondeo * static_cast<double>(tramo.size());
  if (energia == 0 || resto > permitido) return std::nullopt;
  return factor;
}

std::size_t FirstSound(Samples muestras) {
  return static_cast<std::size_t>(
      std::find_if(muestras.begin(), muestras.end(), [](double m) { return m != 0; }) -
      muestras.begin());
}

// The number of samples for which the recording is `factor` times the sound.
std::size_t HeardLength(Samples sonido, Samples tramo, double factor) {
  std::size_t largo = 0;
  while (largo < std::min(sonido.size(), tramo.size()) &&
         std::abs(tramo[largo] - factor * sonido[largo]) <= 2) {
    ++largo;
  }
  return largo;
}

// Selects SDL's audio driver during its lifetime.
class Driver {
 public:
  explicit Driver(const char* nombre) {
    // NOLINTBEGIN(concurrency-mt-unsafe): before any thread is there.
    if (const char* const antes = std::getenv(Variable)) antes_ = antes;
    ::setenv(Variable, nombre, 1);
    // NOLINTEND(concurrency-mt-unsafe)
  }
  Driver(const Driver&) = delete;
  Driver& operator=(const Driver&) = delete;
  // NOLINTNEXTLINE(concurrency-mt-unsafe): when no thread is left.
  ~Driver() { ::setenv(Variable, antes_.c_str(), 1); }

 private:
  static constexpr const char* Variable = "SDL_AUDIODRIVER";
  std::string antes_;
};

// The gain in dB, rounded to 0.1. Adding 0.0 avoids -0.
double Decibels(double factor) { return std::round(200 * std::log10(factor)) / 10 + 0.0; }

struct Found {
  Heard Que;
  std::size_t Desde = 0;
};

// Compares the first tenth of a second of each channel with the sound, as each channel has its own
// gain.
std::optional<Found> FindAt(const Sides& lados, std::size_t desde, const std::string& archivo,
                            Samples sonido) {
  const std::size_t prueba = std::min<std::size_t>(sonido.size(), 4410);
  if (desde + prueba > lados.Izquierda.size()) return std::nullopt;
  const auto izquierda =
      FactorBetween(sonido.first(prueba), Samples{lados.Izquierda}.subspan(desde, prueba));
  const auto derecha =
      FactorBetween(sonido.first(prueba), Samples{lados.Derecha}.subspan(desde, prueba));
  if (!izquierda || !derecha) return std::nullopt;
  const std::size_t largo =
      HeardLength(sonido, Samples{lados.Izquierda}.subspan(desde), *izquierda);
  if (largo < prueba) return std::nullopt;
  return Found{.Que = {.Archivo = archivo,
                       .Segundos = static_cast<double>(largo) / Frecuencia,
                       .Izquierda = Decibels(*izquierda),
                       .Derecha = Decibels(*derecha)},
               .Desde = desde};
}

struct Sound {
  std::string Archivo;
  std::vector<double> Muestras;
};

std::vector<Sound> DecodeAll() {
  std::vector<Sound> sonidos;
  sonidos.reserve(Archivos.size());
  for (const char* const archivo : Archivos) {
    sonidos.push_back({archivo, Decoded(fs::path{TASCA_SOURCE_DIR} / "data" / archivo)});
  }
  return sonidos;
}

const std::vector<Sound>& AllSounds() {
  static const std::vector<Sound> sonidos = DecodeAll();
  return sonidos;
}

double WholeSeconds(const std::string& archivo) {
  const auto& sonidos = AllSounds();
  const auto sonido = std::find_if(sonidos.begin(), sonidos.end(),
                                   [&](const Sound& s) { return s.Archivo == archivo; });
  return static_cast<double>(sonido->Muestras.size()) / Frecuencia;
}

bool IsWhole(const Heard& oido) {
  return std::abs(oido.Segundos - WholeSeconds(oido.Archivo)) <= 0.001;
}

// The sound whose first audible sample is at `primera`. A softer sound starts a little earlier: its
// first samples are rounded to 0.
std::optional<Found> FindAround(const Sides& lados, std::size_t primera) {
  constexpr std::size_t masSuave = 400;
  for (const Sound& sonido : AllSounds()) {
    const std::size_t entrada = FirstSound(sonido.Muestras);
    for (std::size_t antes = entrada; antes <= entrada + masSuave && antes <= primera; ++antes) {
      if (auto visto = FindAt(lados, primera - antes, sonido.Archivo, sonido.Muestras)) {
        return visto;
      }
    }
  }
  return std::nullopt;
}

// The sounds of a recording, up to its end or to the first unknown sound.
struct Scanned {
  std::vector<Heard> Oidos;
  bool HayOtraCosa = false;
  double SegundosHasta = 0;       // the position of the end or of the unknown sound
  double SegundosDeSilencio = 0;  // before that position
};

Scanned Scan(const fs::path& grabacion) {
  std::ifstream archivo{grabacion, std::ios::binary};
  const Sides lados = Split({std::istreambuf_iterator<char>{archivo}, {}});
  const Samples ambos{lados.Izquierda};
  Scanned todo;
  std::size_t aqui = 0;
  for (;;) {
    const std::size_t silencio = FirstSound(ambos.subspan(aqui));
    aqui += silencio;
    todo.SegundosHasta = static_cast<double>(aqui) / Frecuencia;
    todo.SegundosDeSilencio = static_cast<double>(silencio) / Frecuencia;
    if (aqui == ambos.size()) return todo;
    const auto visto = FindAround(lados, aqui);
    todo.HayOtraCosa = !visto;
    if (!visto) return todo;
    todo.Oidos.push_back(visto->Que);
    aqui = visto->Desde + static_cast<std::size_t>(std::lround(visto->Que.Segundos * Frecuencia));
  }
}

}  // namespace

std::vector<double> Decoded(const fs::path& archivo) {
  const Driver driver{"dummy"};
  EXPECT_EQ(SDL_InitSubSystem(SDL_INIT_AUDIO), 0) << SDL_GetError();
  EXPECT_EQ(Mix_OpenAudioDevice(44100, AUDIO_S16SYS, 2, 1024, nullptr, 0), 0) << SDL_GetError();
  Mix_Chunk* const sonido = Mix_LoadWAV(archivo.c_str());
  EXPECT_NE(sonido, nullptr) << archivo;
  std::string bytes;
  if (sonido != nullptr) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): SDL's bytes are unsigned.
    bytes.assign(reinterpret_cast<const char*>(sonido->abuf), sonido->alen);
  }
  Mix_FreeChunk(sonido);
  Mix_CloseAudio();
  Mix_Quit();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  const Sides lados = Split(bytes);
  EXPECT_EQ(lados.Izquierda, lados.Derecha) << archivo;
  return lados.Izquierda;
}

std::vector<Heard> Listen(const fs::path& grabacion) {
  Scanned todo = Scan(grabacion);
  EXPECT_FALSE(todo.HayOtraCosa) << "an unknown sound after " << todo.SegundosHasta << " s";
  return std::move(todo.Oidos);
}

bool HasRecorded(const fs::path& grabacion, const std::vector<std::string>& archivos) {
  const Scanned todo = Scan(grabacion);
  const auto esElSuyo = [](const Heard& oido, const std::string& archivo) {
    return oido.Archivo == archivo && IsWhole(oido);
  };
  return !todo.HayOtraCosa && todo.SegundosDeSilencio >= 1 &&
         std::equal(todo.Oidos.begin(), todo.Oidos.end(), archivos.begin(), archivos.end(),
                    esElSuyo);
}

std::vector<std::string> Described(const std::vector<Heard>& oidos) {
  std::vector<std::string> textos;
  for (const Heard& oido : oidos) {
    EXPECT_TRUE(IsWhole(oido)) << oido.Archivo << " lasted " << oido.Segundos << " s";
    std::ostringstream texto;
    texto << oido.Archivo << std::fixed << std::setprecision(1) << ' ' << oido.Izquierda << ' '
          << oido.Derecha;
    textos.push_back(texto.str());
  }
  return textos;
}

SoundFolder::SoundFolder() {
  AllSounds();  // Decoding changes the environment and must not happen while a sound plays.
  for (const char* const archivo : Archivos) {
    fs::copy_file(fs::path{TASCA_SOURCE_DIR} / "data" / archivo, Path() / archivo);
  }
  fs::create_symlink(ProgramPath(TASCA_SOUND_PROGRAM), Path() / "tasca-sound");
  const auto poner = [](const char* nombre, const std::string& valor) {
    EXPECT_EQ(::setenv(nombre, valor.c_str(), 1), 0);  // NOLINT(concurrency-mt-unsafe)
  };
  poner("SDL_AUDIODRIVER", "disk");
  poner("SDL_DISKAUDIOFILE", Recording().string());
  poner("SDL_DISKAUDIODELAY", "1");
}

void TakeLoudspeakerAway() {
  EXPECT_EQ(::setenv("SDL_AUDIODRIVER", "ninguno", 1), 0);  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace tasca::test
