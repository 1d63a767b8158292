// The filter of a key.
#include "ui/qt/key_everywhere.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

namespace tasca {

KeyEverywhere::KeyEverywhere(QKeyCombination tecla, std::function<void()> alPulsar,
                             std::function<const QWidget*()> suVentana)
    : tecla_{tecla}, alPulsar_{std::move(alPulsar)}, suVentana_{std::move(suVentana)} {
  QCoreApplication::instance()->installEventFilter(this);
}

bool KeyEverywhere::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() != QEvent::KeyPress || !objeto->isWidgetType()) return false;
  const auto* const pulsada = dynamic_cast<QKeyEvent*>(suceso);
  if (pulsada == nullptr || pulsada->keyCombination() != tecla_) return false;
  const bool esLaSuya = qobject_cast<QWidget*>(objeto)->window() == suVentana_();
  if (!esLaSuya && !pulsada->isAutoRepeat()) alPulsar_();
  return true;
}

}  // namespace tasca
