#pragma once
// The main window: the scoreboard Text3, the transcript Text2 and the input line Text1.
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QWidget>
#include <functional>
#include <string>

#include "table/table.h"
#include "ui/qt/input_line.h"
#include "ui/qt/transcript.h"

namespace tasca {

// Shows the texts of Form1State and reports events. It decides nothing about the game.
class Form1 : public QWidget {
 public:
  struct Events {
    // A key pressed in Text1. The receiver sets KeyCode to 0 if it has handled the key.
    std::function<void(Integer& KeyCode, Integer Shift)> Text1_KeyDown;
    // The player has switched the sound on or off.
    std::function<void(bool encendido)> Sonido_Click;
    std::function<void()> Closed;
  };

  // `conSonido` is the initial state of the menu entry "Sonido".
  explicit Form1(Events sucesos, bool conSonido = true);

  // Shows the three texts. Replaces what the player has typed into Text1.
  void ShowTexts(const Form1State& estado);
  // Moves the focus to Text1.
  void FocusInput();

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;
  void closeEvent(QCloseEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void BuildLayout();
  QMenuBar* BuildMenu(bool conSonido);
  void ShowHelp(bool conSonido);
  void EnlargeTexts();
  // Handles Page Up and Page Down, and reports any other key. True if the key has been handled.
  bool KeyInText1(const QKeyEvent& suceso);

  Events sucesos_;
  // The declaration order is the tab order.
  InputLine* text1_;
  Transcript* text2_;
  QLineEdit* text3_;
  QLabel* ayuda_;
  // As last shown in Text2 and Text3.
  std::u16string copiado2_;
  std::u16string copiado3_;
};

}  // namespace tasca
