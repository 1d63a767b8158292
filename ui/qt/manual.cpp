// Opening the manual.
#include "ui/qt/manual.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

namespace tasca {

Manual::Manual(std::function<Asunto()> asunto) : asunto_{std::move(asunto)} {
  QCoreApplication::instance()->installEventFilter(this);
}

void Manual::Open() {
  if (!ventana_) ventana_ = std::make_unique<ManualWindow>();
  const std::string_view ancla = AnchorOf(asunto_());
  ventana_->show();
  ventana_->ShowSection(QString::fromUtf8(ancla.data(), static_cast<qsizetype>(ancla.size())));
  ventana_->raise();
  ventana_->activateWindow();
}

// A shortcut would not work in a modal box.
bool Manual::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() != QEvent::KeyPress || !objeto->isWidgetType()) return false;
  const auto* const pulsada = dynamic_cast<QKeyEvent*>(suceso);
  const bool esAyuda =
      pulsada != nullptr && pulsada->key() == Qt::Key_F1 && pulsada->modifiers() == Qt::NoModifier;
  if (!esAyuda) return false;
  const bool esDelManual = qobject_cast<QWidget*>(objeto)->window() == ventana_.get();
  if (!esDelManual && !pulsada->isAutoRepeat()) Open();
  return true;
}

}  // namespace tasca
