#pragma once
// The rules' questions, put at the terminal.
#include "table/port.h"
#include "ui/loudspeaker/media_player.h"
#include "ui/terminal/prompts.h"
#include "ui/terminal/screen.h"

namespace tasca {

using Clock = TimeOfDay (*)();
// The local time of day.
TimeOfDay LocalTime();

// Before every question it shows what is new at the table. Instead of an answer "?" helps and
// "salir" throws LeaveProgram; "q" has to wait for the answer, and is told so.
class TerminalPort : public Port {
 public:
  // Without a media player the sounds are not heard.
  TerminalPort(Console& consola, Screen& pantalla, Clock reloj, MediaPlayer* mp1 = nullptr);

  MediaPlayer* Mp1() const { return mp1_; }

  void MsgBox(const Table& t, std::u16string_view texto) override;
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override { return reloj_(); }

 private:
  // The commands that hold in the middle of a question; false for any other line.
  bool Obey(const TypedLine& linea);
  void Help(std::u16string_view seContesta);

  Console& consola_;
  Screen& pantalla_;
  Prompts preguntas_;
  Clock reloj_;
  MediaPlayer* mp1_;
};

}  // namespace tasca
