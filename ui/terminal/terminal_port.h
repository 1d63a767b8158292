#pragma once
// The port of the terminal: the rules' questions as prompts.
#include <functional>
#include <string>
#include <utility>

#include "table/port.h"
#include "ui/loudspeaker/media_player.h"
#include "ui/manual/asunto.h"
#include "ui/terminal/prompts.h"
#include "ui/terminal/screen.h"

namespace tasca {

using Clock = TimeOfDay (*)();
// The time of day in the local time zone.
TimeOfDay LocalTime();

// Prints what is new at the table before every question. Every question also accepts "?" for help,
// "crónica", the words for listening, and "salir", which throws LeaveProgram. "q" is refused with
// an explanation: the question must be answered first.
class TerminalPort : public Port {
 public:
  // Without a media player sounds are ignored.
  TerminalPort(Console& consola, Screen& pantalla, Clock reloj, MediaPlayer* mp1 = nullptr);

  // Sets the function that returns the chronicle, for the word "crónica".
  void TellFrom(std::function<std::u16string()> cronica) { cronica_ = std::move(cronica); }

  // The media player, or nullptr without sound.
  MediaPlayer* Mp1() const { return mp1_; }

  // Each question throws LeaveProgram at the end of the input.
  void MsgBox(const Table& t, std::u16string_view texto) override;
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  // Does not wait for the end of the sound.
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override { return reloj_(); }

 private:
  // Carries out a command of the class comment. False if the line is an answer.
  bool Obey(const TypedLine& linea);
  void Help(std::u16string_view seContesta);
  // Prints what is new before a question.
  void ShowTable(const Table& t);

  Console& consola_;
  Screen& pantalla_;
  Prompts preguntas_;
  Clock reloj_;
  MediaPlayer* mp1_;
  std::function<std::u16string()> cronica_ = [] { return std::u16string{}; };
  const Table* mesa_ = nullptr;           // of the open question
  std::vector<std::string_view> anclas_;  // the sections of the manual about the open question
};

}  // namespace tasca
