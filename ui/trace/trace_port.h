#pragma once
// The outside world of a traced game: questions become events, answers come from the input.
#include "table/port.h"
#include "ui/trace/events.h"
#include "ui/trace/input.h"

namespace tasca {

class TracePort : public Port {
 public:
  TracePort(Input& input, Events& events) : input_{input}, events_{events} {}

  // Every reading of the time of day gives this.
  void SetClock(TimeOfDay clock) { clock_ = clock; }

  void MsgBox(const Table& t, std::u16string_view texto) override;
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override { return clock_; }

 private:
  Input& input_;
  Events& events_;
  TimeOfDay clock_;
};

}  // namespace tasca
