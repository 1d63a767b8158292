#pragma once
// The size of the letters, which the player sets for all windows and boxes.
#include <QFont>
#include <QObject>

namespace tasca {

// Changes the application's font, in steps of one point between 6 and 32. Ctrl and the wheel do it
// in every window of the application but the manual's, which has a size of its own. The letters
// have their normal size when it is built, and again when it is destroyed.
class Zoom : public QObject {
 public:
  Zoom();
  Zoom(const Zoom&) = delete;
  Zoom& operator=(const Zoom&) = delete;
  ~Zoom() override;

  void Larger() { Step(1); }
  void Smaller() { Step(-1); }
  void Normal();

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void Step(int puntos);

  QFont normal_;
  int rueda_ = 0;  // turned since the last step, in eighths of a degree
};

}  // namespace tasca
