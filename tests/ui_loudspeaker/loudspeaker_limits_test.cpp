// The limits of the loudspeaker: the time of a sound and the size of its file.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

#include "tests/ui_loudspeaker/listener.h"
#include "tests/ui_loudspeaker/recording.h"
#include "ui/loudspeaker/loudspeaker.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;

class LoudspeakerLimits : public testing::Test {
 protected:
  bool Play(const std::string& archivo, int veces = 1) {
    return altavoz_.Play(carpeta_.Path() / archivo, veces, {});
  }

  // Whether it stops playing within the limit.
  bool EndsWithin(seconds limite) {
    return WaitUntil(limite, [this] { return !altavoz_.Playing(); });
  }

  // Makes the device take 1024 samples at this interval.
  static void Pace(int milisegundos) {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): before any thread is there.
    ASSERT_EQ(::setenv("SDL_DISKAUDIODELAY", std::to_string(milisegundos).c_str(), 1), 0);
  }

  SoundFolder carpeta_;
  Loudspeaker altavoz_;
};

// At this pace the nine buffers of the sound would take 27 seconds.
TEST_F(LoudspeakerLimits, AStalledDeviceIsClosed) {
  Pace(3000);
  ASSERT_TRUE(Play("Son_DaUnaCarta.wav"));
  EXPECT_TRUE(EndsWithin(seconds{15}));
  EXPECT_FALSE(altavoz_.Playing());
  Pace(1);
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav")) << "the device is opened again";
  EXPECT_TRUE(EndsWithin(seconds{30}));
  altavoz_.Close();
  EXPECT_EQ(Described(Listen(carpeta_.Recording())),
            (std::vector<std::string>{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

// The nine or ten buffers take over a second, the sound lasts a fifth of one.
TEST_F(LoudspeakerLimits, ASlowDevicePlaysTheWholeSound) {
  Pace(150);
  ASSERT_TRUE(Play("Son_DaUnaCarta.wav"));
  ASSERT_TRUE(EndsWithin(seconds{30}));
  altavoz_.Close();
  EXPECT_EQ(Described(Listen(carpeta_.Recording())),
            (std::vector<std::string>{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

// At this pace 45 cards last longer than one card and the device's delay limit.
TEST_F(LoudspeakerLimits, TheTimeLimitGrowsWithTheRepetitions) {
  Pace(10);
  const auto comienzo = std::chrono::steady_clock::now();
  ASSERT_TRUE(Play("Son_DaUnaCarta.wav", 45));
  ASSERT_TRUE(EndsWithin(seconds{60}));
  EXPECT_GT(std::chrono::steady_clock::now() - comienzo, milliseconds{3500});
  altavoz_.Close();
  EXPECT_EQ(Listen(carpeta_.Recording()).size(), 45U);
}

std::string LittleEndian(std::uintmax_t numero) {
  std::string bytes;
  for (unsigned i = 0; i < 4; ++i) bytes += static_cast<char>(numero >> 8U * i & 0xFFU);
  return bytes;
}

// Writes a card's sound with a JUNK chunk after it, so that the file has this size.
void WriteLongFile(const TempFolder& carpeta, const std::string& nombre, std::uintmax_t bytes) {
  std::string wav = carpeta.Read("Son_DaUnaCarta.wav");
  wav += "JUNK" + LittleEndian(bytes - wav.size() - 8);
  wav.replace(4, 4, LittleEndian(bytes - 8));
  carpeta.Write(nombre, wav);
  fs::resize_file(carpeta.Path() / nombre, bytes);
}

TEST_F(LoudspeakerLimits, AFileOfSixteenMillionBytesIsPlayed) {
  WriteLongFile(carpeta_, "mayor.wav", 16'000'000);
  EXPECT_TRUE(Play("mayor.wav"));
}

TEST_F(LoudspeakerLimits, ALargerFileIsRefused) {
  WriteLongFile(carpeta_, "enorme.wav", 16'000'002);
  EXPECT_FALSE(Play("enorme.wav"));
  EXPECT_FALSE(fs::exists(carpeta_.Recording())) << "the device is not opened";
}

}  // namespace
}  // namespace tasca::test
