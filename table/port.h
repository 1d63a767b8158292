#pragma once
// What the rules ask of the outside world: questions to the player, sound, the clock. Each face of
// the game (windows, terminal, trace) is one of these.
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca {

struct Dialog;  // table/dialog.h

struct TimeOfDay {
  int Hora = 0;     // 0..23
  int Minuto = 0;   // 0..59
  int Segundo = 0;  // 0..59
};

// A question with the buttons Yes and No; an empty title stands for the application's.
struct YesNoQuestion {
  std::u16string_view Titulo;
  std::u16string_view Texto;
  bool ConIcono = true;  // the question icon
  bool PorDefecto = true;
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
  virtual bool YesNoBox(const Table& t, const YesNoQuestion& pregunta) = 0;
  // The text typed; "" when cancelled.
  virtual std::u16string InputBox(const Table& t, std::u16string_view texto,
                                  std::u16string_view titulo, std::u16string_view porDefecto) = 0;
  // Shows the bidding dialog, already prepared, until Command1_Click has hidden it.
  virtual void ShowDialog(const Table& t, Dialog& dialogo) = 0;

  // The media player opens a file of the program's folder, with the settings of t.Mp1, and plays
  // it; a sound that is playing is replaced. Never waits.
  virtual void OpenSound(const Table& t, std::u16string_view archivo) = 0;
  virtual void StopSound(const Table& t) = 0;

  virtual TimeOfDay Now() = 0;

  // The player wants other companions: once the step that asked has run to its end, the main window
  // goes and the start-up dialog comes.
  virtual void ChangePlayers() = 0;
};

}  // namespace tasca
