#pragma once
// A port with fixed answers.
#include <algorithm>
#include <string>

#include "table/dialog.h"
#include "table/port.h"

namespace tasca::fuzz {

// Answers yes to every Yes/No box and ignores sounds.
class FixedAnswers : public Port {
 public:
  std::u16string Text;  // answer to every input box
  int Button = 0;       // pressed in the bidding dialog if visible, otherwise button 1

  void MsgBox(const Table& /*t*/, std::u16string_view /*texto*/) override {}
  bool YesNoBox(const Table& /*t*/, Pregunta /*sobre*/,
                const YesNoQuestion& /*pregunta*/) override {
    return true;
  }
  std::u16string InputBox(const Table& /*t*/, Pregunta /*sobre*/,
                          const InputQuestion& /*pregunta*/) override {
    return Text;
  }
  void ShowDialog(const Table& /*t*/, Dialog& dialogo) override {
    const bool offered = dialogo.Command1[Button].Visible;
    Command1_Click(dialogo, offered ? Button : 1);
  }
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return {}; }
};

}  // namespace tasca::fuzz
