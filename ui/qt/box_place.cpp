// The placing of boxes.
#include "ui/qt/box_place.h"

#include <QEvent>
#include <utility>

namespace tasca {
namespace {

// The borders that the desktop puts around a window; those of the box are not known before it
// shows.
QMargins BordersOf(const QWidget& ventana) {
  const QRect fuera = ventana.frameGeometry();
  const QRect dentro = ventana.geometry();
  return {dentro.left() - fuera.left(), dentro.top() - fuera.top(), fuera.right() - dentro.right(),
          fuera.bottom() - dentro.bottom()};
}

}  // namespace

BoxPlacer::BoxPlacer(QDialog& caja, std::function<Alrededores()> alrededores)
    : caja_{caja}, alrededores_{std::move(alrededores)} {
  caja.ensurePolished();
  Place(caja.sizeHint());
  caja.installEventFilter(this);
}

bool BoxPlacer::eventFilter(QObject* /*objeto*/, QEvent* suceso) {
  const bool aLaVista = suceso->type() == QEvent::ShowToParent || suceso->type() == QEvent::Resize;
  if (aLaVista && caja_.isVisible()) Place(caja_.size());
  return false;
}

void BoxPlacer::Place(QSize tamano) {
  if (tamano == colocada_) return;
  colocada_ = tamano;
  const QWidget& ventana = *caja_.parentWidget();
  const QMargins bordes = BordersOf(ventana);
  const QSize conBordes = tamano.grownBy(bordes);
  const Rect sitio = SitioDeCaja(conBordes.width(), conBordes.height(), alrededores_());
  caja_.move(ventana.mapToGlobal(QPoint{qRound(sitio.X), qRound(sitio.Y)}));
}

}  // namespace tasca
