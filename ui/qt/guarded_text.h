#pragma once
// A text box of the editor: what the character file could not hold can be neither typed nor pasted
// into it. What is refused is refused whole, with a beep and the reason.
#include <QPlainTextEdit>
#include <functional>
#include <string>
#include <string_view>

namespace tasca {

class GuardedText : public QPlainTextEdit {
 public:
  // Told why something has been refused; "" once something has been accepted.
  using Refusal = std::function<void(std::u16string_view)>;

  // Takes up to `maximo` characters and shows `filas` rows.
  GuardedText(QWidget* padre, int maximo, int filas, Refusal alRechazar);

  // A text that is shown and left alone comes back as it was, with whatever a damaged file has put
  // into it; once it is edited, it is without that. A text never filled comes back as "".
  std::u16string Text() const;
  void ShowText(std::u16string_view texto);

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;
  void inputMethodEvent(QInputMethodEvent* suceso) override;
  void insertFromMimeData(const QMimeData* datos) override;
  // Getting the focus selects the whole text.
  void focusInEvent(QFocusEvent* suceso) override;

 private:
  struct Stand {
    QString Texto;
    int Ancla = 0;
    int Cursor = 0;
  };

  bool Accepts(const QString& insertado);
  QString Typed() const;
  Stand Now() const;
  void GoBack();

  int maximo_;
  int filas_;
  Refusal alRechazar_;
  std::u16string mostrado_;
  Stand antes_;  // of the composing
  bool componiendo_ = false;
};

}  // namespace tasca
