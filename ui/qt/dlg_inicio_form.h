#pragma once
// The start-up dialog's window. Shows the state of the dialog's logic (startup/dlg_inicio.h) and
// passes the events on to it.
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <functional>

#include "startup/dlg_inicio.h"
#include "ui/qt/announcer.h"
#include "ui/qt/name_edit.h"
#include "ui/qt/repeat_guard.h"
#include "ui/qt/status_line.h"

namespace tasca {

class DlgInicioForm : public QDialog {
 public:
  struct Events {
    // Runs a function of the dialog's logic and handles its exceptions.
    std::function<void(const std::function<void()>&)> Run;
    // "Aceptar".
    std::function<void()> CbOK_Click;
    // "Salir del juego", the close box or Esc.
    std::function<void()> Left;
  };

  // Edits `estado`, which must outlive the window.
  DlgInicioForm(DlgInicio& estado, Events sucesos);

  // Copies the whole state to the controls.
  void ShowState();

  // Esc and the close box leave the program.
  void reject() override { sucesos_.Left(); }

 protected:
  void showEvent(QShowEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;

 private:
  void NameControls();
  void Connect();
  void ConnectName();
  // Screen readers say who was chosen and the story.
  void TellCompanion(const QComboBox& combo);
  // Beeps and shows the reason in the status line.
  void RefuseName(std::u16string_view reparo);
  void BuildLayout();
  // Sets the sizes that depend on the font.
  void FitToFont();
  QLayout* BuildChoices();
  QLayout* BuildStyle();
  QLayout* BuildButtons();

  Events sucesos_;
  DlgInicio& estado_;
  // The declaration order is the tab order.
  QLabel* text1_;
  NameEdit* text2_;
  StatusLine* estadoTexto_;
  QLabel* text3_;
  QLabel* text4_;
  std::array<QComboBox*, 3> combos_;
  std::array<QCheckBox*, 2> check1_;
  std::array<QRadioButton*, 2> option1_;
  QPushButton* cbOK_;
  QPushButton* cbCancel_;
  Announcer voz_{*this};
  // The Enter that asked for other companions may still be held down.
  RepeatGuard repeticiones_{*this};
};

}  // namespace tasca
