#pragma once
// A key that opens a window from every window and box of the application. A shortcut would not work
// in a modal box.
#include <QObject>
#include <QWidget>
#include <functional>

namespace tasca {

class KeyEverywhere : public QObject {
 public:
  // Calls `alPulsar`, except in the window that `suVentana` returns, if any. The key's auto-repeat
  // does nothing, and with a modifier it is another key.
  KeyEverywhere(Qt::Key tecla, std::function<void()> alPulsar,
                std::function<const QWidget*()> suVentana);

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  Qt::Key tecla_;
  std::function<void()> alPulsar_;
  std::function<const QWidget*()> suVentana_;
};

}  // namespace tasca
