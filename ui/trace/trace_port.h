#pragma once
// The port of a traced game: writes each question as an event and reads its answer from the input.
#include "table/port.h"
#include "ui/trace/events.h"
#include "ui/trace/input.h"

namespace tasca {

// Questions throw InputError or OutputError.
class TracePort : public Port {
 public:
  TracePort(Input& input, Events& events) : input_{input}, events_{events} {}

  // Sets the time of day that Now returns.
  void SetClock(TimeOfDay clock) { clock_ = clock; }

  // A message box needs no answer; the other questions read one line each.
  void MsgBox(const Table& t, std::u16string_view texto) override;
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  // Sounds are only written as events. Their ends come from the input.
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override { return clock_; }

 private:
  Input& input_;
  Events& events_;
  TimeOfDay clock_;
};

}  // namespace tasca
