// Waiting for input and for sounds.
#include "ui/terminal/tty.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>

#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// A pipe as the keyboard.
class Waiting : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(::pipe(tubo_.data()), 0); }
  void TearDown() override {
    ::close(tubo_[0]);
    HangUp();
  }

  void Type() { EXPECT_EQ(::write(tubo_[1], "\n", 1), 1); }
  int Keyboard() const { return tubo_[1]; }
  void HangUp() {
    if (tubo_[1] >= 0) ::close(tubo_[1]);
    tubo_[1] = -1;
  }

  // The folder does not contain tasca-sound: every sound ends at once.
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

TEST_F(Waiting, HandlesTheEndsOfSoundsMeanwhile) {
  int finales = 0;
  Open();
  Wait([this, &finales] {
    if (++finales < 3) return Open();
    Type();
  });
  EXPECT_EQ(finales, 3);
}

TEST_F(Waiting, HandlesTheEndOfASoundEvenIfALineIsAvailable) {
  int finales = 0;
  Open();
  Type();
  Wait([&finales] { ++finales; });
  EXPECT_EQ(finales, 1);
}

// Counts the signals of a timer. The twentieth types a line.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): a handler can only use globals.
volatile std::sig_atomic_t senales = 0;
volatile std::sig_atomic_t dondeTeclear = -1;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void OnSignal(int /*senal*/) {
  constexpr int Ultima = 20;
  senales = senales + 1;
  if (senales == Ultima && ::write(dondeTeclear, "\n", 1) != 1) std::abort();
}

// The number of voluntary context switches of this thread. Busy waiting makes none, even on a
// loaded machine.
long Sleeps() {
  rusage uso{};
  ::getrusage(RUSAGE_THREAD, &uso);
  return uso.ru_nvcsw;  // NOLINT(cppcoreguidelines-pro-type-union-access): the C library's
}

TEST_F(Waiting, RetriesOnEintrWithoutBusyWaiting) {
  senales = 0;
  dondeTeclear = Keyboard();
  struct sigaction antes {};
  struct sigaction accion {};
  accion.sa_handler = OnSignal;
  ASSERT_EQ(::sigaction(SIGALRM, &accion, &antes), 0);
  const itimerval cada{.it_interval = {0, 10'000}, .it_value = {0, 10'000}};
  const long comienzo = Sleeps();
  ::setitimer(ITIMER_REAL, &cada, nullptr);
  Wait([] { FAIL() << "no sound was opened"; });
  const itimerval nunca{};
  ::setitimer(ITIMER_REAL, &nunca, nullptr);
  EXPECT_GE(Sleeps() - comienzo, 3) << "between twenty signals";
  ASSERT_EQ(::sigaction(SIGALRM, &antes, nullptr), 0);
  EXPECT_GE(senales, 20) << "it ended without a line";
}

}  // namespace
}  // namespace tasca::test
