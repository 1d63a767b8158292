#pragma once
// The port of the windows: the rules' questions as modal boxes.
#include <QWidget>
#include <optional>

#include "table/port.h"
#include "ui/loudspeaker/media_player.h"
#include "ui/qt/form1.h"

namespace tasca {

class QtPort : public Port {
 public:
  // These set the parent of the boxes, which is none at first. Each box first refreshes the texts
  // of the main window. SetStartWindow stops the sound that is playing.
  void SetStartWindow(QWidget* dlgInicio);
  void SetMainWindow(Form1* form1);

  // The parent of the boxes, or nullptr.
  QWidget* Window() const { return ventana_; }
  MediaPlayer& Mp1() { return mp1_; }
  // What the open Yes/No or input box is about.
  std::optional<Pregunta> Asking() const { return preguntando_; }

  // From now on a box that closes was not answered.
  void ProgramEnds() { acabando_ = true; }

  // Every box blocks in a nested event loop until it is answered.
  void MsgBox(const Table& t, std::u16string_view texto) override;
  // These throw LeaveProgram if the program is ended while they wait.
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  TimeOfDay Now() override;

 private:
  void ShowTable(const Table& t, Momento momento);

  QWidget* ventana_ = nullptr;
  Form1* form1_ = nullptr;
  bool acabando_ = false;
  std::optional<Pregunta> preguntando_;
  MediaPlayer mp1_;
};

}  // namespace tasca
