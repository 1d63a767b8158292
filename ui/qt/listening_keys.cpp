// The filter of the keys for listening.
#include "ui/qt/listening_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace tasca {

ListeningKeys::ListeningKeys(QWidget& ventana, std::function<void(Escucha)> alPedir)
    : ventana_{ventana}, alPedir_{std::move(alPedir)} {
  QCoreApplication::instance()->installEventFilter(this);
}

bool ListeningKeys::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() != QEvent::KeyPress || !objeto->isWidgetType()) return false;
  const auto* const pulsada = dynamic_cast<QKeyEvent*>(suceso);
  if (pulsada == nullptr || pulsada->modifiers() != Qt::NoModifier) return false;
  const QWidget* const suya = qobject_cast<QWidget*>(objeto)->window();
  if (suya != &ventana_ && suya->parentWidget() != &ventana_) return false;
  const auto* const entrada =
      std::find_if(ListeningEntries.begin(), ListeningEntries.end(),
                   [pulsada](const ListeningEntry& una) { return una.Tecla == pulsada->key(); });
  if (entrada == ListeningEntries.end()) return false;
  if (!pulsada->isAutoRepeat()) alPedir_(entrada->Que);
  return true;
}

}  // namespace tasca
