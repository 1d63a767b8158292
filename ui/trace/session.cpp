// The main loop of a traced game.
#include "ui/trace/session.h"

#include <memory>

#include "match/session.h"
#include "ui/trace/events.h"
#include "ui/trace/input.h"
#include "ui/trace/trace_port.h"

namespace tasca {
namespace {

constexpr int ExitNormal = 0;
constexpr int ExitFaultyLine = 2;

// Checks all positions before any is applied, so that a rejected line changes nothing.
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

// Runs the start-up dialog until it is accepted. False if the game or the input ends before.
bool StartUp(Session& session, Input& input, TracePort& port) {
  std::optional<StartLine> line = input.NextStart(true);
  if (!line) return false;
  port.SetClock(*line->Clock);
  Situacion situation = session.AbrirInicio();
  while (line && situation == Situacion::EnInicio) {
    DlgInicio& d = session.Inicio();
    CheckPositions(d, *line, input);
    session.EnInicio([&d, &line] { FillIn(d, *line); });
    situation = session.Aceptar();
    if (situation == Situacion::EnInicio) line = input.NextStart(false);
  }
  return situation == Situacion::EnLaMesa;
}

Situacion Move(Session& session, const MoveLine& line) {
  if (line.Sound) return session.FinDeSonido(line.Sound->PlayState);
  Integer code = line.Key->Code;
  return session.Tecla(code, line.Key->Shift);
}

// Plays until the game or the input ends.
void Play(Session& session, Input& input, Events& events) {
  events.State(session.Mesa(), session.Generador());
  Situacion situation = Situacion::EnLaMesa;
  while (situation == Situacion::EnLaMesa) {
    const std::optional<MoveLine> line = input.NextMove();
    if (!line) return;
    situation = Move(session, *line);
    if (situation != Situacion::Fin) events.State(session.Mesa(), session.Generador());
  }
  if (situation == Situacion::OtrosJugadores) events.End("players");
}

// Writes the end event if the game has ended. Returns the exit status.
int Finish(const Session& session, Events& events) {
  if (!session.HaAcabado()) return ExitNormal;
  const Desenlace& ending = session.Final();
  events.End(ending.Estado == ExitNormal ? "quit" : "error", ending.Mensaje);
  return ending.Estado;
}

}  // namespace

int RunTrace(const std::filesystem::path& carpeta, std::istream& in, std::ostream& out,
             std::ostream& err) {
  Input input{in};
  Events events{out};
  TracePort port{input, events};
  const auto session = std::make_unique<Session>(carpeta, port);
  try {
    if (StartUp(*session, input, port)) Play(*session, input, events);
    return Finish(*session, events);
  } catch (const InputError& error) {
    err << error.what() << '\n';
  } catch (const OutputError& error) {
    err << error.what() << '\n';
  }
  return ExitFaultyLine;
}

}  // namespace tasca
