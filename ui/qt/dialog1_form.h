#pragma once
// The character editor's window. Shows the state of the editor's logic (characters/editor.h) and
// passes the events on to it.
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>

#include "characters/editor.h"
#include "ui/qt/guarded_text.h"
#include "ui/qt/repeat_guard.h"
#include "ui/qt/status_line.h"

namespace tasca {

class Dialog1Form : public QWidget {
 public:
  struct Events {
    // Runs a function of the editor's logic and handles its exceptions.
    std::function<void(const std::function<void()>&)> Run;
    // The window is asked to close. It stays open unless the receiver ends the program.
    std::function<void()> Closed;
  };

  // Edits the characters of `t` and asks through `port`. Both must outlive the window.
  Dialog1Form(Table& t, EditorPort& port, Events sucesos);

  Dialog1& State() { return estado_; }
  // Copies the whole state to the controls.
  void ShowState();

 protected:
  void closeEvent(QCloseEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  // A text box of up to `maximo` characters that reports refusals in the status line.
  GuardedText* NewText(const char* nombre, int maximo, int filas);
  void Connect();
  void ConnectLists();
  void ConnectButtons();
  void BuildLayout();
  QLayout* BuildData();
  QLayout* BuildPhrases();
  QLayout* BuildButtons();
  void SetTabs();
  // Selects the state's entries in the lists again.
  void RestoreSelections();
  // Copies the typed texts to the state, runs an event of the logic and shows the new state.
  void Do(const std::function<void()>& suceso);

  Table& t_;
  EditorPort& port_;
  Events sucesos_;
  Dialog1 estado_;
  QTimer devolucion_;  // calls RestoreSelections once the current event has been handled
  StatusLine* estadoTexto_;
  QListWidget* list1_;
  QListWidget* list2_;
  QListWidget* list3_;
  GuardedText* text1_;
  GuardedText* text2_;
  GuardedText* text3_;
  std::array<QPushButton*, 3> command1_;
  std::array<QPushButton*, 2> command2_;
  std::array<QPushButton*, 2> command3_;
  QPushButton* traer_;
  QPushButton* cbOK_;
  RepeatGuard repeticiones_{*this};
};

}  // namespace tasca
