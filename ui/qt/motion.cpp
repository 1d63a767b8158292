// One timer for all movements of a view.
#include "ui/qt/motion.h"

#include <QStyle>
#include <algorithm>
#include <utility>

#include "ui/qt/mesa_painter.h"

namespace tasca {

bool Motion::IsWanted(const QWidget& vista) {
  return vista.isVisible() &&
         vista.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &vista) > 0;
}

void Motion::Start(std::vector<Movimiento> movimientos, double letra) {
  reloj_.stop();
  movimientos_ = std::move(movimientos);
  letra_ = letra;
  desde_.start();
  Repaint();
  constexpr int fotograma = 16;  // milliseconds
  if (!movimientos_.empty()) reloj_.start(fotograma, Qt::PreciseTimer, this);
}

std::vector<Pieza> Motion::StillAmong(std::vector<Pieza> piezas) const {
  std::erase_if(piezas, [&](const Pieza& pieza) {
    return std::any_of(movimientos_.begin(), movimientos_.end(),
                       [&](const Movimiento& m) { return m.Que == pieza; });
  });
  return piezas;
}

std::vector<Fotograma> Motion::Frames() const {
  std::vector<Fotograma> fotogramas;
  if (movimientos_.empty()) return fotogramas;
  const auto milisegundos = static_cast<double>(desde_.elapsed());
  fotogramas.reserve(movimientos_.size());
  for (const Movimiento& m : movimientos_) fotogramas.push_back(FotogramaDe(m, milisegundos));
  return fotogramas;
}

void Motion::timerEvent(QTimerEvent* /*suceso*/) {
  const auto milisegundos = desde_.elapsed();
  const bool todosHanAcabado =
      std::all_of(movimientos_.begin(), movimientos_.end(),
                  [&](const Movimiento& m) { return m.Fin() <= milisegundos; });
  if (todosHanAcabado) return Start({}, letra_);
  Repaint();
}

void Motion::Repaint() {
  QRegion ahora;
  for (const Fotograma& fotograma : Frames()) ahora += CoveredBy(fotograma.Que, letra_);
  for (const Movimiento& m : movimientos_) ahora += CoveredBy(m.Que, letra_);
  vista_.update(std::exchange(pintado_, ahora) + ahora);
}

}  // namespace tasca
