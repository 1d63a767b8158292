// Waiting for the player and for sounds.
#include "ui/terminal/waiting.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>

#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// A keyboard whose player types when the test says so.
class Waiting : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(::pipe(tubo_.data()), 0); }
  void TearDown() override {
    ::close(tubo_[0]);
    HangUp();
  }

  void Type() { EXPECT_EQ(::write(tubo_[1], "\n", 1), 1); }
  void HangUp() {
    if (tubo_[1] >= 0) ::close(tubo_[1]);
    tubo_[1] = -1;
  }

  // The folder holds no program that plays: every sound ends at once.
  void Open() { mp1_.Open(carpeta_.Path(), u"falta.wav", {}); }
  void Wait(const std::function<void()>& alTerminar) { WaitForLine(tubo_[0], mp1_, alTerminar); }

  TempFolder carpeta_;
  MediaPlayer mp1_;

 private:
  std::array<int, 2> tubo_{-1, -1};
};

TEST_F(Waiting, EndsWithALine) {
  Type();
  Wait([] { FAIL() << "no sound was opened"; });
}

TEST_F(Waiting, EndsWithTheInput) {
  HangUp();
  Wait([] { FAIL() << "no sound was opened"; });
}

TEST_F(Waiting, LetsSoundsFollowEachOtherMeanwhile) {
  int finales = 0;
  Open();
  Wait([this, &finales] {
    if (++finales < 3) return Open();
    Type();
  });
  EXPECT_EQ(finales, 3);
}

TEST_F(Waiting, LetsASoundEndEvenIfTheLineIsThereAlready) {
  int finales = 0;
  Open();
  Type();
  Wait([&finales] { ++finales; });
  EXPECT_EQ(finales, 1);
}

}  // namespace
}  // namespace tasca::test
