// The media player with tasca-sound.
#include "ui/loudspeaker/media_player.h"

#include <gtest/gtest.h>

#include "tests/ui_loudspeaker/listener.h"
#include "tests/ui_loudspeaker/recording.h"
#include "tests/ui_loudspeaker/stand_in.h"

namespace tasca::test {
namespace {

using Oidos = std::vector<std::string>;
using std::chrono::milliseconds;

class Mp1 : public testing::Test {
 protected:
  void Open(std::u16string_view archivo, const MediaPlayerSettings& ajustes = {}) {
    mp1_.Open(carpeta_.Path(), archivo, ajustes);
  }

  // The number of ends within this time.
  int Ends(milliseconds espera) {
    return AttendEnds(mp1_, espera, [] { return false; });
  }

  Oidos Recorded() {
    WaitForSilence(carpeta_.Recording());
    return Described(Listen(carpeta_.Recording()));
  }

  SoundFolder carpeta_;
  MediaPlayer mp1_;
};

TEST_F(Mp1, PlaysWithCountBalanceAndVolumeAndReportsOneEnd) {
  Open(u"Son_DaUnaCarta.wav", {.Veces = 3, .Balance = 300, .Volumen = -500});
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Ends(milliseconds{100}), 0);
  EXPECT_EQ(Recorded(), Oidos(3, "Son_DaUnaCarta.wav -8.0 -5.0"));
}

TEST_F(Mp1, PlaysTheShippedSoundThatAFolderLacks) {
  const TempFolder otra;
  mp1_.Use({.Program = carpeta_.Path() / "tasca-sound", .Shipped = carpeta_.Path()});
  mp1_.Open(otra.Path(), u"Son_DaUnaCarta.wav", {});
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Recorded(), Oidos{"Son_DaUnaCarta.wav 0.0 0.0"});
}

TEST_F(Mp1, PrefersTheSoundOfTheFolder) {
  const TempFolder otra;
  std::filesystem::copy(carpeta_.Path() / "Son_DaUnaCarta.wav", otra.Path() / "Son_aplauso.wav");
  mp1_.Use({.Program = carpeta_.Path() / "tasca-sound", .Shipped = carpeta_.Path()});
  mp1_.Open(otra.Path(), u"Son_aplauso.wav", {});
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Recorded(), Oidos{"Son_DaUnaCarta.wav 0.0 0.0"});
}

TEST_F(Mp1, ReportsTheEndOfZeroRepetitions) {
  Open(u"Son_DaUnaCarta.wav", {.Veces = 0});
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Ends(milliseconds{100}), 0);
  EXPECT_FALSE(std::filesystem::exists(carpeta_.Recording()));
}

TEST_F(Mp1, DoesNotReportTheEndOfAReplacedSound) {
  Open(u"Son_DaUnaCarta.wav", {.Veces = 0});
  Open(u"Son_DaUnaCarta.wav", {.Veces = 0});
  EXPECT_TRUE(WaitForNews(mp1_));
  Open(u"Son_aplauso.wav");
  EXPECT_FALSE(mp1_.TakeEnd());
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Ends(milliseconds{100}), 0);
  EXPECT_EQ(Recorded(), (Oidos{"Son_aplauso.wav 0.0 0.0"}));
}

TEST_F(Mp1, StopsWithoutReportingAnEnd) {
  Open(u"Son_aplauso.wav", {.Veces = 1000});
  mp1_.Stop();
  EXPECT_EQ(Ends(milliseconds{200}), 0);
  mp1_.Stop();
  Open(u"Son_DaUnaCarta.wav");
  EXPECT_TRUE(WaitForEnd(mp1_));
}

TEST_F(Mp1, StopsBeforeAnythingWasPlayed) {
  mp1_.Stop();
  EXPECT_FALSE(mp1_.TakeEnd());
}

TEST_F(Mp1, ReportsTheEndOfAnUnplayableFile) {
  carpeta_.Write("vacio.mp3", "");
  carpeta_.Write("texto.wav", "Esto no es un sonido.");
  for (const std::u16string_view archivo : {u"falta.wav", u"vacio.mp3", u"texto.wav"}) {
    Open(archivo);
    EXPECT_TRUE(WaitForEnd(mp1_));
  }
}

