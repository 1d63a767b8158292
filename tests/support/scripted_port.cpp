// Answers the rules from the script.
#include "tests/support/scripted_port.h"

#include <gtest/gtest.h>

#include <utility>

#include "base/text.h"
#include "tests/support/script.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

std::string Line(std::u16string_view texto) { return Utf8(ReplaceAll(texto, u"\r\n", u"|")); }

}  // namespace

ScriptedPort::~ScriptedPort() {
  EXPECT_TRUE(respuestas_.empty()) << "unused scripted Yes/No answers";
  EXPECT_TRUE(textos_.empty()) << "unused scripted texts";
  EXPECT_TRUE(botones_.empty()) << "unused scripted buttons";
}

ScriptedPort& ScriptedPort::Yes() {
  respuestas_.push_back(true);
  return *this;
}

ScriptedPort& ScriptedPort::No() {
  respuestas_.push_back(false);
  return *this;
}

ScriptedPort& ScriptedPort::Types(std::u16string_view texto) {
  textos_.emplace_back(texto);
  return *this;
}

ScriptedPort& ScriptedPort::Presses(int boton) {
  botones_.push_back(boton);
  return *this;
}

std::vector<std::string> ScriptedPort::TakeEvents() { return std::exchange(sucesos_, {}); }

void ScriptedPort::MsgBox(const Table& /*t*/, std::u16string_view texto) {
  sucesos_.push_back("box: " + Line(texto));
}

bool ScriptedPort::YesNoBox(const Table& /*t*/, Pregunta sobre, const YesNoQuestion& pregunta) {
  Preguntas.push_back(sobre);
  sucesos_.push_back("yesno[" + Line(pregunta.Titulo) + "]: " + Line(pregunta.Texto) + " (" +
                     (pregunta.ConIcono ? "icon" : "no icon") + ", default " +
                     (pregunta.PorDefecto ? "yes" : "no") + ")");
  return Tomar(respuestas_, false, sucesos_.back());
}

std::u16string ScriptedPort::InputBox(const Table& /*t*/, Pregunta sobre,
                                      const InputQuestion& pregunta) {
  Preguntas.push_back(sobre);
  sucesos_.push_back("input[" + Line(pregunta.Titulo) + "]: " + Line(pregunta.Texto) +
                     " (default " + Line(pregunta.PorDefecto) + ")");
  return Tomar(textos_, std::u16string{}, sucesos_.back());
}

void ScriptedPort::ShowDialog(const Table& /*t*/, Dialog& dialogo) {
  sucesos_.push_back("dialog[" + Line(dialogo.Caption) + "]: mode " +
                     std::to_string(static_cast<int>(dialogo.Modo)));
  const int boton = Tomar(botones_, 0, sucesos_.back());
  EXPECT_TRUE(dialogo.Visible);
  EXPECT_TRUE(dialogo.Command1[boton].Enabled) << "button " << boton << " is not offered";
  Command1_Click(dialogo, boton);
}

void ScriptedPort::OpenSound(const Table& t, std::u16string_view archivo) {
  sucesos_.push_back("sound: " + Line(archivo) + " x" + std::to_string(t.Mp1.Veces) + " balance " +
                     std::to_string(t.Mp1.Balance) + " volume " + std::to_string(t.Mp1.Volumen));
}

void ScriptedPort::StopSound(const Table& /*t*/) { sucesos_.emplace_back("stop"); }

TimeOfDay ScriptedPort::Now() { return Hora; }

void ScriptedPort::ChangePlayers() {
  Port::ChangePlayers();
  sucesos_.emplace_back("change players");
}

}  // namespace tasca::test
