// The loop of a traced game. No rule of the game stands here.
#include "ui/trace/session.h"

#include <memory>

#include "base/endings.h"
#include "match/phase_machine.h"
#include "match/start.h"
#include "sound/effects.h"
#include "startup/dlg_inicio.h"
#include "ui/trace/events.h"
#include "ui/trace/input.h"
#include "ui/trace/trace_port.h"

namespace tasca {
namespace {

constexpr int ExitNormal = 0;
constexpr int ExitRunTimeError = 1;
constexpr int ExitFaultyLine = 2;

// All positions are looked at before the first is chosen: a faulty line changes nothing.
void CheckPositions(const DlgInicio& d, const StartLine& line, const Input& input) {
  for (const int position : line.Combos) {
    if (position >= static_cast<int>(d.Combo1.List.size())) {
      input.Reject("a combo has no position " + std::to_string(position));
    }
  }
}

void FillIn(DlgInicio& d, const StartLine& line) {
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

// The start-up dialog, until it is accepted; false when the input ends before.
bool StartUp(Game& g, Input& input, TracePort& port) {
  std::optional<StartLine> line = input.NextStart(true);
  if (!line) return false;
  port.SetClock(*line->Clock);
  const auto d = std::make_unique<DlgInicio>();
  Form_Load(*d, g);
  while (line) {
    CheckPositions(*d, *line, input);
    FillIn(*d, *line);
    if (CbOK_Click(*d, g)) return true;
    line = input.NextStart(false);
  }
  return false;
}

void Move(Game& g, const MoveLine& line) {
  if (line.Sound) return Mp1_FinReproduccion(g, line.Sound->PlayState);
  Integer code = line.Key->Code;
  Text1_KeyDown(g, code, line.Key->Shift);
}

void Play(Game& g, Input& input, Events& events, TracePort& port) {
  if (!StartUp(g, input, port)) return;
  Form_Load(g);
  events.State(g.t, g.rnd);
  while (const std::optional<MoveLine> line = input.NextMove()) {
    Move(g, *line);
    events.State(g.t, g.rnd);
    if (port.PlayersChange()) return events.End("players");
  }
}

int PlayToTheEnd(Game& g, Input& input, Events& events, TracePort& port) {
  try {
    Play(g, input, events, port);
    return ExitNormal;
  } catch (const LeaveProgram&) {
    events.End("quit");
    return ExitNormal;
  } catch (const RunTimeError& error) {
    events.End("error", error.Message());
    return ExitRunTimeError;
  }
}

}  // namespace

int RunTrace(const std::filesystem::path& carpeta, std::istream& in, std::ostream& out,
             std::ostream& err) {
  Input input{in};
  Events events{out};
  TracePort port{input, events};
  const auto t = std::make_unique<Table>();
  t->Carpeta = carpeta;
  Rnd rnd;
  Game g{*t, rnd, port};
  try {
    return PlayToTheEnd(g, input, events, port);
  } catch (const InputError& error) {
    err << error.what() << '\n';
  } catch (const OutputError& error) {
    err << error.what() << '\n';
  }
  return ExitFaultyLine;
}

}  // namespace tasca
