#pragma once
// The player's name in the start-up dialog: a text box that accepts only what the settings file can
// hold, whether typed, pasted or composed by an input method.
#include <QLineEdit>
#include <functional>
#include <string>
#include <string_view>

namespace tasca {

class NameEdit : public QLineEdit {
 public:
  // Called with the reason when an insertion has been refused or truncated.
  using Refusal = std::function<void(std::u16string_view)>;

  // Accepts up to AnchoNombre characters; a longer insertion is truncated.
  NameEdit(QWidget* padre, Refusal alRechazar);

  // The name. If the user has not edited it, exactly the one given to ShowText; otherwise without
  // the U+FFFD that were shown for invalid characters.
  std::u16string Text() const;
  // A name longer than AnchoNombre is shown whole; the user can only shorten it.
  void ShowText(std::u16string_view nombre);

 protected:
  // Getting the focus selects the whole name, so that typing replaces it.
  void focusInEvent(QFocusEvent* suceso) override;
  void inputMethodEvent(QInputMethodEvent* suceso) override;

 private:
  class Checker;
  struct Snapshot {
    QString Texto;
    int Cursor = 0;
    int Desde = -1;  // start of the selection, -1 for none
    int Largo = 0;   // length of the selection
  };

  // The reason why `nombre` is refused, or "".
  std::u16string_view ReparoA(const QString& nombre) const;
  Snapshot TakeSnapshot() const;
  // Restores text and selection from antes_.
  void Restore();

  Refusal alRechazar_;
  Checker* validador_;
  std::u16string mostrado_;   // by ShowText
  Snapshot antes_;            // before the composition
  bool componiendo_ = false;  // an input method has a preedit text
};

}  // namespace tasca
