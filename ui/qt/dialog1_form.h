#pragma once
// The character editor's window.
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
    // Runs an event of the editor's logic, and ends the program when it says so.
    std::function<void(const std::function<void()>&)> Run;
    std::function<void()> Closed;
  };

  // Edits the characters of `t`, asking through `port`.
  Dialog1Form(Table& t, EditorPort& port, Events sucesos);

  Dialog1& State() { return estado_; }
  // Copies the state to the controls, all of it.
  void ShowState();

 protected:
  void closeEvent(QCloseEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  GuardedText* NewText(const char* nombre, int maximo, int filas);
  void Connect();
  void ConnectLists();
  void ConnectButtons();
  void BuildLayout();
  QLayout* BuildData();
  QLayout* BuildPhrases();
  QLayout* BuildButtons();
  void SetTabs();
  // Selects the state's entry again once the event that chose another is over.
  void GiveSelectionsBack();
  // Runs an event of the logic on the texts as they have been typed, and shows what came of it.
  void Do(const std::function<void()>& suceso);

  Table& t_;
  EditorPort& port_;
  Events sucesos_;
  Dialog1 estado_;
  QTimer devolucion_;  // runs while the lists are about to get their selections back
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
  QPushButton* cbOK_;
  RepeatGuard repeticiones_{*this};
};

}  // namespace tasca
