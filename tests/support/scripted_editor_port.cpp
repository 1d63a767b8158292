// Answers the editor from the script.
#include "tests/support/scripted_editor_port.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/support/script.h"
#include "tests/support/tables.h"

namespace tasca::test {

ScriptedEditorPort::~ScriptedEditorPort() {
  EXPECT_TRUE(respuestas_.empty()) << "unused scripted confirmations";
  EXPECT_TRUE(textos_.empty()) << "unused scripted texts";
  EXPECT_TRUE(contestaciones_.empty()) << "unused scripted answers";
  EXPECT_TRUE(archivos_.empty()) << "unused scripted files";
  EXPECT_TRUE(elecciones_.empty()) << "unused scripted choices";
}

ScriptedEditorPort& ScriptedEditorPort::Confirms(bool si) {
  respuestas_.push_back(si);
  return *this;
}

ScriptedEditorPort& ScriptedEditorPort::Types(std::u16string_view texto) {
  textos_.emplace_back(texto);
  return *this;
}

ScriptedEditorPort& ScriptedEditorPort::Answers(std::optional<bool> si) {
  contestaciones_.push_back(si);
  return *this;
}

ScriptedEditorPort& ScriptedEditorPort::Opens(const std::filesystem::path& archivo) {
  archivos_.push_back(archivo);
  return *this;
}

ScriptedEditorPort& ScriptedEditorPort::Chooses(const std::vector<int>& elegidos) {
  elecciones_.push_back(elegidos);
  return *this;
}

std::vector<std::string> ScriptedEditorPort::TakeEvents() { return std::exchange(sucesos_, {}); }

void ScriptedEditorPort::MsgBox(std::u16string_view texto) {
  sucesos_.push_back("box: " + Utf8(texto));
}

bool ScriptedEditorPort::OkCancelBox(std::u16string_view texto, std::u16string_view titulo) {
  sucesos_.push_back("confirm[" + Utf8(titulo) + "]: " + Utf8(texto));
  return Tomar(respuestas_, false, sucesos_.back());
}

std::u16string ScriptedEditorPort::InputBox(std::u16string_view texto, std::u16string_view titulo,
                                            std::u16string_view porDefecto) {
  sucesos_.push_back("input[" + Utf8(titulo) + "]: " + Utf8(texto) + "(default " +
                     Utf8(porDefecto) + ")");
  return Tomar(textos_, std::u16string{}, sucesos_.back());
}

std::optional<bool> ScriptedEditorPort::YesNoCancelBox(std::u16string_view texto,
                                                       std::u16string_view titulo) {
  sucesos_.push_back("yesno[" + Utf8(titulo) + "]: " + Utf8(texto));
  return Tomar(contestaciones_, std::optional<bool>{}, sucesos_.back());
}

std::filesystem::path ScriptedEditorPort::FileBox(std::u16string_view titulo) {
  sucesos_.push_back("file[" + Utf8(titulo) + "]");
  return Tomar(archivos_, std::filesystem::path{}, sucesos_.back());
}

std::vector<int> ScriptedEditorPort::ChoiceBox(const std::vector<Candidato>& candidatos,
                                               const std::vector<int>& elegidos) {
  ofrecidos_ = candidatos;
  std::string posiciones;
  for (const int posicion : elegidos) {
    posiciones += (posiciones.empty() ? "" : " ") + std::to_string(posicion);
  }
  sucesos_.push_back("choice of " + std::to_string(candidatos.size()) + "[" + posiciones + "]");
  return Tomar(elecciones_, std::vector<int>{}, sucesos_.back());
}

void ScriptedEditorPort::Beep() { sucesos_.emplace_back("beep"); }

}  // namespace tasca::test
