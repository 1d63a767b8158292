#pragma once
// An editor port that answers from a script and records the questions. A question without a
// scripted answer fails the test.
#include <deque>
#include <filesystem>
#include <optional>
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
  // To a box with Yes, No and Cancel; to a file box; to a choice.
  ScriptedEditorPort& Answers(std::optional<bool> si);
  ScriptedEditorPort& Opens(const std::filesystem::path& archivo);
  ScriptedEditorPort& Chooses(const std::vector<int>& elegidos);

  // The characters that the last choice offered.
  const std::vector<Candidato>& Offered() const { return ofrecidos_; }

  // Returns the events so far and empties the list, one line each: "box: TEXT",
  // "confirm[TITLE]: TEXT", "input[TITLE]: TEXT(default VALUE)", "yesno[TITLE]: TEXT",
  // "file[TITLE]", "choice of COUNT[POSITION ...]" with the positions chosen at first, "beep".
  std::vector<std::string> TakeEvents();

  void MsgBox(std::u16string_view texto) override;
  bool OkCancelBox(std::u16string_view texto, std::u16string_view titulo) override;
  std::u16string InputBox(std::u16string_view texto, std::u16string_view titulo,
                          std::u16string_view porDefecto) override;
  std::optional<bool> YesNoCancelBox(std::u16string_view texto,
                                     std::u16string_view titulo) override;
  std::filesystem::path FileBox(std::u16string_view titulo) override;
  std::vector<int> ChoiceBox(const std::vector<Candidato>& candidatos,
                             const std::vector<int>& elegidos) override;
  void Beep() override;

 private:
  std::deque<bool> respuestas_;
  std::deque<std::u16string> textos_;
  std::deque<std::optional<bool>> contestaciones_;
  std::deque<std::filesystem::path> archivos_;
  std::deque<std::vector<int>> elecciones_;
  std::vector<Candidato> ofrecidos_;
  std::vector<std::string> sucesos_;
};

}  // namespace tasca::test