TEST_F(Mp1, ReportsTheEndWithoutADevice) {
  TakeLoudspeakerAway();
  for (int i = 0; i < 3; ++i) {
    Open(u"Son_aplauso.wav");
    EXPECT_TRUE(WaitForEnd(mp1_));
  }
}

TEST_F(Mp1, ReportsTheEndWithoutTheProgram) {
  std::filesystem::remove(carpeta_.Path() / "tasca-sound");
  for (int i = 0; i < 3; ++i) {
    Open(u"Son_aplauso.wav");
    EXPECT_TRUE(WaitForEnd(mp1_));
  }
  EXPECT_EQ(Ends(milliseconds{50}), 0);
}

TEST_F(Mp1, ReportsTheEndWhenTheProgramFails) {
  StandIn(carpeta_, "exit 1");
  for (int i = 0; i < 3; ++i) {
    Open(u"Son_aplauso.wav");
    EXPECT_TRUE(WaitForEnd(mp1_));
  }
}

TEST_F(Mp1, DoesNotWaitForAProgramThatHangs) {
  StandIn(carpeta_, "exec sleep 1000");
  const auto comienzo = std::chrono::steady_clock::now();
  for (int i = 0; i < 2000; ++i) Open(u"Son_aplauso.wav");
  mp1_.TurnOn(false);
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_LT(std::chrono::steady_clock::now() - comienzo, std::chrono::seconds{60});
}

TEST_F(Mp1, PlaysAgainAfterTheProgramFailed) {
  StandIn(carpeta_, "exit 1");
  Open(u"Son_aplauso.wav");
  EXPECT_TRUE(WaitForEnd(mp1_));
  const SoundFolder otra;
  mp1_.Open(otra.Path(), u"Son_DaUnaCarta.wav", {});
  EXPECT_TRUE(WaitForEnd(mp1_));
  WaitForSilence(otra.Recording());
  EXPECT_EQ(Described(Listen(otra.Recording())), (Oidos{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

TEST_F(Mp1, EndsTheSoundWhenItIsTurnedOff) {
  Open(u"Son_aplauso.wav", {.Veces = 1000});
  mp1_.TurnOn(false);
  EXPECT_FALSE(mp1_.IsOn());
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Ends(milliseconds{50}), 0);
}

TEST_F(Mp1, ReportsTheEndsOfSilentSoundsWhileItIsOff) {
  mp1_.TurnOn(false);
  for (int i = 0; i < 3; ++i) {
    Open(u"Son_aplauso.wav");
    EXPECT_TRUE(WaitForEnd(mp1_));
  }
  EXPECT_FALSE(std::filesystem::exists(carpeta_.Recording()));
}

TEST_F(Mp1, PlaysTheNextSoundAfterItIsTurnedOn) {
  mp1_.TurnOn(false);
  Open(u"Son_aplauso.wav");
  mp1_.TurnOn(true);
  EXPECT_TRUE(mp1_.IsOn());
  Open(u"Son_DaUnaCarta.wav");
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Ends(milliseconds{50}), 0);
  EXPECT_EQ(Recorded(), (Oidos{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

TEST_F(Mp1, TurnsOffAndOnWithoutASound) {
  for (const bool encendido : {true, false, false, true, true}) mp1_.TurnOn(encendido);
  EXPECT_EQ(Ends(milliseconds{50}), 0);
}

TEST_F(Mp1, EndsTheIdleProgramAndStartsItAgain) {
  Open(u"Son_DaUnaCarta.wav");
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_TRUE(WaitForNews(mp1_));
  EXPECT_FALSE(mp1_.TakeEnd());
  std::filesystem::remove(carpeta_.Recording());
  Open(u"Son_DaUnaCarta.wav", {.Volumen = -600});
  EXPECT_TRUE(WaitForEnd(mp1_));
  EXPECT_EQ(Recorded(), (Oidos{"Son_DaUnaCarta.wav -6.0 -6.0"}));
}

}  // namespace
}  // namespace tasca::test
