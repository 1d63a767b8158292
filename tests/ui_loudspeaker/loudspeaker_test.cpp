// The loudspeaker in this process.
#include "ui/loudspeaker/loudspeaker.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>

#include "tests/ui_loudspeaker/listener.h"
#include "tests/ui_loudspeaker/recording.h"

namespace tasca::test {
namespace {

using Oidos = std::vector<std::string>;

class LoudspeakerInAFile : public testing::Test {
 protected:
  bool Play(const std::string& archivo, int veces = 1, const Gains& factores = {}) {
    return altavoz_.Play(carpeta_.Path() / archivo, veces, factores);
  }

  void WaitForTheEnd() {
    EXPECT_TRUE(WaitUntil(std::chrono::seconds{30}, [this] { return !altavoz_.Playing(); }));
  }

  Oidos Recorded() {
    altavoz_.Close();
    return Described(Listen(carpeta_.Recording()));
  }

  SoundFolder carpeta_;
  Loudspeaker altavoz_;
};

TEST_F(LoudspeakerInAFile, PlaysAFileOfEitherKindOnce) {
  EXPECT_TRUE(Play("Son_ReparteCartas.mp3"));
  WaitForTheEnd();
  EXPECT_TRUE(Play("Son_aplauso.wav"));
  WaitForTheEnd();
  EXPECT_EQ(Recorded(), (Oidos{"Son_ReparteCartas.mp3 0.0 0.0", "Son_aplauso.wav 0.0 0.0"}));
}

TEST_F(LoudspeakerInAFile, RepeatsASound) {
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav", 4));
  WaitForTheEnd();
  EXPECT_EQ(Recorded(), Oidos(4, "Son_DaUnaCarta.wav 0.0 0.0"));
}

TEST_F(LoudspeakerInAFile, AppliesTheGainOfEachChannel) {
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav", 1, {.Izquierda = 0.3162, .Derecha = 0.1}));
  WaitForTheEnd();
  EXPECT_EQ(Recorded(), (Oidos{"Son_DaUnaCarta.wav -10.0 -20.0"}));
}

// A WAV file of one repeated sample. Wherever it is interrupted, the next sound can be found.
std::string Tone(const std::string& otroWav) {
  using namespace std::string_literals;
  constexpr std::size_t bytes = 0x10000;
  std::string cabecera = otroWav.substr(0, 44);
  cabecera.replace(4, 4, "\x24\0\1\0"s);
  cabecera.replace(40, 4, "\0\0\1\0"s);
  return cabecera + std::string(bytes, '\x11');
}

std::string AfterTheTone(const std::string& grabado) {
  constexpr std::size_t par = 4;
  std::size_t aqui = grabado.find_first_not_of('\0') / par * par;
  const std::string tono = grabado.substr(aqui, par);
  while (grabado.compare(aqui, par, tono) == 0) aqui += par;
  return grabado.substr(aqui);
}

TEST_F(LoudspeakerInAFile, ReplacesWhatIsPlaying) {
  carpeta_.Write("tono.wav", Tone(carpeta_.Read("Son_DaUnaCarta.wav")));
  EXPECT_TRUE(Play("tono.wav", 1000));
  ASSERT_TRUE(WaitUntil(std::chrono::seconds{10}, [this] {
    return carpeta_.Read("grabacion").find_first_not_of('\0') != std::string::npos;
  })) << "the tone is not recorded";
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav"));
  WaitForTheEnd();
  altavoz_.Close();
  carpeta_.Write("grabacion", AfterTheTone(carpeta_.Read("grabacion")));
  EXPECT_EQ(Recorded(), (Oidos{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

TEST_F(LoudspeakerInAFile, PlaysNothingForZeroRepetitions) {
  EXPECT_FALSE(Play("Son_DaUnaCarta.wav", 0));
  EXPECT_FALSE(Play("Son_DaUnaCarta.wav", -1));
  EXPECT_FALSE(altavoz_.Playing());
  EXPECT_FALSE(std::filesystem::exists(carpeta_.Recording())) << "the device is not opened";
}

TEST_F(LoudspeakerInAFile, StopsWhenNothingIsToBePlayed) {
  EXPECT_TRUE(Play("Son_aplauso.wav"));
  EXPECT_FALSE(Play("Son_aplauso.wav", 0));
  EXPECT_FALSE(altavoz_.Playing());
}

TEST_F(LoudspeakerInAFile, OpensNoDeviceForAMissingFileOrAFolder) {
  carpeta_.Write("vacio.wav", "");
  std::filesystem::create_directory(carpeta_.Path() / "carpeta.wav");
  ASSERT_EQ(::mkfifo((carpeta_.Path() / "tubo.mp3").c_str(), 0600), 0);
  for (const char* const archivo : {"falta.mp3", "vacio.wav", "carpeta.wav", "tubo.mp3"}) {
    EXPECT_FALSE(Play(archivo)) << archivo;
  }
  EXPECT_FALSE(std::filesystem::exists(carpeta_.Recording()));
}

TEST_F(LoudspeakerInAFile, IsSilentForDamagedFilesAndPlaysTheNext) {
  carpeta_.Write("ruido.mp3", std::string(5000, '\x55'));
  carpeta_.Write("texto.wav", "Esto no es un sonido, es una carta de la tía Berta.");
  carpeta_.Write("cabecera.wav", carpeta_.Read("Son_DaUnaCarta.wav").substr(0, 44));
  carpeta_.Write("corto.wav", carpeta_.Read("Son_DaUnaCarta.wav").substr(0, 30));
  carpeta_.Write("corto.mp3", carpeta_.Read("Son_BarajaCartas.mp3").substr(0, 100));
  std::string enorme = carpeta_.Read("Son_DaUnaCarta.wav").substr(0, 44);
  enorme.replace(40, 4, "\xFF\xFF\xFF\x7F");
  carpeta_.Write("enorme.wav", enorme);
  for (const char* const archivo :
       {"ruido.mp3", "texto.wav", "cabecera.wav", "corto.wav", "corto.mp3", "enorme.wav"}) {
    Play(archivo);
    WaitForTheEnd();
  }
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav"));
  WaitForTheEnd();
  EXPECT_EQ(Recorded(), (Oidos{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

TEST_F(LoudspeakerInAFile, PlaysAtMostTheRestOfATruncatedFile) {
  const std::string entero = carpeta_.Read("Son_aplauso.wav");
  carpeta_.Write("Son_aplauso.wav", entero.substr(0, entero.size() / 2));
  Play("Son_aplauso.wav");
  WaitForTheEnd();
  altavoz_.Close();
  const std::vector<Heard> oidos = Listen(carpeta_.Recording());
  ASSERT_LE(oidos.size(), 1U);
  if (!oidos.empty()) {
    EXPECT_LT(oidos.front().Segundos, 2);
  }
}

TEST_F(LoudspeakerInAFile, OpensAgainAfterItWasClosed) {
  Play("Son_aplauso.wav");
  altavoz_.Close();
  altavoz_.Close();
  EXPECT_FALSE(altavoz_.Playing());
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav"));
  WaitForTheEnd();
  EXPECT_EQ(Recorded(), (Oidos{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

TEST_F(LoudspeakerInAFile, IsSilentWithoutADeviceAndTriesAgain) {
  SoundFolder otra;
  TakeLoudspeakerAway();
  EXPECT_FALSE(Play("Son_DaUnaCarta.wav"));
  EXPECT_FALSE(altavoz_.Playing());
  const SoundFolder conAltavoz;
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav"));
}

TEST_F(LoudspeakerInAFile, LeavesSigtermAndSigintAlone) {
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav"));
  for (const int senal : {SIGTERM, SIGINT}) {
    struct sigaction accion {};
    ASSERT_EQ(::sigaction(senal, nullptr, &accion), 0);
    EXPECT_EQ(accion.sa_handler, SIG_DFL);
  }
}

}  // namespace
}  // namespace tasca::test
