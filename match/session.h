#pragma once
// The facade of the game: the faces (windows, terminal, trace) call the rules only through it. A
// session starts with the start-up dialog, goes on to the table and back to the dialog if the
// player wants other companions, until it ends. It catches the exceptions of the rules and reports
// a situation.
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "keep/conservador.h"
#include "match/cronica.h"
#include "match/cronista.h"
#include "startup/dlg_inicio.h"
#include "table/game.h"

namespace tasca {

// The state of the session after a step.
enum class Situacion {
  EnInicio,        // waiting for events of the start-up dialog
  EnLaMesa,        // waiting for a key at the table
  OtrosJugadores,  // the face must call AbrirInicio again
  Fin,             // the game has ended: see Session::Final
};

// The result of an ended game.
struct Desenlace {
  int Estado = 0;               // the program's exit status
  std::u16string Mensaje;       // the message of a run-time error; "" if the player has left
  bool YaMostrado = false;      // a rule has already shown the message in a message box
  bool PartidaAcabada = false;  // the match has been played to its end
};

// All of a session between two steps, except its files.
struct Instante {
  Table Mesa;
  Rnd Generador;
  Cronica Relato;
  DlgInicio Inicio;
  tasca::Situacion Situacion = tasca::Situacion::EnInicio;
  Desenlace Final;
};

// One run of the game, from the start-up dialog to the end.
class Session {
 public:
  // `carpeta` is the folder of the game's files. `port` must outlive the session. The match is kept
  // in `estado` after every step, until it is over; without `estado` it is not, and an empty path
  // means that the user has no folder for it.
  Session(std::filesystem::path carpeta, Port& port,
          const std::optional<std::filesystem::path>& estado = std::nullopt);

  // From now on nothing is written to the folder of the game's files, for this reason; "" allows
  // it.
  void NoGuardar(std::u16string motivo) { t_.SinGuardar = std::move(motivo); }

  // The state of the table, for showing it.
  const Table& Mesa() const { return t_; }
  // The random generator, for the count of draws.
  const Rnd& Generador() const { return rnd_; }
  // All that has been said in the match, which may be the last one while the start-up dialog is
  // open.
  const Cronica& Relato() const { return cronica_; }
  // The state of the start-up dialog. Change it only inside EnInicio.
  DlgInicio& Inicio() { return inicio_; }
  const DlgInicio& Inicio() const { return inicio_; }
  // The situation after the last step. A step that was abandoned does not change it.
  Situacion Ahora() const { return situacion_; }
  // True once the situation is Fin.
  bool HaAcabado() const { return situacion_ == Situacion::Fin; }
  // The result of the game. Requires HaAcabado().
  const Desenlace& Final() const { return final_; }

  // Copies the session, and goes back to a copy: a face that cannot wait inside a question runs the
  // step again when it has the answer. Requires a session without `estado`.
  void Copiar(Instante& en) const;
  void Volver(const Instante& instante);

  // Each of the functions below runs one step and returns the situation after it. A LeaveProgram or
  // RunTimeError ends the game and sets Final. After the end they do nothing and return Fin.

  // Offers to go on with the match that was kept the last time. Returns EnLaMesa if the player
  // does, otherwise EnInicio: then the start-up dialog must be opened.
  Situacion Retomar();
  // Opens the start-up dialog. Stops the sound of a previous match and clears its table.
  Situacion AbrirInicio();
  // Runs an event of the start-up dialog's controls.
  Situacion EnInicio(const std::function<void()>& suceso);
  // "Aceptar" was pressed. Starts the match; returns EnInicio if the choice was rejected.
  Situacion Aceptar();
  // A key was pressed in the input line. Sets KeyCode to 0 if the key is consumed.
  Situacion Tecla(Integer& KeyCode, Integer Shift);
  // The media player reports a new play state. May be called between two keys and while a question
  // is open.
  Situacion FinDeSonido(Integer estado);
  // Runs code of the face that may throw like a rule, such as reading input or writing output.
  Situacion Atender(const std::function<void()>& paso);
  // The player leaves: ends the game with a successful exit status.
  Situacion Salir();

 private:
  // Runs a step, catches what it throws and updates the situation.
  Situacion Hacer(const std::function<Situacion()>& paso);
  // Ends the game. The first result stays.
  void Acabar(Desenlace final);
  // Goes on with the chronicle of the match that goes on. If it is lost, begins a new one.
  void ReanudarCronica();
  // Writes what a step has said into the chronicle.
  void AnotarPaso();
  // Begins to keep the match as it is now.
  void Conservar();
  // The kept match is over.
  void Olvidar();
  // Stops the sound and clears the main window's state.
  void LevantarMesa();

  Table t_;
  Rnd rnd_;
  Port& port_;
  Cronica cronica_;
  Cronista cronista_{port_, cronica_};
  Game g_{t_, rnd_, cronista_};
  DlgInicio inicio_;
  std::optional<Conservador> conservador_;
  Situacion situacion_ = Situacion::EnInicio;
  Desenlace final_;
};

}  // namespace tasca
