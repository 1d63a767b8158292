// The loop: the start-up choices, then one key after the other.
#include "ui/terminal/terminal.h"

#include <memory>
#include <optional>

#include "base/endings.h"
#include "match/phase_machine.h"
#include "match/start.h"
#include "sound/effects.h"
#include "ui/terminal/startup_prompts.h"
#include "ui/terminal/waiting.h"

namespace tasca {
namespace {

void PrintHelp(Console& consola, Screen& pantalla) {
  pantalla.Repeat();
  consola.Line(
      u"Enter sigue la mano.\n"
      u"q abandona la mano y empieza otra.\n"
      u"0 enseña las cartas de los cuatro.\n"
      u"sonido quita o pone el sonido.\n"
      u"salir, o Ctrl+D, deja el juego.");
}

void EndSound(Game& g) {
  constexpr int parado = 0;
  Mp1_FinReproduccion(g, parado);
}

void Press(Game& g, int tecla, int mayusculas = 0) {
  Integer KeyCode = tecla;
  Text1_KeyDown(g, KeyCode, mayusculas);
}

void SwitchSound(Console& consola, MediaPlayer* mp1) {
  if (mp1 == nullptr) return consola.Line(u"En esta terminal no hay sonido.");
  mp1->TurnOn(!mp1->IsOn());
  consola.Line(mp1->IsOn() ? u"Con sonido." : u"Sin sonido.");
}

// One line typed while the game waits for a key.
void AttendLine(Game& g, Console& consola, Screen& pantalla, TerminalPort& puerto) {
  const std::u16string orden = Fold(consola.ReadLine());
  if (orden.empty()) {
    Press(g, TeclaEnter);
  } else if (orden == u"q") {
    Press(g, TeclaQ);
  } else if (orden == u"0") {
    Press(g, Tecla0, MayusculasYControl);
  } else if (orden == u"?") {
    PrintHelp(consola, pantalla);
  } else if (orden == u"sonido") {
    SwitchSound(consola, puerto.Mp1());
  } else if (orden == u"salir") {
    throw LeaveProgram{};
  } else {
    consola.Line(u"Pulse Enter para seguir, o escriba q para abandonar la mano o ? para la ayuda.");
  }
}

// From the first hand until the player wants other companions.
void PlayMatch(Game& g, Console& consola, Screen& pantalla, TerminalPort& puerto) {
  Form_Load(g);
  consola.Line(u"Enter sigue, q abandona la mano, ? repite sus cartas y el tanteo y da ayuda.");
  while (!puerto.TakeChangePlayers()) {
    pantalla.Show(g.t);
    AttendLine(g, consola, pantalla, puerto);
  }
}

void PlayUntilThePlayerLeaves(Game& g, Console& consola, Screen& pantalla, TerminalPort& puerto) {
  try {
    for (;;) {
      AskStartup(g, consola);
      PlayMatch(g, consola, pantalla, puerto);
      // The main window goes, and with it what it showed and played.
      puerto.StopSound(g.t);
      static_cast<Form1State&>(g.t) = {};
      pantalla.Show(g.t);
    }
  } catch (const LeaveProgram&) {
    pantalla.Show(g.t);
    consola.EndLine();
    consola.Flush();
  }
}

}  // namespace

int RunTerminal(const std::filesystem::path& carpeta, const TerminalStreams& flujos, Clock reloj) {
  const auto mesa = std::make_unique<Table>();
  mesa->Carpeta = carpeta;
  Rnd rnd;
  Console consola{flujos};
  Screen pantalla{consola};
  std::optional<MediaPlayer> mp1;
  if (flujos.Keyboard >= 0) mp1.emplace();
  TerminalPort puerto{consola, pantalla, reloj, mp1 ? &*mp1 : nullptr};
  Game g{*mesa, rnd, puerto};
  if (mp1) consola.WaitWith([&] { WaitForLine(flujos.Keyboard, *mp1, [&g] { EndSound(g); }); });
  try {
    PlayUntilThePlayerLeaves(g, consola, pantalla, puerto);
    return 0;
  } catch (const RunTimeError& error) {
    pantalla.Show(g.t);
    consola.EndLine();
    if (!error.Shown()) consola.Error(error.Message());
    return 1;
  }
}

}  // namespace tasca
