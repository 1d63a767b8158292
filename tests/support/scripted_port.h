#pragma once
// A port that answers from a script and writes down what was asked. A question that the script does
// not foresee fails the test.
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
  // Fails the test when an answer was never asked for.
  ~ScriptedPort() override;

  // The answers, in the order in which each kind of question will be asked.
  ScriptedPort& Yes();
  ScriptedPort& No();
  ScriptedPort& Types(std::u16string_view texto);
  ScriptedPort& Presses(int boton);

  // What was asked and told so far, one line each, in order; CR LF stands as "|":
  //   "box: TEXT", "yesno[TITLE]: TEXT (icon, default yes)", "input[TITLE]: TEXT (default 2)",
  //   "dialog[CAPTION]: mode -1", "sound: FILE x1 balance 0 volume 0", "stop", "change players".
  // Reading them empties the list.
  std::vector<std::string> TakeEvents();

  // What the questions so far were about, the bidding dialog left out.
  std::vector<Pregunta> Preguntas;

  TimeOfDay Hora;

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
