// The four sounds of data/: their length, loudness and format, and their synthesis.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <ostream>
#include <string_view>

#include "tests/ui_loudspeaker/recording.h"
#include "tools/synth/applause.h"
#include "tools/synth/cards.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

struct Shipped {
  const char* Archivo;
  double DesdeSegundos;
  double HastaSegundos;
  synth::Clip (*Hacer)();
};

void PrintTo(const Shipped& sonido, std::ostream* out) { *out << sonido.Archivo; }

class ShippedSound : public testing::TestWithParam<Shipped> {
 protected:
  static fs::path Archivo() { return fs::path{TASCA_SOURCE_DIR} / "data" / GetParam().Archivo; }

  static std::string Bytes() {
    std::ifstream archivo{Archivo(), std::ios::binary};
    return {std::istreambuf_iterator<char>{archivo}, {}};
  }
};

double Loudest(const std::vector<double>& muestras, std::size_t desde, std::size_t hasta) {
  double mayor = 0;
  for (std::size_t i = desde; i < hasta; ++i) mayor = std::max(mayor, std::abs(muestras[i]));
  return mayor;
}

// The level of a sample in dBFS.
double Level(double muestra) { return 20 * std::log10(muestra / 32768); }

// The RMS level of the loudest tenth of a second, in dBFS.
double LevelOfTheLoudestTenth(const std::vector<double>& muestras) {
  constexpr std::size_t ancho = 4410;
  double suma = 0;
  double mayor = 0;
  for (std::size_t i = 0; i < muestras.size(); ++i) {
    suma += muestras[i] * muestras[i];
    if (i >= ancho) suma -= muestras[i - ancho] * muestras[i - ancho];
    mayor = std::max(mayor, suma);
  }
  return Level(std::sqrt(mayor / ancho));
}

TEST_P(ShippedSound, HasItsLength) {
  const double segundos = static_cast<double>(Decoded(Archivo()).size()) / Frecuencia;
  EXPECT_GE(segundos, GetParam().DesdeSegundos);
  EXPECT_LE(segundos, GetParam().HastaSegundos);
}

TEST_P(ShippedSound, HasItsPeakBetweenMinus6AndMinus1Dbfs) {
  const std::vector<double> muestras = Decoded(Archivo());
  const double pico = Level(Loudest(muestras, 0, muestras.size()));
  EXPECT_LE(pico, -1);
  EXPECT_GE(pico, -6);
}

TEST_P(ShippedSound, BeginsAndEndsInSilence) {
  constexpr std::size_t dosMilesimas = 88;
  const std::vector<double> muestras = Decoded(Archivo());
  ASSERT_GT(muestras.size(), dosMilesimas);
  EXPECT_LE(Loudest(muestras, 0, 44), 33) << "60 dB below the top";
  EXPECT_LE(Loudest(muestras, muestras.size() - dosMilesimas, muestras.size()), 33);
}

TEST_P(ShippedSound, IsAsLoudAsTheOthers) {
  EXPECT_NEAR(LevelOfTheLoudestTenth(Decoded(Archivo())), -20, 1.5);
}

void ExpectOneSideOf44100(std::string_view wav) {
  using namespace std::string_view_literals;
  EXPECT_EQ(wav.substr(20, 4), "\1\0\1\0"sv) << "PCM, mono";
  EXPECT_EQ(wav.substr(24, 4), "\x44\xAC\0\0"sv) << "44100";
  EXPECT_EQ(wav.substr(34, 2), "\x10\0"sv) << "16 bits";
}

void ExpectFramesOf44100(std::string_view mp3) {
  const auto bits = [mp3](std::size_t i, unsigned mascara) {
    return static_cast<unsigned char>(mp3[i]) & mascara;
  };
  EXPECT_EQ(bits(0, 0xFF), 0xFFU) << "frame sync";
  EXPECT_EQ(bits(1, 0xFE), 0xFAU) << "MPEG 1, layer 3";
  EXPECT_EQ(bits(2, 0x0C), 0U) << "44100";
  EXPECT_EQ(bits(3, 0xC0), 0xC0U) << "mono";
}

TEST_P(ShippedSound, IsMonoAt44100Hz) {
  const std::string bytes = Bytes();
  ASSERT_GT(bytes.size(), 44U);
  bytes.starts_with("RIFF") ? ExpectOneSideOf44100(bytes) : ExpectFramesOf44100(bytes);
}

// Compares sample by sample, with a tolerance for MP3.
TEST_P(ShippedSound, IsTheOutputOfTheSynthesizer) {
  const std::vector<double> muestras = Decoded(Archivo());
  const synth::Clip hecho = GetParam().Hacer();
  ASSERT_EQ(muestras.size(), hecho.size());
  double energia = 0;
  double diferencia = 0;
  for (std::size_t i = 0; i < hecho.size(); ++i) {
    energia += muestras[i] * muestras[i];
    diferencia += std::pow(muestras[i] - 32767 * hecho[i], 2);
  }
  const bool comprimido = Archivo().extension() == ".mp3";
  EXPECT_LT(diferencia, energia * (comprimido ? 0.03 : 1e-6));
}

INSTANTIATE_TEST_SUITE_P(All, ShippedSound,
                         testing::Values(Shipped{"Son_BarajaCartas.mp3", 1.5, 2.5, synth::Shuffle},
                                         Shipped{"Son_ReparteCartas.mp3", 2, 3, synth::Deal},
                                         Shipped{"Son_DaUnaCarta.wav", 0.15, 0.3, synth::OneCard},
                                         Shipped{"Son_aplauso.wav", 3, 4, synth::Applause}));

TEST(ShippedSounds, TakeAtMost600KiB) {
  std::uintmax_t bytes = 0;
  for (const auto& archivo : fs::directory_iterator{fs::path{TASCA_SOURCE_DIR} / "data"}) {
    if (archivo.path().filename().string().starts_with("Son_")) bytes += archivo.file_size();
  }
  EXPECT_GT(bytes, 0U);
  EXPECT_LE(bytes, 600U * 1024);
}

}  // namespace
}  // namespace tasca::test
