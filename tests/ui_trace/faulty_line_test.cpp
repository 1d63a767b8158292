// Invalid lines: the message has the line number, the status is 2, and nothing is changed.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "tests/ui_trace/trace_run.h"

namespace tasca::test {
namespace {

using Lines = std::vector<std::string>;

// The observable result of a trace.
struct Seen {
  int Status;
  std::string WhichLine;  // the start of the message
  bool OneMessage;
  std::string Out;
  std::string Settings;  // "mus.ini" afterwards

  bool operator==(const Seen&) const = default;
};

void PrintTo(const Seen& seen, std::ostream* out) {
  *out << "status " << seen.Status << ", " << seen.WhichLine << "\n" << seen.Out << seen.Settings;
}

Seen PlayFaulty(const TraceFolder& folder, Lines lines, const std::string& faulty) {
  lines.push_back(faulty);
  lines.emplace_back(Enter);
  const TraceRun run = folder.Play(lines);
  return {.Status = run.Status,
          .WhichLine = run.Err.substr(0, run.Err.find(' ', 5)),
          .OneMessage = run.Err.find('\n') == run.Err.size() - 1,
          .Out = run.Out,
          .Settings = folder.Files().Read("mus.ini")};
}

// Plays each faulty line after `before`. It must be refused with its line number, and the output
// and the settings must be those of the lines before it.
void EveryOneIsRefused(const TraceFolder& folder, const Lines& before, const Lines& faulty) {
  const std::string settings = folder.Files().Read("mus.ini");
  const TraceRun alone = folder.Play(before);
  const Seen expected{.Status = 2,
                      .WhichLine = "line " + std::to_string(before.size() + 1) + ":",
                      .OneMessage = true,
                      .Out = alone.Out,
                      .Settings = folder.Files().Read("mus.ini")};
  for (const std::string& line : faulty) {
    folder.Files().Write("mus.ini", settings);
    EXPECT_EQ(PlayFaulty(folder, before, line), expected) << line;
  }
}

const Lines NoObjects{"",
                      " ",
                      "\t",
                      "null",
                      "13",
                      "\"key\"",
                      "[]",
                      "{",
                      "{}}",
                      "{\"key\": 13",
                      "{key: 13}",
                      "{'key': 13}",
                      "{}",
                      "true",
                      "[{}, {}]",
                      "\xFF\xFE",
                      "{\"text\": \"\xE1\"}"};

std::string StartOf(const std::string& fields) { return R"({"start": {)" + fields + "}}"; }

TEST(TraceFaultyLine, InsteadOfTheFirstStart) {
  const TraceFolder folder{35, 3, 3};
  EveryOneIsRefused(folder, {}, NoObjects);
  const std::string combos = R"("combos": [1, 2, 3])";
  EveryOneIsRefused(folder, {},
                    {Enter,
                     R"({"sound": 0})",
                     Yes,
                     Result(0),
                     R"({"text": "a"})",
                     R"({"start": []})",
                     R"({"start": 1})",
                     StartOf(combos),
                     StartOf(R"("clock": [0, 0, 0])"),
                     StartOf(R"("clock": [0, 0], )" + combos),
                     StartOf(R"("clock": [0, 0, 0, 0], )" + combos),
                     StartOf(R"("clock": [24, 0, 0], )" + combos),
                     StartOf(R"("clock": [-1, 0, 0], )" + combos),
                     StartOf(R"("clock": [0, -1, 0], )" + combos),
                     StartOf(R"("clock": [0, 0, -1], )" + combos),
                     StartOf(R"("clock": [0, 60, 0], )" + combos),
                     StartOf(R"("clock": [0, 0, 60], )" + combos),
                     StartOf(R"("clock": [0, 0, 0.0], )" + combos),
                     StartOf(R"("clock": ["0", 0, 0], )" + combos),
                     StartOf(R"("clock": "0:00:00", )" + combos)});
}

TEST(TraceFaultyLine, WithFieldsThatTheDialogCannotTake) {
  const auto with = [](const std::string& fields) {
    return StartOf(R"("clock": [0, 0, 0], )" + fields);
  };
  EveryOneIsRefused(
      TraceFolder{35, 3, 3}, {},
      {with(R"("combos": [1, 2])"), with(R"("combos": [1, 2, 3, 4])"), with(R"("combos": 1)"),
       with(R"("combos": [1, 2, 5])"), with(R"("combos": [5, 1, 2])"),
       with(R"("combos": [-1, 1, 2])"), with(R"("combos": [1, 2, 3.0])"),
       with(R"("combos": [1, 2, true])"), with(R"("combos": [1, 2, 18446744073709551615])"),
       with(R"("combos": [1, 2, 3], "checks": [true])"),
       with(R"("combos": [1, 2, 3], "checks": [1, 0])"),
       with(R"("combos": [1, 2, 3], "checks": true)"), with(R"("combos": [1, 2, 3], "option": 2)"),
       with(R"("combos": [1, 2, 3], "option": -1)"), with(R"("combos": [1, 2, 3], "option": true)"),
       with(R"("combos": [1, 2, 3], "name": 7)"), with(R"("combos": [1, 2, 3], "name": null)")});
}

TEST(TraceFaultyLine, IsRefusedWithTheReason) {
  const TraceFolder folder{35, 3, 3};
  const auto start = [](const std::string& clock, const std::string& fields) {
    return StartOf("\"clock\": [" + clock + "], \"combos\": " + fields);
  };
  const std::vector<std::pair<std::string, std::string>> faults{
      {"13", "not a JSON object"},
      {"{}", "a start is waited for"},
      {start("0, 0", "[1, 2, 3]"), "start needs clock, a list of 3"},
      {start("24, 0, 0", "[1, 2, 3]"), "the hour is no whole number from 0 to 23"},
      {start("0, 60, 0", "[1, 2, 3]"), "the minute is no whole number from 0 to 59"},
      {start("0, 0, 60", "[1, 2, 3]"), "the second is no whole number from 0 to 59"},
      {start("0, 0, 0", "[1, 2]"), "start needs combos, a list of 3"},
      {start("0, 0, 0", "[-1, 2, 3]"), "a position of combos is no whole number from 0 to 32767"},
      {start("0, 0, 0", "[1, 2, 3], \"checks\": [1, true]"),
       "a box of checks is neither true nor false"},
      {start("0, 0, 0", "[1, 2, 3], \"checks\": [true, 1]"),
       "a box of checks is neither true nor false"},
      {start("0, 0, 0", "[1, 2, 3], \"option\": 2"), "option is no whole number from 0 to 1"},
      {start("0, 0, 0", "[1, 2, 3], \"name\": 7"), "name is no text"}};
  for (const auto& [line, reason] : faults) {
    EXPECT_EQ(folder.Play({line}).Err, "line 1: " + reason + "\n") << line;
  }
  EXPECT_EQ(folder.Play({Start, "{}"}).Err, "line 2: a key or a sound is waited for\n");
}

TEST(TraceFaultyLine, InsteadOfALaterStart) {
  const TraceFolder folder{35, 3, 3};
  const Lines refused{StartOf(R"("clock": [0, 0, 0], "combos": [1, 1, 1])")};
  EveryOneIsRefused(folder, refused, NoObjects);
  EveryOneIsRefused(folder, refused,
                    {Enter, Yes, StartOf(""), StartOf(R"("name": "Eva")"),
                     StartOf(R"("combos": [1, 2, 9])"), StartOf(R"("combos": [])")});
}

TEST(TraceFaultyLine, InsteadOfAKey) {
  const TraceFolder folder{35, 3, 3};
  EveryOneIsRefused(folder, {Start}, NoObjects);
  EveryOneIsRefused(
      folder, {Start},
      {Start, Yes, Result(0), R"({"text": "1"})", R"({"key": "13"})", R"({"key": 13.0})",
       R"({"key": true})", R"({"key": null})", R"({"key": 32768})", R"({"key": -32769})",
       R"({"key": 4294967309})", R"({"key": 18446744073709551615})", R"({"key": 13, "shift": "3"})",
       R"({"key": 13, "shift": 65536})", R"({"key": 13, "sound": 0})", R"({"sound": "0"})",
       R"({"sound": 32768})", R"({"sound": 0.5})", R"({"Key": 13})"});
}

TEST(TraceFaultyLine, InsteadOfYesOrNo) {
  const TraceFolder folder{35, 3, 3};
  const Lines before{Start, Enter};
  EveryOneIsRefused(folder, before, NoObjects);
  EveryOneIsRefused(folder, before,
                    {Enter, Result(0), R"({"sound": 0})", R"({"text": "yes"})",
                     R"({"button": "Yes"})", R"({"button": "cancel"})", R"({"button": "ok"})",
                     R"({"button": 6})", R"({"button": true})", R"({"button": ["yes"]})"});
}

TEST(TraceFaultyLine, InsteadOfTypedText) {
  const TraceFolder folder{35, 3, 3};
  const Lines before{Start, Enter, No, Enter, Result(2)};
  EveryOneIsRefused(folder, before, NoObjects);
  EveryOneIsRefused(
      folder, before,
      {Enter, Yes, Result(0), R"({"text": 13})", R"({"text": null})", R"({"button": "ok"})",
       R"({"button": 2})", R"({"text": "1", "button": "cancel"})"});
}

TEST(TraceFaultyLine, InsteadOfAButtonOfTheDialog) {
  const TraceFolder folder{35, 3, 3};
  const Lines before{Start, Enter, No, Enter};
  EveryOneIsRefused(folder, before, NoObjects);
  EveryOneIsRefused(
      folder, before,
      {Enter, Yes, R"({"text": "1"})", Result(4), Result(-1), R"({"result": "0"})",
       R"({"result": 0.0})", R"({"result": true})", R"({"result": null})", R"({"result": 65536})"});
}

TEST(TraceFaultyLine, AnOrdagoOffersNeitherARaiseNorAnother) {
  // One stone before the end of the juego seat 2 bets an órdago after the human's paso.
  const Lines before{Start, Enter, No, Enter, Result(0)};
  const TraceFolder folder{1, 3, 3};
  EveryOneIsRefused(folder, before, {Result(2), Result(3)});
  EXPECT_EQ(folder.Play({Start, Enter, No, Enter, Result(0), Result(2)}).Err,
            "line 6: the dialog does not offer that button now\n");
}

TEST(TraceFaultyLine, SaysWhatIsWaitedFor) {
  const TraceFolder folder{35, 3, 3};
  EXPECT_EQ(folder.Play({Start, Enter, "{}"}).Err,
            "line 3: button \"yes\" or \"no\" is waited for\n");
  EXPECT_EQ(folder.Play({Start, Enter, No, Enter, "{}"}).Err,
            "line 5: a result of the dialog is waited for\n");
  EXPECT_EQ(folder.Play({Start, Enter, No, Enter, Result(2), "{}"}).Err,
            "line 6: text or button \"cancel\" is waited for\n");
}

TEST(TraceFaultyLine, TheEndOfTheInputWhileAQuestionIsOpen) {
  for (const Lines& lines : {Lines{Start, Enter}, Lines{Start, Enter, No, Enter},
                             Lines{Start, Enter, No, Enter, Result(2)}}) {
    const TraceRun run = TraceFolder{}.Play(lines);
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(run.Err, "line " + std::to_string(lines.size() + 1) +
                           ": the input ends while a question is open\n");
  }
}

}  // namespace
}  // namespace tasca::test
