// Every recorded game, played through the binding of the page: the events are those of the trace.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/support/temp_folder.h"
#include "tests/traces/game_folder.h"
#include "tests/traces/read_file.h"
#include "tests/ui_web/trace_player.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

const fs::path Recorded = TASCA_SOURCE_DIR "/tests/traces";

std::vector<std::string> RecordedNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator{Recorded}) {
    if (fs::exists(entry.path() / "in.jsonl")) names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The recorded output; without its last two lines if the game ends with a change of players.
std::string RecordedOut(const fs::path& game) {
  std::string out = ReadFile(game / "out.jsonl");
  if (out.find(R"("reason":"players")") == std::string::npos) return out;
  for (int line = 0; line < 2; ++line) out.erase(out.rfind('\n', out.size() - 2) + 1);
  return out;
}

class RecordedGame : public testing::TestWithParam<std::string> {
 protected:
  RecordedGame() { FillFolder(folder_.Path(), Game()); }

  static fs::path Game() { return Recorded / GetParam(); }
  static std::string In() { return ReadFile(Game() / "in.jsonl"); }
  std::string Out(const std::string& out) const {
    return WithoutFolder(out, folder_.Path().string());
  }

  TempFolder folder_;
};

TEST_P(RecordedGame, TellsThePageWhatTheTraceTells) {
  TracePlayer player{folder_.Path()};
  EXPECT_EQ(Out(player.Play(In())), RecordedOut(Game()));
}

TEST_P(RecordedGame, GoesOnToTheSameEndInAnotherPageAfterEveryView) {
  TracePlayer player{folder_.Path()};
  player.CloseAfterEveryView();
  EXPECT_EQ(Out(player.Play(In())), RecordedOut(Game()));
}

std::string CaseName(const testing::TestParamInfo<std::string>& game) {
  std::string name = game.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Web, RecordedGame, testing::ValuesIn(RecordedNames()), CaseName);

TEST(RecordedGames, AreClosedWithOpenQuestionsToo) {
  const TempFolder folder;
  FillFolder(folder.Path(), Recorded / "match-won");
  TracePlayer player{folder.Path()};
  player.CloseAfterEveryView();
  player.Play(ReadFile(Recorded / "match-won" / "in.jsonl"));
  EXPECT_GT(player.ClosedWithQuestion(), 10);
}

}  // namespace
}  // namespace tasca::test
