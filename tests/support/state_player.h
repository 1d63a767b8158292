#pragma once
// A port whose answers depend only on the table and on the number of questions since the last step.
// A match that is interrupted between two steps and continued gets the same answers.
#include <cstdint>

#include "table/port.h"

namespace tasca::test {

class StatePlayer : public Port {
 public:
  // Other seeds give other answers.
  explicit StatePlayer(unsigned semilla = 0) : semilla_{semilla} {}

  // Must be called before every step.
  void NewStep() { preguntas_ = 0; }

  TimeOfDay Hora;  // what Now returns
  // The answers to these questions.
  bool OtraPartida = false;
  bool CambiarJugadores = false;
  bool SeguirPartida = true;

  void MsgBox(const Table& /*t*/, std::u16string_view /*texto*/) override {}
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return Hora; }

 private:
  // A number from 0 to n - 1.
  int Below(const Table& t, unsigned n);

  unsigned semilla_;
  std::uint32_t preguntas_ = 0;
};

}  // namespace tasca::test
