#pragma once
// A player whose answers are fixed before the questions come.
#include <algorithm>
#include <string>

#include "table/dialog.h"
#include "table/port.h"

namespace tasca::fuzz {

class FixedAnswers : public Port {
 public:
  std::u16string Text;  // for every input box
  int Button = 0;       // for the bidding dialog, when it offers that one; else the last it offers

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
