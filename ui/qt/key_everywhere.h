#pragma once
// A key that works in every window, box and menu of the application. A shortcut would not work in a
// modal box.
#include <QKeyCombination>
#include <QObject>
#include <QWidget>
#include <functional>

namespace tasca {

class KeyEverywhere : public QObject {
 public:
  // Calls `alPulsar`, except in the window that `suVentana` returns, if any. The key's auto-repeat
  // does nothing, and with other modifiers it is another key.
  KeyEverywhere(
      QKeyCombination tecla, std::function<void()> alPulsar,
      std::function<const QWidget*()> suVentana = [] { return nullptr; });

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  QKeyCombination tecla_;
  std::function<void()> alPulsar_;
  std::function<const QWidget*()> suVentana_;
};

}  // namespace tasca
