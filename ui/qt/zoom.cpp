// The size of the letters.
#include "ui/qt/zoom.h"

#include <QApplication>
#include <QFontInfo>
#include <QWheelEvent>
#include <algorithm>

#include "ui/qt/manual_window.h"

namespace tasca {

Zoom::Zoom() : normal_{QApplication::font()} {
  QCoreApplication::instance()->installEventFilter(this);
}

Zoom::~Zoom() { Normal(); }

void Zoom::Normal() {
  if (QApplication::font() != normal_) QApplication::setFont(normal_);
}

// A font that is outside the limits from the start does not jump to them.
void Zoom::Step(int puntos) {
  rueda_ = 0;
  constexpr double menor = 6;
  constexpr double mayor = 32;
  QFont fuente = QApplication::font();
  const bool enPuntos = fuente.pointSizeF() > 0;
  const double antes = enPuntos ? fuente.pointSizeF() : QFontInfo{fuente}.pointSizeF();
  const double ahora = std::clamp(antes + puntos, std::min(menor, antes), std::max(mayor, antes));
  if (ahora == antes) return;
  fuente.setPointSizeF(ahora);
  QApplication::setFont(fuente);
}

// A fine wheel reports parts of a notch.
bool Zoom::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() != QEvent::Wheel || !objeto->isWidgetType()) return false;
  const auto* const rueda = dynamic_cast<QWheelEvent*>(suceso);
  if (rueda == nullptr || !rueda->modifiers().testFlag(Qt::ControlModifier)) return false;
  const auto* const ventana = qobject_cast<QWidget*>(objeto)->window();
  if (dynamic_cast<const ManualWindow*>(ventana) != nullptr) return false;
  rueda_ += rueda->angleDelta().y();
  constexpr int muesca = QWheelEvent::DefaultDeltasPerStep;
  if (const int muescas = rueda_ / muesca; muescas != 0) Step(muescas);
  return true;
}

}  // namespace tasca
