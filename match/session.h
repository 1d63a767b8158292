#pragma once
// The door to the game: everything that a face of it (windows, terminal, trace) does goes through
// here. A session goes from the start-up dialog to the table, and back when the player wants other
// companions, until it ends. It catches what the rules throw; the face reads how things stand.
#include <filesystem>
#include <functional>
#include <string>

#include "startup/dlg_inicio.h"
#include "table/game.h"

namespace tasca {

// How the game stands after something has been done.
enum class Situacion {
  EnInicio,        // the start-up dialog waits for its events
  EnLaMesa,        // the table waits for a key
  OtrosJugadores,  // the start-up dialog is to be opened anew
  Fin,             // the game is over: see Session::Final
};

// How the game has ended.
struct Desenlace {
  int Estado = 0;           // the program's exit status
  std::u16string Mensaje;   // of a run-time error; "" when the player has left
  bool YaMostrado = false;  // the player has read the message in a box of the rules' own
};

class Session {
 public:
  // `carpeta` is where the game's files lie. `port` answers what the rules ask.
  Session(std::filesystem::path carpeta, Port& port);

  const Table& Mesa() const { return t_; }
  const Rnd& Generador() const { return rnd_; }
  // The start-up dialog's state; only its events, through EnInicio, may change it.
  DlgInicio& Inicio() { return inicio_; }
  bool HaAcabado() const { return situacion_ == Situacion::Fin; }
  // Once the situation is Fin.
  const Desenlace& Final() const { return final_; }

  // All of these return how things stand then; after the end they do nothing.

  // Loads the start-up dialog. The table of a match before is cleared, and its sound stops.
  Situacion AbrirInicio();
  // Events of the start-up dialog's controls.
  Situacion EnInicio(const std::function<void()>& suceso);
  // "Aceptar": EnLaMesa once the match has started, EnInicio after a message about the choice.
  Situacion Aceptar();
  // A key in the input line; one that is used up becomes 0.
  Situacion Tecla(Integer& KeyCode, Integer Shift);
  // The media player reports its play state. Comes between two keys, or while a question is open.
  Situacion FinDeSonido(Integer estado);
  // Something of the face's own that may end the game as a rule does: waiting for a player who has
  // gone, writing to an output that fails.
  Situacion Atender(const std::function<void()>& paso);
  // The player leaves.
  Situacion Salir();

 private:
  Situacion Hacer(const std::function<Situacion()>& paso);
  void Acabar(Desenlace final);
  void LevantarMesa();

  Table t_;
  Rnd rnd_;
  Port& port_;
  Game g_{t_, rnd_, port_};
  DlgInicio inicio_;
  Situacion situacion_ = Situacion::EnInicio;
  Desenlace final_;
};

}  // namespace tasca
