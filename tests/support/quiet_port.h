#pragma once
// A port for tests that are not about questions.
#include "table/port.h"

namespace tasca::test {

class QuietPort : public Port {
 public:
  int Boxes = 0;

  void MsgBox(const Table& /*t*/, std::u16string_view /*texto*/) override { ++Boxes; }
  bool YesNoBox(const Table& /*t*/, Pregunta /*sobre*/,
                const YesNoQuestion& /*pregunta*/) override {
    return false;
  }
  std::u16string InputBox(const Table& /*t*/, Pregunta /*sobre*/,
                          const InputQuestion& /*pregunta*/) override {
    return {};
  }
  void ShowDialog(const Table& /*t*/, Dialog& /*dialogo*/) override {}
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return {}; }
};

}  // namespace tasca::test
