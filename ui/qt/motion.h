#pragma once
// The movements of a painted view: which pieces move, since when, and what to repaint. The timer
// runs only while something moves.
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QRegion>
#include <QWidget>
#include <vector>

#include "ui/mesa/movement.h"

namespace tasca {

// Belongs to the view, which must outlive it.
class Motion : public QObject {
 public:
  explicit Motion(QWidget& vista) : vista_{vista} {}

  // True if this desktop and this widget's style show movements.
  static bool IsWanted(const QWidget& vista);

  // Starts these movements; those that still run jump to their end. `letra` is the size of the
  // pieces' letters. Repaints what they cover.
  void Start(std::vector<Movimiento> movimientos, double letra);
  bool Runs() const { return reloj_.isActive(); }

  // Without the pieces that move now.
  std::vector<Pieza> StillAmong(std::vector<Pieza> piezas) const;
  // The moving pieces at this instant.
  std::vector<Fotograma> Frames() const;

 protected:
  void timerEvent(QTimerEvent* suceso) override;

 private:
  // Repaints where the pieces were and where they are now.
  void Repaint();

  QWidget& vista_;
  std::vector<Movimiento> movimientos_;
  double letra_ = 0;
  QElapsedTimer desde_;
  QBasicTimer reloj_;
  QRegion pintado_;
};

}  // namespace tasca
