// When a text is said.
#include "ui/qt/announcer.h"

#include <QAccessible>
#include <QCoreApplication>
#include <utility>

namespace tasca {

Announcer::Announcer(QWidget& ventana) : ventana_{ventana} { ventana.installEventFilter(this); }

void Announcer::Say(const QString& texto) {
  if (texto.isEmpty()) return;
  haLlegado_ = haLlegado_ || ventana_.isActiveWindow();
  if (!haLlegado_) return porDecir_.append(texto);
  Tell(texto);
}

bool Announcer::eventFilter(QObject* objeto, QEvent* suceso) {
  if (objeto != &ventana_ || suceso->type() != QEvent::WindowActivate) return false;
  haLlegado_ = true;
  for (const QString& texto : std::exchange(porDecir_, {})) Tell(texto);
  return false;
}

void Announcer::Tell(const QString& texto) {
  SaidEvent dicho{texto};
  QCoreApplication::sendEvent(&ventana_, &dicho);
  if (QAccessible::isActive()) avisos_.Show(texto);
}

}  // namespace tasca
