// How long a sound may take, and how large its file may be.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

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

  // Whether it has stopped playing within that time.
  bool EndsWithin(seconds limite) {
    const auto fin = std::chrono::steady_clock::now() + limite;
    while (altavoz_.Playing()) {
      if (std::chrono::steady_clock::now() > fin) return false;
      std::this_thread::sleep_for(milliseconds{5});
    }
    return true;
  }

  // The device takes its 1024 samples every so many milliseconds.
  static void Pace(int milisegundos) {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): before any thread is there.
    ASSERT_EQ(::setenv("SDL_DISKAUDIODELAY", std::to_string(milisegundos).c_str(), 1), 0);
  }

  SoundFolder carpeta_;
  Loudspeaker altavoz_;
};

// The nine buffers of the sound would take it 27 seconds.
TEST_F(LoudspeakerLimits, ADeviceThatTakesNoSamplesForLongIsClosed) {
  Pace(3000);
  ASSERT_TRUE(Play("Son_DaUnaCarta.wav"));
  EXPECT_TRUE(EndsWithin(seconds{15}));
  EXPECT_FALSE(altavoz_.Playing());
  Pace(1);
  EXPECT_TRUE(Play("Son_DaUnaCarta.wav")) << "it opens again for the next sound";
  EXPECT_TRUE(EndsWithin(seconds{30}));
  EXPECT_EQ(Described(Listen(carpeta_.Recording())),
            (std::vector<std::string>{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

// Its nine or ten buffers take the device well over a second, the sound a fifth of one.
TEST_F(LoudspeakerLimits, ASlowDeviceHasTimeToPlayItAll) {
  Pace(150);
  ASSERT_TRUE(Play("Son_DaUnaCarta.wav"));
  ASSERT_TRUE(EndsWithin(seconds{30}));
  altavoz_.Close();
  EXPECT_EQ(Described(Listen(carpeta_.Recording())),
            (std::vector<std::string>{"Son_DaUnaCarta.wav 0.0 0.0"}));
}

// A hundred cards, longer than one and the delay that a device is granted.
TEST_F(LoudspeakerLimits, EveryRepetitionHasItsTime) {
  Pace(5);
  const auto comienzo = std::chrono::steady_clock::now();
  ASSERT_TRUE(Play("Son_DaUnaCarta.wav", 100));
  ASSERT_TRUE(EndsWithin(seconds{60}));
  EXPECT_GT(std::chrono::steady_clock::now() - comienzo, milliseconds{3500});
  altavoz_.Close();
  EXPECT_EQ(Listen(carpeta_.Recording()).size(), 100U);
}

std::string LittleEndian(std::uintmax_t numero) {
  std::string bytes;
  for (unsigned i = 0; i < 4; ++i) bytes += static_cast<char>(numero >> 8U * i & 0xFFU);
  return bytes;
}

// A card's sound with a part behind it that nobody plays, so many bytes in all.
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

TEST_F(LoudspeakerLimits, ALargerFileIsNot) {
  WriteLongFile(carpeta_, "enorme.wav", 16'000'002);
  EXPECT_FALSE(Play("enorme.wav"));
  EXPECT_FALSE(fs::exists(carpeta_.Recording())) << "nor is the device opened";
}

}  // namespace
}  // namespace tasca::test
