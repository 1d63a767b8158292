#pragma once
// An editor port that answers from a script and records the questions. A question without a
// scripted answer fails the test.
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
  // Fails the test if a scripted answer was not used.
  ~ScriptedEditorPort() override;

  // Appends an answer: to an OK/Cancel box, to an input box. Each kind has a queue of its own.
  ScriptedEditorPort& Confirms(bool si);
  ScriptedEditorPort& Types(std::u16string_view texto);

  // Returns the events so far and empties the list, one line each: "box: TEXT",
  // "confirm[TITLE]: TEXT", "input[TITLE]: TEXT(default VALUE)", "beep".
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
