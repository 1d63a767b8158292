#pragma once
// The interface through which the rules ask the player, play sounds and read the clock. Each face
// of the game (windows, terminal, trace) implements it.
#include <string>
#include <string_view>
#include <utility>

#include "table/table.h"

namespace tasca {

struct Dialog;  // table/dialog.h

// The local time.
struct TimeOfDay {
  int Hora = 0;     // 0..23
  int Minuto = 0;   // 0..59
  int Segundo = 0;  // 0..59
};

// What a question to the player is about, so that a face need not compare its texts. The bidding
// dialog is not among them: it has its own function, ShowDialog.
enum class Pregunta {
  Mus,               // whether the player wants mus
  Descarte,          // which cards to discard
  Pares,             // whether the player has pares
  Juego,             // whether the player has juego
  Cantidad,          // how many stones to bet or to raise by
  OtraPartida,       // whether to play another match
  CambiarJugadores,  // whether to play it with other companions
  SeguirPartida,     // whether to go on with the match of the last time
};

// A question with the buttons Yes and No. An empty title means the application's title.
struct YesNoQuestion {
  std::u16string_view Titulo;
  std::u16string_view Texto;
  bool ConIcono = true;    // shows the question icon
  bool PorDefecto = true;  // the default button: true is Yes
};

// A question answered by typing. The box can be cancelled.
struct InputQuestion {
  std::u16string_view Titulo;
  std::u16string_view Texto;
  std::u16string_view PorDefecto;  // the text that the box starts with
};

// A question blocks until it is answered. It gets the table so that the face can first show the
// current Text1, Text2 and Text3. It may throw LeaveProgram if the program is ended meanwhile, and
// RunTimeError if the face cannot ask.
class Port {
 public:
  Port() = default;
  Port(const Port&) = delete;
  Port& operator=(const Port&) = delete;
  virtual ~Port() = default;

  // Shows a message box with OK under the application's title.
  virtual void MsgBox(const Table& t, std::u16string_view texto) = 0;
  // Asks a Yes/No question. True if Yes is pressed.
  virtual bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) = 0;
  // Asks for a text. Returns the text typed; "" if cancelled.
  virtual std::u16string InputBox(const Table& t, Pregunta sobre,
                                  const InputQuestion& pregunta) = 0;
  // Asks for a decision in a lance: shows the bidding dialog until Command1_Click has cleared
  // Visible. Requires that Form_Activate has set the dialog up.
  virtual void ShowDialog(const Table& t, Dialog& dialogo) = 0;

  // Plays a file of the program's folder with the settings of t.Mp1. Replaces a sound that is
  // playing. Does not block.
  virtual void OpenSound(const Table& t, std::u16string_view archivo) = 0;
  // Stops the sound that is playing, if any.
  virtual void StopSound(const Table& t) = 0;

  // The current local time.
  virtual TimeOfDay Now() = 0;

  // Requests other companions. When the current step has ended, the session closes the table and
  // the start-up dialog is shown.
  virtual void ChangePlayers() { cambiarJugadores_ = true; }
  // Returns whether ChangePlayers() was called since the last call, and clears the request.
  bool TakeChangePlayers() { return std::exchange(cambiarJugadores_, false); }

 private:
  bool cambiarJugadores_ = false;
};

}  // namespace tasca
