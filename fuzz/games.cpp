// Fuzzes whole games of the rules, without a face: the bytes are the player's choices. The table's
// invariants must hold, and no game may throw except the error that the plan provokes.
#include <array>
#include <memory>

#include "base/code_page.h"
#include "base/errors.h"
#include "base/text.h"
#include "fuzz/support/bytes.h"
#include "fuzz/support/folder.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"
#include "match/phase_machine.h"
#include "match/start.h"
#include "sound/effects.h"
#include "startup/dlg_inicio.h"
#include "table/dialog.h"
#include "tests/ui_trace/invariants.h"
#include "tests/ui_trace/random_choices.h"

namespace tasca::fuzz {
namespace {

using test::Provocation;

// The settings of a game, from one byte. Most games have one hand: in longer ones the shuffles take
// most of the time.
struct Plan {
  Provocation Provoked;
  int Hands;
};

Plan PlanOf(int byte) {
  constexpr std::array<int, 8> hands{1, 1, 1, 1, 1, 2, 3, 12};
  Plan plan{Provocation::None, hands.at(static_cast<std::size_t>(byte / 8 % 8))};
  if (byte % 8 == 6) plan.Provoked = Provocation::NoPhrases;
  if (byte % 8 == 7) plan.Provoked = Provocation::HugeAmounts;
  return plan;
}

// A port whose answers come from the choices.
class Answers : public Port {
 public:
  explicit Answers(test::RandomChoices& choices) : choices_{choices} {}

  void SetClock(TimeOfDay clock) { clock_ = clock; }

  void MsgBox(const Table& /*t*/, std::u16string_view /*texto*/) override {}
  bool YesNoBox(const Table& /*t*/, Pregunta /*sobre*/, const YesNoQuestion& pregunta) override {
    return choices_.SaysYes(pregunta.Texto);
  }
  std::u16string InputBox(const Table& /*t*/, Pregunta /*sobre*/,
                          const InputQuestion& pregunta) override {
    return Decode(choices_.Typed(pregunta.Titulo).value_or(""));
  }
  void ShowDialog(const Table& /*t*/, Dialog& dialogo) override {
    const int button = choices_.Button(static_cast<int>(dialogo.Modo));
    Require(dialogo.Command1[button].Visible && dialogo.Command1[button].Enabled,
            "the dialog offers what its mode promises");
    Command1_Click(dialogo, button);
  }
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return clock_; }

 private:
  test::RandomChoices& choices_;
  TimeOfDay clock_;
};

// Accepts the start-up dialog and opens the main window.
void Start(Game& g, const test::StartChoice& start) {
  DlgInicio d;
  Form_Load(d, g);
  Combo1_Click(d, start.Combos[0]);
  Combo2_Click(d, start.Combos[1]);
  Combo3_Click(d, start.Combos[2]);
  Check1_Click(d, 0, start.Checks[0]);
  Check1_Click(d, 1, start.Checks[1]);
  Option1_Click(d, start.Option);
  Require(CbOK_Click(d, g), "the dialog takes companions that differ");
  Form_Load(g);
}

void Move(Game& g, const test::MoveChoice& move) {
  if (move.Sound) return Mp1_FinReproduccion(g, *move.Sound);
  Integer code = move.Key;
  Text1_KeyDown(g, code, move.Shift);
}

// A blank table with its folder set. Reuses one object: constructing a Table for every game is
// slow.
Table& NewTable(const Folder& folder) {
  static const auto blank = std::make_unique<const Table>();
  static const auto t = std::make_unique<Table>();
  *t = *blank;
  t->Carpeta = folder.Path();
  return *t;
}

// Plays until the hands are played, the player leaves, or the bytes end while no question is open.
// Checks the table whenever it waits for a key.
void Play(Game& g, test::RandomChoices& choices, Answers& answers, const Bytes& bytes, int hands) {
  test::Watch watch;
  const test::StartChoice start = choices.Start();
  answers.SetClock(start.Clock);
  Start(g, start);
  while (!answers.TakeChangePlayers()) {
    watch.Look(test::SituationOf(g.t, g.rnd));
    Require(watch.Fault().empty(), watch.Fault());
    if (bytes.Empty() || watch.HandsPlayed() >= hands) break;
    Move(g, choices.Move());
  }
}

std::unique_ptr<Folder> FolderWithCharacters() {
  auto folder = std::make_unique<Folder>();
  std::filesystem::copy(TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat",
                        folder->Path() / "Jugadores.dat");
  return folder;
}

}  // namespace

void Run(std::string_view input) {
  static const std::unique_ptr<Folder> folder = FolderWithCharacters();
  Bytes bytes{input};
  const Plan plan = PlanOf(bytes.Below(64));
  test::RandomChoices choices{[&bytes](int n) { return bytes.Below(n); }, plan.Provoked};
  folder->Write("mus.ini", choices.Settings());
  Answers answers{choices};
  Rnd rnd;
  Game g{NewTable(*folder), rnd, answers};
  try {
    Play(g, choices, answers, bytes, plan.Hands);
  } catch (const LeaveProgram&) {
  } catch (const RunTimeError& error) {
    const std::u16string_view allowed = test::ErrorOf(plan.Provoked);
    Require(!allowed.empty() && Contains(error.Message(), allowed),
            "a game ends as it was asked to");
  }
}

}  // namespace tasca::fuzz
