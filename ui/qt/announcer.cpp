// The description of the control with the focus.
#include "ui/qt/announcer.h"

#include <QAccessible>
#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <utility>

namespace tasca {

// The signal comes before screen readers are told of the new focus.
Announcer::Announcer() {
  connect(qApp, &QApplication::focusChanged, this, [this] {
    if (Waits()) QTimer::singleShot(0, this, [this] { SayWaiting(); });
  });
}

void Announcer::Say(const QString& texto) {
  if (texto.isEmpty() || !QAccessible::isActive()) return;
  if (Waits()) espera_ += QChar{u' '};
  espera_ += texto;
  SayWaiting();
}

// The description is taken away at once, so that it is not read again with the control.
void Announcer::SayWaiting() {
  QWidget* const control = QApplication::focusWidget();
  if (control == nullptr || !control->isActiveWindow() || !Waits()) return;
  const QString anterior = control->accessibleDescription();
  control->setAccessibleDescription(std::exchange(espera_, {}));
  control->setAccessibleDescription(anterior);
}

}  // namespace tasca
