// The process of tasca-sound: its start, its orders and its end.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <iterator>
#include <optional>

#include "tests/ui_loudspeaker/listener.h"
#include "tests/ui_loudspeaker/stand_in.h"

namespace tasca::test {
namespace {

// Writes the process id to the file "ready", atomically.
constexpr const char* Ready = R"(echo $$ >"$here/new" && mv "$here/new" "$here/ready")";

class LoudspeakerProcess : public testing::Test {
 protected:
  void Open(std::u16string_view archivo = u"Son.wav", const MediaPlayerSettings& ajustes = {}) {
    mp1_->Open(carpeta_.Path(), archivo, ajustes);
  }

  // Waits for the file "ready" and returns the process id.
  pid_t WaitUntilReady() {
    const auto listo = [this] { return std::filesystem::exists(carpeta_.Path() / "ready"); };
    EXPECT_TRUE(Eventually(listo));
    return listo() ? std::stoi(carpeta_.Read("ready")) : 0;
  }

  std::string Path(const std::string& nombre) const { return carpeta_.Path() / nombre; }

  TempFolder carpeta_;
  std::optional<MediaPlayer> mp1_{std::in_place};
};

// The process has ended and has been reaped.
void ExpectGone(pid_t proceso) {
  ASSERT_GT(proceso, 0);
  EXPECT_EQ(::kill(proceso, 0), -1);
  EXPECT_EQ(errno, ESRCH);
}

TEST_F(LoudspeakerProcess, IsReapedWhenTheSoundIsTurnedOff) {
  StandIn(carpeta_, std::string{Ready} + "\nexec sleep 20");
  Open();
  const pid_t proceso = WaitUntilReady();
  EXPECT_EQ(::kill(proceso, 0), 0);
  mp1_->TurnOn(false);
  ExpectGone(proceso);
}

TEST_F(LoudspeakerProcess, IsReapedWithTheMediaPlayer) {
  StandIn(carpeta_, std::string{Ready} + "\nexec sleep 20");
  Open();
  const pid_t proceso = WaitUntilReady();
  mp1_.reset();
  ExpectGone(proceso);
}

TEST_F(LoudspeakerProcess, IsReapedAfterItHasExited) {
  StandIn(carpeta_, std::string{Ready} + "\nexit 1");
  Open();
  const pid_t proceso = WaitUntilReady();
  EXPECT_TRUE(WaitForEnd(*mp1_));
  ExpectGone(proceso);
}

// A process that is waited for, not killed, would write the file "lived on".
TEST_F(LoudspeakerProcess, IsKilledEvenIfItIgnoresSignals) {
  StandIn(carpeta_,
          std::string{"trap '' TERM INT HUP\n"} + Ready + "\nsleep 5\n: >\"$here/lived on\"");
  Open();
  const pid_t proceso = WaitUntilReady();
  mp1_->TurnOn(false);
  ExpectGone(proceso);
  EXPECT_FALSE(std::filesystem::exists(Path("lived on")));
}

TEST_F(LoudspeakerProcess, HasNoAccessToTheTerminal) {
  StandIn(carpeta_, std::string{R"(outputs=$(readlink /proc/$$/fd/1 /proc/$$/fd/2))"} +
                        R"(; echo "$outputs" >"$here/outputs"; )" + Ready);
  Open();
  WaitUntilReady();
  EXPECT_EQ(carpeta_.Read("outputs"), "/dev/null\n/dev/null\n");
}

TEST_F(LoudspeakerProcess, InheritsNoDescriptorsOfTheGame) {
  const int abierto = ::creat(Path("a file").c_str(), 0600);
  ASSERT_GE(abierto, 0);
  StandIn(carpeta_, std::string{R"(ls -l /proc/$$/fd >"$here/files"; )"} + Ready);
  Open();
  WaitUntilReady();
  ::close(abierto);
  const std::string heredados = carpeta_.Read("files");
  EXPECT_NE(heredados.find("0 -> socket:"), std::string::npos) << heredados;
  EXPECT_EQ(heredados.find("a file"), std::string::npos) << heredados;
}

TEST_F(LoudspeakerProcess, IsOrderedToPlayAndToStop) {
  StandInThatRecords(carpeta_);
  Open(u"Una.wav", {.Veces = 3, .Balance = 300, .Volumen = -500});
  mp1_->Stop();
  Open(u"Otra.mp3");
  const std::string ordenes =
      "1 3 300 -500 " + Path("Una.wav") + "2 0 0 0 " + "3 1 0 0 " + Path("Otra.mp3");
  EXPECT_TRUE(Eventually([&] { return RecordedOrders(carpeta_).size() >= ordenes.size(); }));
  EXPECT_EQ(RecordedOrders(carpeta_), ordenes);
}

// The second sound is opened before the end of the process has been handled.
TEST_F(LoudspeakerProcess, IsRestartedIfItHasEndedUnnoticed) {
  StandIn(carpeta_, "exit 1");
  Open();
  ASSERT_TRUE(WaitForNews(*mp1_));
  StandInThatRecords(carpeta_);
  Open(u"Otra.wav");
  const std::string orden = "2 1 0 0 " + Path("Otra.wav");
  EXPECT_TRUE(Eventually([&] { return RecordedOrders(carpeta_) == orden; }))
      << RecordedOrders(carpeta_);
}

TEST_F(LoudspeakerProcess, EndsASoundOnceDespiteAnEarlierIdleReport) {
  StandIn(carpeta_, "printf idle >&0\nprintf 1 >&0\nexec cat");
  Open();
  EXPECT_TRUE(WaitForEnd(*mp1_));
}

TEST_F(LoudspeakerProcess, EndsNoSoundWithAnotherNumber) {
  StandIn(carpeta_,
          "printf 0 >&0; printf 2 >&0; printf 11 >&0\n" + std::string{Ready} + "\nexec cat");
  Open();
  WaitUntilReady();
  EXPECT_EQ(AttendEnds(*mp1_, std::chrono::milliseconds{100}, [] { return true; }), 0);
}

TEST_F(LoudspeakerProcess, IsEndedOnceItReportsThatItIsIdle) {
  StandIn(carpeta_, std::string{Ready} + "\nprintf 1 >&0; printf idle >&0\nexec cat");
  Open();
  const pid_t proceso = WaitUntilReady();
  EXPECT_TRUE(WaitForEnd(*mp1_));
  EXPECT_TRUE(Eventually([&] { return !mp1_->TakeEnd() && ::kill(proceso, 0) == -1; }));
  ExpectGone(proceso);
}

std::size_t OpenFiles() {
  namespace fs = std::filesystem;
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator{"/proc/self/fd"}, fs::directory_iterator{}));
}

TEST_F(LoudspeakerProcess, LeaksNoDescriptors) {
  mp1_.reset();
  const std::size_t antes = OpenFiles();
  StandInThatRecords(carpeta_);
  for (int i = 0; i < 3; ++i) {
    mp1_.emplace();
    Open();
    mp1_->TurnOn(false);
    Open();
    mp1_->TurnOn(true);
    Open();
    mp1_.reset();
  }
  EXPECT_EQ(OpenFiles(), antes);
}

}  // namespace
}  // namespace tasca::test
