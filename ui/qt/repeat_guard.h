#pragma once
// Ignores the auto-repeat of keys that answer a box.
#include <QWidget>

namespace tasca {

// An event filter of the application for as long as it exists. In `ventana` the repeats of a held
// key press no button. They still move the focus or a selection, and edit text boxes.
class RepeatGuard : public QObject {
 public:
  explicit RepeatGuard(const QWidget& ventana);

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  const QWidget& ventana_;
};

}  // namespace tasca
