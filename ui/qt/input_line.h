#pragma once
// The input line Text1: shows the hand, receives the keys of the game, and grows with the number of
// lines shown.
#include <QPlainTextEdit>
#include <functional>

namespace tasca {

class InputLine : public QPlainTextEdit {
 public:
  // Receives every key first. Returns true if it has handled the key.
  using KeyHandler = std::function<bool(const QKeyEvent&)>;

  InputLine(QWidget* padre, KeyHandler alPulsar);

  // Replaces the text, including what was typed. Keeps the cursor if the text is the same.
  void ShowText(const QString& texto);
  // Sets the greatest height; a longer text scrolls.
  void LimitHeight(int maximo);
  // Whether the focus came with the window's first activation, or back from a box over the window:
  // what is in the line has been said before.
  bool FocusIsKnown() const { return focoSabido_; }

 protected:
  void focusInEvent(QFocusEvent* suceso) override;
  void focusOutEvent(QFocusEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  void insertFromMimeData(const QMimeData* datos) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;

 private:
  // Replaces the text without an event about it.
  void ExchangeDocument(const QString& texto);
  // Sets the height to that of the text, up to the limit.
  void FitHeight();

  KeyHandler alPulsar_;
  int maximo_ = 0;         // 0 for no limit
  bool enUnaCaja_ = true;  // the focus is in a box over the window, or has not been here yet
  bool focoSabido_ = false;
};

}  // namespace tasca
