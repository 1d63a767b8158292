#pragma once
// A port that answers from a script and records the questions. A question without a scripted answer
// fails the test.
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "table/dialog.h"
#include "table/port.h"

namespace tasca::test {

class ScriptedPort : public Port {
 public:
  ScriptedPort() = default;
  ScriptedPort(const ScriptedPort&) = delete;
  ScriptedPort& operator=(const ScriptedPort&) = delete;
  // Fails the test if a scripted answer was not used.
  ~ScriptedPort() override;

  // Appends an answer: to a Yes/No box, to an input box, to the bidding dialog (button 0 to 3).
  // Each kind has a queue of its own.
  ScriptedPort& Yes();
  ScriptedPort& No();
  ScriptedPort& Types(std::u16string_view texto);
  ScriptedPort& Presses(int boton);

  // Returns the events so far and empties the list, one line each, with "|" for CR LF:
  //   "box: TEXT", "yesno[TITLE]: TEXT (icon, default yes)", "input[TITLE]: TEXT (default 2)",
  //   "dialog[CAPTION]: mode -1", "sound: FILE x1 balance 0 volume 0", "stop", "change players".
  std::vector<std::string> TakeEvents();

  // The subjects of the Yes/No and input boxes so far.
  std::vector<Pregunta> Preguntas;

  TimeOfDay Hora;  // what Now returns

  void MsgBox(const Table& t, std::u16string_view texto) override;
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override;
  void ChangePlayers() override;

 private:
  std::deque<bool> respuestas_;
  std::deque<std::u16string> textos_;
  std::deque<int> botones_;
  std::vector<std::string> sucesos_;
};

}  // namespace tasca::test
