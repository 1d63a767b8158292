// The filter of auto-repeated keys.
#include "ui/qt/repeat_guard.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace tasca {
namespace {

bool Mueve(int tecla) {
  switch (tecla) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return true;
    default:
      return false;
  }
}

bool SeEscribeEn(const QObject* control) {
  return qobject_cast<const QLineEdit*>(control) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(control) != nullptr;
}

// Whether a key can press a button or close the box. Alt with a letter is an access key.
bool Contesta(const QKeyEvent& suceso, const QObject* control) {
  if (suceso.key() == Qt::Key_Return || suceso.key() == Qt::Key_Enter) return true;
  if (suceso.key() == Qt::Key_Escape || suceso.modifiers() == Qt::AltModifier) return true;
  return !Mueve(suceso.key()) && !SeEscribeEn(control);
}

}  // namespace

RepeatGuard::RepeatGuard(const QWidget& ventana) : ventana_{ventana} {
  QCoreApplication::instance()->installEventFilter(this);
}

// Accepting ShortcutOverride suppresses the shortcut; the key then arrives as a KeyPress.
bool RepeatGuard::eventFilter(QObject* objeto, QEvent* suceso) {
  const bool esTecla =
      suceso->type() == QEvent::KeyPress || suceso->type() == QEvent::ShortcutOverride;
  if (!esTecla) return false;
  const auto* const control = qobject_cast<QWidget*>(objeto);
  const auto* const pulsada = dynamic_cast<QKeyEvent*>(suceso);
  if (control == nullptr || control->window() != &ventana_) return false;
  if (pulsada == nullptr || !pulsada->isAutoRepeat() || !Contesta(*pulsada, objeto)) return false;
  suceso->accept();
  return true;
}

}  // namespace tasca
