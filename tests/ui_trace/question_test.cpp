// Questions and their answers.
#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "tests/ui_trace/conversation.h"
#include "tests/ui_trace/trace_run.h"

namespace tasca::test {
namespace {

// The lines up to the grande: the human refuses mus, is mano and opens.
std::vector<std::string> UpToTheGrande(std::vector<std::string> more) {
  std::vector<std::string> lines{Start, Enter, No, Enter};
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

TEST(TraceQuestion, MusIsAYesNoBoxWithTheTextsOnTheScreen) {
  const TraceRun run = TraceFolder{}.Play({Start, Enter, No});
  const auto& box = run.First("msgbox");
  const auto& before = run.First("state");
  EXPECT_EQ(box["title"], "¿mus?");
  EXPECT_EQ(box["text"], "");
  EXPECT_EQ(box["buttons"], "yesno");
  EXPECT_EQ(box["icon"], "question");
  EXPECT_EQ(box["default"], "yes");
  // The transcript has been cleared; the input line still shows the hand.
  EXPECT_EQ(box["texts"].size(), 3U);
  EXPECT_EQ(box["texts"][0], before["Text1"]);
  EXPECT_EQ(box["texts"][1], "");
  EXPECT_EQ(box["texts"][2], "");
}

TEST(TraceQuestion, NoRefusesTheMus) {
  const auto state = TraceFolder{}.Play({Start, Enter, No}).Last();
  EXPECT_EQ(state["Fase"], 1);
  EXPECT_EQ(state["ParejaCortaMus"], 1);
  EXPECT_EQ(state["ManoPorDecidir"], 0);
  EXPECT_EQ(state["Text2"], "Ana: NMusD\r\nAna es mano\rPulse enter para continuar");
}

TEST(TraceQuestion, ExtraFieldsOfAnAnswerAreIgnored) {
  const TraceRun run = TraceFolder{}.Play({Start, Enter, R"({"id": 7, "button": "no", "key": 1})"});
  EXPECT_EQ(run.Last()["Fase"], 1);
}

TEST(TraceQuestion, TheDialogHasItsTitleAndMode) {
  const TraceRun run = TraceFolder{}.Play(UpToTheGrande({Result(0)}));
  EXPECT_EQ(run.First("dialog")["title"], "La grande");
  EXPECT_EQ(run.First("dialog")["mode"], -1);
  EXPECT_EQ(run.First("dialog")["texts"][1], "La grande\r\n");
  EXPECT_EQ(run.Last()["event"], "state");
}

// The human's line at grande after "Envido Más" and this answer to the amount.
std::string SaysAfterRaising(const std::string& answer) {
  const auto text = TraceFolder{}.Play(UpToTheGrande({Result(2), answer})).Last()["Text2"];
  const std::string lines =
      text.get<std::string>().substr(std::string_view{"La grande\r\n"}.size());
  return lines.substr(0, lines.find("\r\n"));
}

TEST(TraceQuestion, TheInputBoxAcceptsTextOrCancel) {
  EXPECT_EQ(SaysAfterRaising(R"({"text": "13"})"), "Ana: EnvM13D");
  EXPECT_EQ(SaysAfterRaising(R"({"text": ""})"), "Ana: EnvM2D");
  EXPECT_EQ(SaysAfterRaising(R"({"text": "muchas"})"), "Ana: EnvM2D");
  EXPECT_EQ(SaysAfterRaising(R"({"button": "cancel"})"), "Ana: EnvM2D");
}

TEST(TraceQuestion, TheInputBoxHasItsTitlePromptAndDefault) {
  const TraceRun run = TraceFolder{}.Play(UpToTheGrande({Result(2), R"({"text": "3"})"}));
  const auto& box = run.First("inputbox");
  EXPECT_EQ(box["title"], "Envite a grande");
  EXPECT_EQ(box["text"], "¿Cuántas envida?");
  EXPECT_EQ(box["default"], "2");
  EXPECT_EQ(box["texts"][1], "La grande\r\n");
}

TEST(TraceQuestion, AMessageBoxWithOnlyOkNeedsNoAnswer) {
  // One stone before the end of the juego every computer seat bets an órdago. The human passes,
  // then accepts the órdago of seat 2.
  const TraceRun run =
      TraceFolder{1, 3, 3}.Play({Start, Enter, No, Enter, Result(0), Result(1), Enter});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Names(), "sound state msgbox state dialog dialog msgbox state sound state");
  EXPECT_EQ(run.Events.at(4)["mode"], -1);
  EXPECT_EQ(run.Events.at(5)["mode"], -2);
  const auto& box = run.Events.at(6);
  EXPECT_EQ(
      box["text"].get<std::string>().rfind("órdago a grande querido y ganado por la pareja ", 0),
      0U);
  EXPECT_EQ(box["buttons"], "ok");
  // All four hands are shown while the box is open.
  EXPECT_NE(box["texts"][0].get<std::string>().find("el Cojo\r\n"), std::string::npos);
  EXPECT_EQ(run.Events.at(7)["Fase"], -1);
}

// A player who refuses mus, passes and denies having pares. Stores the default answer of that
// question and the text of the next event.
struct Denier {
  std::string Default;
  std::string Afterwards;

  std::optional<std::string> operator()(const TraceEvents& events, int second) {
    if (events.empty()) {
      return R"({"start": {"clock": [0, 0, )" + std::to_string(second) +
             R"(], "combos": [3, 1, 2]}})";
    }
    if (!Default.empty()) {
      Afterwards = events.front().value("text", "");
      return std::nullopt;
    }
    const auto& last = events.back();
    if (last.value("title", "") == "¿Tiene pares?") Default = last["default"];
    if (last["event"] == "state") return Enter;
    return last["event"] == "dialog" ? Result(0) : No;
  }
};

TEST(TraceQuestion, TheDeclarationsDefaultIsTheTruth) {
  // A false "no" is corrected in a message box; a true one is not.
  const TraceFolder folder;
  std::set<std::pair<std::string, std::string>> seen;
  for (int second = 0; second < 20; ++second) {
    Denier denier;
    Converse(folder.Files().Path(),
             [&denier, second](const TraceEvents& events) { return denier(events, second); });
    seen.emplace(denier.Default, denier.Afterwards);
  }
  const std::set<std::pair<std::string, std::string>> expected{
      {"no", ""},
      {"yes", "En realidad sí tiene pares, y eso es lo que dice (por lo que pudiera pasar...)"}};
  EXPECT_EQ(seen, expected);
}

}  // namespace
}  // namespace tasca::test
