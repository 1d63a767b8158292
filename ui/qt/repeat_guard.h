#pragma once
// Keys that are held down: their repeats answer nothing.
#include <QWidget>

namespace tasca {

// While it lives, the repeats of a held key press no button in `ventana` and answer nothing there.
// They still move the focus or a selection, and write and delete in a text box.
class RepeatGuard : public QObject {
 public:
  explicit RepeatGuard(const QWidget& ventana);

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  const QWidget& ventana_;
};

}  // namespace tasca
