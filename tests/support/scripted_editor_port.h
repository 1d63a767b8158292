#pragma once
// The editor's port that answers from a script and writes down what was asked. A question that the
// script does not foresee fails the test.
#include <deque>
#include <string>
#include <vector>

#include "characters/editor.h"

namespace tasca::test {

class ScriptedEditorPort : public EditorPort {
 public:
  ScriptedEditorPort() = default;
  ScriptedEditorPort(const ScriptedEditorPort&) = delete;
  ScriptedEditorPort& operator=(const ScriptedEditorPort&) = delete;
  // Fails the test when an answer was never asked for.
  ~ScriptedEditorPort() override;

  // The answers, in the order in which each kind of question will be asked.
  ScriptedEditorPort& Confirms(bool si);
  ScriptedEditorPort& Types(std::u16string_view texto);

  // What was asked and told so far, one line each: "box: TEXT", "confirm[TITLE]: TEXT",
  // "input[TITLE]: TEXT(default VALUE)", "beep". Reading them empties the list.
  std::vector<std::string> TakeEvents();

  void MsgBox(std::u16string_view texto) override;
  bool OkCancelBox(std::u16string_view texto, std::u16string_view titulo) override;
  std::u16string InputBox(std::u16string_view texto, std::u16string_view titulo,
                          std::u16string_view porDefecto) override;
  void Beep() override;

 private:
  std::deque<bool> respuestas_;
  std::deque<std::u16string> textos_;
  std::vector<std::string> sucesos_;
};

}  // namespace tasca::test
