// Every recorded game, interrupted after each of its steps: what is kept goes on to the same end.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <sstream>
#include <vector>

#include "base/errors.h"
#include "keep/partida_guardada.h"
#include "match/phase_machine.h"
#include "match/start.h"
#include "sound/effects.h"
#include "startup/dlg_inicio.h"
#include "tests/support/temp_folder.h"
#include "tests/traces/game_folder.h"
#include "tests/traces/read_file.h"
#include "ui/trace/trace_port.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

const fs::path Games = TASCA_SOURCE_DIR "/tests/traces";

std::vector<std::string> GameNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator{Games}) {
    if (fs::exists(entry.path() / "in.jsonl")) names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// A game through the trace's input and output, with the rules called directly.
class Play {
 public:
  explicit Play(const std::string& in) : in_{in} {}

  Table& Mesa() { return *mesa_; }
  Rnd& Generator() { return rnd_; }
  std::string Out() const { return out_.str(); }
  // The input that has not been read.
  std::string Rest() { return in_.str().substr(static_cast<std::size_t>(in_.tellg())); }

  // False if the game ends before the first hand.
  bool StartUp() {
    return Guarded([this] {
      std::optional<StartLine> line = input_.NextStart(true);
      port_.SetClock(*line->Clock);
      DlgInicio d;
      Form_Load(d, game_);
      do {
        FillIn(d, *line);
        if (CbOK_Click(d, game_)) return Form_Load(game_);
        line = input_.NextStart(false);
      } while (line);
      throw LeaveProgram{};
    });
  }

  // Plays one line. False at the end of the input or of the game.
  bool Step() {
    in_.peek();
    if (in_.eof()) return false;
    bool others = false;
    const bool goesOn = Guarded([this, &others] {
      const MoveLine line = *input_.NextMove();
      if (line.Sound) return Mp1_FinReproduccion(game_, line.Sound->PlayState);
      Integer code = line.Key->Code;
      Text1_KeyDown(game_, code, line.Key->Shift);
      others = port_.TakeChangePlayers();
    });
    if (goesOn) WriteState();
    if (others) events_.End("players");
    return goesOn && !others;
  }

  void WriteState() { events_.State(*mesa_, rnd_); }

 private:
  static void FillIn(DlgInicio& d, const StartLine& line) {
    Combo1_Click(d, line.Combos[0]);
    Combo2_Click(d, line.Combos[1]);
    Combo3_Click(d, line.Combos[2]);
    if (line.Checks) {
      Check1_Click(d, 0, (*line.Checks)[0]);
      Check1_Click(d, 1, (*line.Checks)[1]);
    }
    if (line.Option) Option1_Click(d, *line.Option);
    if (line.Name) d.Text2 = *line.Name;
  }

  // Writes the end of the game if the step ends it, and returns false.
  template <class AStep>
  bool Guarded(const AStep& step) {
    try {
      step();
      return true;
    } catch (const LeaveProgram&) {
      events_.End("quit");
    } catch (const RunTimeError& error) {
      events_.End("error", error.Message());
    }
    return false;
  }

  std::istringstream in_;
  std::ostringstream out_;
  Input input_{in_};
  Events events_{out_};
  TracePort port_{input_, events_};
  std::unique_ptr<Table> mesa_ = std::make_unique<Table>();
  Rnd rnd_;
  Game game_{*mesa_, rnd_, port_};
};

// The game as kept after a step: what is still to be read and what has been written.
struct Kept {
  std::string Bytes;
  std::string Rest;
  std::size_t Written;
};

class ContinuedGame : public testing::TestWithParam<std::string> {};

TEST_P(ContinuedGame, EndsLikeTheWholeGameFromEveryStep) {
  const TempFolder folder;
  FillFolder(folder.Path(), Games / GetParam());
  Play whole{ReadFile(Games / GetParam() / "in.jsonl")};
  whole.Mesa().Carpeta = folder.Path();
  std::vector<Kept> steps;
  if (whole.StartUp()) {
    whole.WriteState();
    do {
      steps.push_back(
          {EscribirPartida(whole.Mesa(), whole.Generator()), whole.Rest(), whole.Out().size()});
    } while (whole.Step());
  }
  const std::string out = whole.Out();
  ASSERT_EQ(WithoutFolder(out, folder.Path().string()), ReadFile(Games / GetParam() / "out.jsonl"));
  for (const Kept& step : steps) {
    Play continued{step.Rest};
    ASSERT_TRUE(LeerPartida(step.Bytes, continued.Mesa(), continued.Generator()));
    while (continued.Step()) continue;
    ASSERT_EQ(continued.Out(), out.substr(step.Written));
  }
}

INSTANTIATE_TEST_SUITE_P(Recorded, ContinuedGame, testing::ValuesIn(GameNames()),
                         [](const auto& game) {
                           std::string name = game.param;
                           std::erase(name, '-');
                           return name;
                         });

}  // namespace
}  // namespace tasca::test
