#pragma once
// The box of the player's name in the start-up dialog: what the settings file could not hold can be
// neither typed, pasted nor composed into it.
#include <QLineEdit>
#include <functional>
#include <string>
#include <string_view>

namespace tasca {

class NameEdit : public QLineEdit {
 public:
  // Told why something has been refused.
  using Refusal = std::function<void(std::u16string_view)>;

  // Takes up to AnchoNombre characters; what is too long is cut.
  NameEdit(QWidget* padre, Refusal alRechazar);

  // A name that is shown and left alone comes back as it was; once it is edited, it is without what
  // only stood for an odd character.
  std::u16string Text() const;
  // A name longer than AnchoNombre can only be shortened then.
  void ShowText(std::u16string_view nombre);

 protected:
  // Getting the focus selects the whole name, so that typing replaces it.
  void focusInEvent(QFocusEvent* suceso) override;
  void inputMethodEvent(QInputMethodEvent* suceso) override;

 private:
  class Checker;
  struct Stand {
    QString Texto;
    int Cursor = 0;
    int Desde = -1;  // of the selection; -1 for none
    int Largo = 0;
  };

  std::u16string_view ReparoA(const QString& nombre) const;
  Stand Now() const;
  void GoBack();

  Refusal alRechazar_;
  Checker* validador_;
  std::u16string mostrado_;
  Stand antes_;  // of the composing
  bool componiendo_ = false;
};

}  // namespace tasca
