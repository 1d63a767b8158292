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
}

ScriptedEditorPort& ScriptedEditorPort::Confirms(bool si) {
  respuestas_.push_back(si);
  return *this;
}

ScriptedEditorPort& ScriptedEditorPort::Types(std::u16string_view texto) {
  textos_.emplace_back(texto);
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

void ScriptedEditorPort::Beep() { sucesos_.emplace_back("beep"); }

}  // namespace tasca::test
