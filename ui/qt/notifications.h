#pragma once
// Notifications in a status bar that only screen readers see: they say each when it is shown,
// without the name of its role, and keep it on the braille line for a moment.
#include <QAccessible>
#include <QAccessibleInterface>
#include <QString>
#include <QWidget>
#include <deque>

namespace tasca {

class Notifications {
 public:
  // The status bar belongs to `ventana`, which must outlive it.
  explicit Notifications(QWidget& ventana) : ventana_{ventana} {}
  Notifications(const Notifications&) = delete;
  Notifications& operator=(const Notifications&) = delete;
  ~Notifications();

  // Shows `texto`. The last twenty are kept: screen readers ask for them after a while.
  QAccessible::Id Show(const QString& texto);

 private:
  QWidget& ventana_;
  QAccessible::Id barra_ = 0;  // 0 until something is shown
  std::deque<QAccessible::Id> dichos_;
};

}  // namespace tasca
