#pragma once
// A window of its own that can be used beside the game, also while a modal box is open.
#include <QWidget>

namespace tasca {

class BesideWindow : public QWidget {
 public:
  // Esc closes it.
  BesideWindow();

  // Shows the window in front of the others.
  void BringUp();

 protected:
  bool event(QEvent* suceso) override;
};

}  // namespace tasca
