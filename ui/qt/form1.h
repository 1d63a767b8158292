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

class Form1 : public QWidget {
 public:
  struct Events {
    // A key in Text1; it is used up when KeyCode comes back as 0.
    std::function<void(Integer& KeyCode, Integer Shift)> Text1_KeyDown;
    // The player turns the sounds off or on.
    std::function<void(bool encendido)> Sonido_Click;
    std::function<void()> Closed;
  };

  explicit Form1(Events sucesos, bool conSonido = true);

  // Shows the texts as the rules have left them. What the player has typed into Text1 goes.
  void ShowTexts(const Form1State& estado);
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
  bool KeyInText1(const QKeyEvent& suceso);

  Events sucesos_;
  // Tab goes through the controls in this order.
  InputLine* text1_;
  Transcript* text2_;
  QLineEdit* text3_;
  QLabel* ayuda_;
  std::u16string copiado2_;
  std::u16string copiado3_;
};

}  // namespace tasca
