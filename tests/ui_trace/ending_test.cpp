// The ends of a game and the end of the input.
#include <gtest/gtest.h>

#include <sstream>
#include <streambuf>

#include "tests/ui_trace/trace_run.h"
#include "ui/trace/session.h"

namespace tasca::test {
namespace {

// The lines up to the end of a match of one stone: seat 2 bets an órdago at grande, and the human
// accepts.
std::vector<std::string> UpToTheEnd(std::vector<std::string> more) {
  std::vector<std::string> lines{Start, Enter, No, Enter, Result(0), Result(1)};
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

TEST(TraceEnd, AsksForAnotherMatchWithoutIcon) {
  const TraceRun run = TraceFolder{1, 2, 1}.Play(UpToTheEnd({No}));
  const auto& question = run.Events.at(run.Events.size() - 2);
  EXPECT_EQ(question["title"], "Mus");
  EXPECT_EQ(question["text"], "¿Desea jugar otra partida?");
  EXPECT_EQ(question["buttons"], "yesno");
  EXPECT_EQ(question["icon"], "none");
  EXPECT_EQ(question["default"], "yes");
}

TEST(TraceEnd, QuitFollowsWithoutAState) {
  const TraceRun run = TraceFolder{1, 2, 1}.Play(UpToTheEnd({No, Enter}));
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Last().dump(), R"({"event":"end","reason":"quit","text":""})");
  EXPECT_EQ(run.Events.at(run.Events.size() - 2)["event"], "msgbox");
}

TEST(TraceEnd, PlayersFollowsTheStateOfTheStep) {
  const TraceRun run = TraceFolder{1, 2, 1}.Play(UpToTheEnd({Yes, Yes, Enter}));
  EXPECT_EQ(run.Status, 0);
  const std::size_t n = run.Events.size();
  // The box of the vaca is still shown, with the final score.
  EXPECT_NE(run.Events.at(n - 3)["text"].get<std::string>().find(" gana esta vaca. El resultado"),
            std::string::npos);
  EXPECT_EQ(run.Events.at(n - 2)["event"], "state");
  EXPECT_EQ(run.Events.at(n - 2)["Fase"], -1);
  EXPECT_EQ(run.Last().dump(), R"({"event":"end","reason":"players","text":""})");
}

TEST(TraceEnd, AnotherMatchGoesOn) {
  const TraceRun run = TraceFolder{1, 2, 1}.Play(UpToTheEnd({Yes, No, Enter}));
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Last()["event"], "state");
  EXPECT_EQ(run.Last()["Vacas"].dump(), "[0,0]");
}

TEST(TraceEnd, ARunTimeErrorHasItsMessageAndStatus1) {
  // The human's envite does not fit in 16 bits.
  const TraceRun run =
      TraceFolder{}.Play({Start, Enter, No, Enter, Result(2), R"({"text": "32768"})", Enter});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(run.Events.at(run.Events.size() - 2)["event"], "inputbox");
  EXPECT_EQ(
      run.Last().dump(),
      R"({"event":"end","reason":"error","text":"Desbordamiento: el número no está entre -32768 y 32767. El programa va a terminar su ejecución."})");
}

TEST(TraceEnd, TheInputMayEndInsteadOfAKey) {
  const TraceRun run = TraceFolder{}.Play({Start, Enter, No});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(run.Last()["event"], "state");
}

TEST(TraceEnd, TheLastLineNeedsNoLineEnd) {
  const TraceFolder folder;
  std::stringstream in{Start};
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunTrace(folder.Files().Path(), in, out, err), 0);
  EXPECT_EQ(out.str(), folder.Play({Start}).Out);
}

TEST(TraceEnd, LinesMayEndInCrLf) {
  const TraceFolder folder;
  EXPECT_EQ(folder.Play({std::string{Start} + "\r", std::string{Enter} + "\r", No}).Out,
            folder.Play({Start, Enter, No}).Out);
}

TEST(TraceEnd, AnOutputErrorIsReported) {
  struct Full : std::streambuf {};
  Full full;
  std::ostream out{&full};
  std::stringstream in{Start};
  std::ostringstream err;
  const TraceFolder folder;
  EXPECT_EQ(RunTrace(folder.Files().Path(), in, out, err), 2);
  EXPECT_EQ(err.str(), "the output cannot be written\n");
}

TEST(TraceGame, TheSameInputGivesTheSameBytes) {
  const std::vector<std::string> lines{Start, Enter, No, Enter, Result(0)};
  EXPECT_EQ(TraceFolder{}.Play(lines).Out, TraceFolder{}.Play(lines).Out);
}

}  // namespace
}  // namespace tasca::test
