// The main loop: the start-up prompts, then one key after the other.
#include "ui/terminal/terminal.h"

#include <memory>
#include <optional>

#include "base/errors.h"
#include "base/keys.h"
#include "match/session.h"
#include "ui/manual/asunto.h"
#include "ui/manual/brief.h"
#include "ui/terminal/startup_prompts.h"
#include "ui/terminal/tty.h"

namespace tasca {
namespace {

void PrintHelp(Console& consola, Screen& pantalla, Fase fase) {
  pantalla.Repeat();
  consola.Line(BriefOf(AnchorOf(AsuntoDe(fase))));
  consola.Line(
      u"Enter sigue la mano.\n"
      u"q abandona la mano y empieza otra.\n"
      u"manos enseña las cartas de los cuatro.\n"
      u"crónica cuenta la partida desde el principio.\n"
      u"repite dice otra vez lo último.\n"
      u"cartas dice las suyas, tanteo el tanteo y los envites, y mano quién es mano.\n"
      u"sonido quita o pone el sonido.\n"
      u"salir, o Ctrl+D, deja el juego.");
}

Situacion Press(Session& sesion, int tecla, int mayusculas = 0) {
  Integer KeyCode = tecla;
  return sesion.Tecla(KeyCode, mayusculas);
}

void SwitchSound(Console& consola, MediaPlayer* mp1) {
  if (mp1 == nullptr) return consola.Line(u"En esta terminal no hay sonido.");
  mp1->TurnOn(!mp1->IsOn());
  consola.Line(mp1->IsOn() ? u"Con sonido." : u"Sin sonido.");
}

// A session and the devices on which it is played.
struct Place {
  Session& Sesion;
  Console& Consola;
  Screen& Pantalla;
  MediaPlayer* Mp1;
};

// Commands that are no keys of the game.
void Obey(const Place& lugar, std::u16string_view orden) {
  if (orden == u"?") return PrintHelp(lugar.Consola, lugar.Pantalla, lugar.Sesion.Mesa().Fase);
  if (lugar.Pantalla.Tell(lugar.Sesion.Mesa(), orden)) return;
  if (orden == u"sonido") return SwitchSound(lugar.Consola, lugar.Mp1);
  if (orden == u"cronica") return PrintChronicle(lugar.Consola, lugar.Sesion.Relato().Texto());
  lugar.Consola.Line(
      u"Pulse Enter para seguir, o escriba q para abandonar la mano o ? para la ayuda.");
}

// Shows the table, reads a line and carries it out. Requires a game that waits for a key.
Situacion AttendLine(const Place& lugar) {
  std::u16string orden;
  const Situacion situacion = lugar.Sesion.Atender([&] {
    lugar.Pantalla.Show(lugar.Sesion.Mesa());
    orden = Fold(lugar.Consola.ReadLine());
  });
  if (situacion != Situacion::EnLaMesa) return situacion;
  lugar.Pantalla.StepBegins();
  if (orden.empty()) return Press(lugar.Sesion, TeclaEnter);
  if (orden == u"q") return Press(lugar.Sesion, TeclaQ);
  if (orden == u"manos") return Press(lugar.Sesion, Tecla0, MayusculasYControl);
  if (orden == u"salir") return lugar.Sesion.Salir();
  Obey(lugar, orden);
  return situacion;
}

// From the first key to the end of the match. Requires a table.
Situacion PlayAtTable(const Place& lugar) {
  lugar.Consola.Line(
      u"Enter sigue, q abandona la mano, ? repite sus cartas y el tanteo y da ayuda.");
  Situacion situacion = Situacion::EnLaMesa;
  while (situacion == Situacion::EnLaMesa) situacion = AttendLine(lugar);
  return situacion;
}

// From the start-up prompts to the end of the match.
Situacion PlayMatch(const Place& lugar) {
  Situacion situacion = lugar.Sesion.AbrirInicio();
  lugar.Pantalla.Show(lugar.Sesion.Mesa());
  if (situacion == Situacion::EnInicio) situacion = AskStartup(lugar.Sesion, lugar.Consola);
  return situacion == Situacion::EnLaMesa ? PlayAtTable(lugar) : situacion;
}

// Prints the remaining texts or the error. Returns the exit status.
int Finish(const Place& lugar) {
  lugar.Pantalla.Show(lugar.Sesion.Mesa());
  lugar.Consola.EndLine();
  const Desenlace& final = lugar.Sesion.Final();
  if (final.Estado != 0) {
    if (!final.YaMostrado) lugar.Consola.Error(final.Mensaje);
    return final.Estado;
  }
  if (lugar.Consola.Flush()) return 0;
  lugar.Consola.Error(RunTimeError{SalidaRota}.Message());
  return 1;
}

}  // namespace

int RunTerminal(const TerminalFolders& carpetas, const TerminalStreams& flujos, Clock reloj) {
  constexpr int parado = 0;
  Console consola{flujos};
  Screen pantalla{consola};
  std::optional<MediaPlayer> mp1;
  if (flujos.Keyboard >= 0) mp1.emplace().Use(carpetas.Sound);
  MediaPlayer* const altavoz = mp1 ? &*mp1 : nullptr;
  TerminalPort puerto{consola, pantalla, reloj, altavoz};
  const auto sesion = std::make_unique<Session>(carpetas.Files, puerto, carpetas.State);
  sesion->NoGuardar(carpetas.NotSaved);
  puerto.TellFrom([&sesion] { return sesion->Relato().Texto(); });
  if (mp1) {
    consola.WaitWith(
        [&] { WaitForLine(flujos.Keyboard, *mp1, [&sesion] { sesion->FinDeSonido(parado); }); });
  }
  const Place lugar{*sesion, consola, pantalla, altavoz};
  Situacion situacion = sesion->Retomar();
  do {
    situacion = situacion == Situacion::EnLaMesa ? PlayAtTable(lugar) : PlayMatch(lugar);
  } while (situacion == Situacion::OtrosJugadores);
  return Finish(lugar);
}

}  // namespace tasca
