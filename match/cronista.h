#pragma once
// The chronicler: writes into the chronicle what a step says before it asks, because the step may
// erase it after the answer. Passes every request on to the face.
#include "match/cronica.h"
#include "table/port.h"

namespace tasca {

class Cronista : public Port {
 public:
  // Both must outlive the chronicler.
  Cronista(Port& cara, Cronica& cronica) : cara_{cara}, cronica_{cronica} {}

  void MsgBox(const Table& t, std::u16string_view texto) override;
  // The question about another match ends the hand. Another match with the same companions starts a
  // new chronicle.
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override;
  void ChangePlayers() override;

 private:
  Port& cara_;
  Cronica& cronica_;
};

}  // namespace tasca
