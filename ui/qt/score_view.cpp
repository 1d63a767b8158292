// Paints the score.
#include "ui/qt/score_view.h"

#include <QEvent>
#include <QPaintEvent>

#include "ui/mesa/layout.h"
#include "ui/qt/mesa_painter.h"

namespace tasca {

ScoreView::ScoreView(QWidget* padre) : QWidget{padre} {
  setObjectName(QStringLiteral("Marcador"));
  setFocusPolicy(Qt::NoFocus);
  LayOut();
}

void ScoreView::ShowScene(const Escena& escena) {
  if (escena.Tanteo == escena_.Tanteo) return;
  escena_ = escena;
  const std::vector<Pieza> antes = piezas_;
  LayOut();
  const bool mueve = quiereMovimiento_ && escena.Toca == Turno::Enter && Motion::IsWanted(*this);
  if (mueve) movimiento_.Start(MovimientosDeFichas(antes, piezas_), letras_->Pixels());
}

void ScoreView::LayOut() {
  colores_ = ColorsFor(palette());
  if (!letras_) letras_.emplace(font());
  piezas_ = MarcadorDe(escena_, {0, 0, static_cast<double>(width()), static_cast<double>(height())},
                       letras_->Pixels(), letras_->Measure());
  movimiento_.Start({}, letras_->Pixels());
  update();
}

void ScoreView::changeEvent(QEvent* suceso) {
  QWidget::changeEvent(suceso);
  if (suceso->type() == QEvent::FontChange) letras_.reset();
  if (suceso->type() == QEvent::FontChange || suceso->type() == QEvent::PaletteChange) LayOut();
}

void ScoreView::resizeEvent(QResizeEvent* /*suceso*/) { LayOut(); }

void ScoreView::paintEvent(QPaintEvent* suceso) {
  QPainter p{this};
  MesaPainter pintor{p, colores_, *letras_, dibujos_};
  pintor.PaintPieces(movimiento_.StillAmong(piezas_), suceso->region());
  for (const Fotograma& fotograma : movimiento_.Frames()) pintor.PaintMoving(fotograma);
}

}  // namespace tasca
