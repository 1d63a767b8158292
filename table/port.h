#pragma once
// What the rules ask of the outside world: questions to the player, sound, the clock. Each face of
// the game (windows, terminal, trace) is one of these.
#include <string>
#include <string_view>
#include <utility>

#include "table/table.h"

namespace tasca {

struct Dialog;  // table/dialog.h

struct TimeOfDay {
  int Hora = 0;     // 0..23
  int Minuto = 0;   // 0..59
  int Segundo = 0;  // 0..59
};

// What a question to the player is about, so that a face need not compare its texts. The bidding
// dialog is a question of its own kind.
enum class Pregunta {
  Mus,               // mus or not
  Descarte,          // which cards to throw
  Pares,             // whether the player has pares
  Juego,             // whether the player has juego
  Cantidad,          // how many stones to bet or to raise by
  OtraPartida,       // another match
  CambiarJugadores,  // other companions
};

// A question with the buttons Yes and No; an empty title stands for the application's.
struct YesNoQuestion {
  std::u16string_view Titulo;
  std::u16string_view Texto;
  bool ConIcono = true;  // the question icon
  bool PorDefecto = true;
};

// A question that is answered by typing; the box can be cancelled.
struct InputQuestion {
  std::u16string_view Titulo;
  std::u16string_view Texto;
  std::u16string_view PorDefecto;
};

// A question blocks until it is answered. It is handed the table so that a face can first show what
// the player has to see: Text1, Text2 and Text3 as they stand.
class Port {
 public:
  Port() = default;
  Port(const Port&) = delete;
  Port& operator=(const Port&) = delete;
  virtual ~Port() = default;

  // A box with OK, under the application's title.
  virtual void MsgBox(const Table& t, std::u16string_view texto) = 0;
  // True when Yes is pressed.
  virtual bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) = 0;
  // The text typed; "" when cancelled.
  virtual std::u16string InputBox(const Table& t, Pregunta sobre,
                                  const InputQuestion& pregunta) = 0;
  // Asks for a decision in a lance: shows the bidding dialog, already prepared, until
  // Command1_Click has hidden it.
  virtual void ShowDialog(const Table& t, Dialog& dialogo) = 0;

  // The media player opens a file of the program's folder, with the settings of t.Mp1, and plays
  // it; a sound that is playing is replaced. Never waits.
  virtual void OpenSound(const Table& t, std::u16string_view archivo) = 0;
  virtual void StopSound(const Table& t) = 0;

  virtual TimeOfDay Now() = 0;

  // The player wants other companions: once the step that asked has run to its end, the main window
  // goes and the start-up dialog comes.
  virtual void ChangePlayers() { cambiarJugadores_ = true; }
  // Whether that has been asked for; asking forgets it.
  bool TakeChangePlayers() { return std::exchange(cambiarJugadores_, false); }

 private:
  bool cambiarJugadores_ = false;
};

}  // namespace tasca
