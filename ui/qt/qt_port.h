#pragma once
// The windows' answer to what the rules ask.
#include <QWidget>

#include "table/port.h"
#include "ui/qt/form1.h"
#include "ui/loudspeaker/media_player.h"

namespace tasca {

class QtPort : public Port {
 public:
  // The window that the boxes belong to from now on; none before the first one. With the main
  // window goes what it was playing.
  void SetStartWindow(QWidget* dlgInicio);
  void SetMainWindow(Form1* form1);

  QWidget* Window() const { return ventana_; }
  MediaPlayer& Mp1() { return mp1_; }

  void MsgBox(const Table& t, std::u16string_view texto) override;
  // These two throw LeaveProgram when the program is ended while they wait.
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override;

 private:
  void ShowTexts(const Table& t);

  QWidget* ventana_ = nullptr;
  Form1* form1_ = nullptr;
  MediaPlayer mp1_;
};

}  // namespace tasca
