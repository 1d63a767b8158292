// Paints the scene, only what has changed of it.
#include "ui/qt/mesa_view.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QToolTip>
#include <algorithm>
#include <numeric>
#include <utility>

#include "ui/qt/mesa_painter.h"

namespace tasca {
namespace {

bool Holds(const std::vector<Pieza>& piezas, const Pieza& pieza) {
  return std::find(piezas.begin(), piezas.end(), pieza) != piezas.end();
}

// What has to be painted anew for `nuevas` to stand where `antes` stood.
QRegion Difference(const std::vector<Pieza>& antes, const std::vector<Pieza>& nuevas,
                   double letra) {
  QRegion distinta;
  for (const Pieza& pieza : antes) {
    if (!Holds(nuevas, pieza)) distinta += CoveredBy(pieza, letra);
  }
  for (const Pieza& pieza : nuevas) {
    if (!Holds(antes, pieza)) distinta += CoveredBy(pieza, letra);
  }
  return distinta;
}

double AreaOf(const QRegion& region) {
  return std::accumulate(region.begin(), region.end(), 0.0, [](double suma, const QRect& parte) {
    return suma + 1.0 * parte.width() * parte.height();
  });
}

// Clipping to one rectangle is so much quicker that painting up to twice as much costs less.
QRegion Simplified(const QRegion& region) {
  const QRegion entera{region.boundingRect()};
  return 2 * AreaOf(region) > AreaOf(entera) ? entera : region;
}

}  // namespace

MesaView::MesaView(QWidget* padre, std::function<void()> alPulsarEnter)
    : QWidget{padre}, alPulsarEnter_{std::move(alPulsarEnter)} {
  setObjectName(QStringLiteral("Mesa"));
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  Restart();
}

void MesaView::ShowScene(const Escena& escena) {
  if (escena == escena_) return;
  const Escena anterior = std::exchange(escena_, escena);
  const std::vector<Pieza> antes = std::move(hoja_.Piezas);
  hoja_ = LayOut();
  update(Simplified(Difference(antes, hoja_.Piezas, hoja_.Letra)));
  movimiento_.Start(MovementsFrom(anterior, antes), hoja_.Letra);
}

// Nothing moves under a box: the player has to answer what the table shows.
std::vector<Movimiento> MesaView::MovementsFrom(const Escena& escena,
                                                const std::vector<Pieza>& piezas) const {
  const bool mueve = quiereMovimiento_ && escena_.Toca == Turno::Enter && Motion::IsWanted(*this);
  if (!mueve) return {};
  std::vector<Movimiento> movimientos = MovimientosDeCartas(escena, escena_, hoja_.Piezas);
  const std::vector<Movimiento> fichas = MovimientosDeFichas(piezas, hoja_.Piezas);
  movimientos.insert(movimientos.end(), fichas.begin(), fichas.end());
  return movimientos;
}

Lamina MesaView::LayOut() {
  if (!letras_) letras_.emplace(font());
  return LaminaDe(escena_, {0, 0, static_cast<double>(width()), static_cast<double>(height())},
                  letras_->Pixels(), letras_->Measure());
}

// Another font, size or theme: everything is laid out and painted anew.
void MesaView::Restart() {
  colores_ = ColorsFor(palette());
  letras_.reset();
  hoja_ = LayOut();
  movimiento_.Start({}, hoja_.Letra);
  dibujos_.Estrella = {};
  ForgetOldCards();
  update();
}

void MesaView::ForgetOldCards() {
  std::vector<int> altos;
  for (const Pieza& pieza : hoja_.Piezas) {
    if (const auto* const carta = std::get_if<CartaPuesta>(&pieza)) {
      altos.push_back(qRound(carta->Girada ? carta->Donde.Ancho : carta->Donde.Alto));
    } else if (const auto* const monton = std::get_if<Monton>(&pieza)) {
      altos.push_back(qRound(monton->Donde.Alto));
    }
  }
  dibujos_.Cartas.ForgetOtherHeights(altos, devicePixelRatioF(), colores_.Oscuro);
}

bool MesaView::event(QEvent* suceso) {
  if (suceso->type() != QEvent::ToolTip) return QWidget::event(suceso);
  const auto* const ayuda = dynamic_cast<QHelpEvent*>(suceso);
  if (ayuda == nullptr) return false;
  for (const Pieza& pieza : hoja_.Piezas) {
    const auto* const placa = std::get_if<Placa>(&pieza);
    if (placa == nullptr || !ToQt(placa->Donde).contains(ayuda->pos())) continue;
    const QString nombre = OneLine(escena_.Asientos[placa->De].Nombre);
    QToolTip::showText(ayuda->globalPos(),
                       QStringLiteral("<span>%1</span>").arg(nombre.toHtmlEscaped()), this);
    return true;
  }
  QToolTip::hideText();
  return true;
}

void MesaView::changeEvent(QEvent* suceso) {
  QWidget::changeEvent(suceso);
  const bool cambia = suceso->type() == QEvent::PaletteChange ||
                      suceso->type() == QEvent::FontChange || suceso->type() == QEvent::StyleChange;
  if (cambia) Restart();
}

void MesaView::resizeEvent(QResizeEvent* /*suceso*/) { Restart(); }

void MesaView::paintEvent(QPaintEvent* suceso) {
  const bool otraPantalla = std::exchange(dpr_, devicePixelRatioF()) != devicePixelRatioF();
  if (otraPantalla) ForgetOldCards();
  QPainter p{this};
  MesaPainter pintor{p, colores_, *letras_, dibujos_};
  p.setClipRegion(suceso->region());
  pintor.PaintSurfaces(hoja_, suceso->region());
  pintor.PaintPieces(movimiento_.StillAmong(hoja_.Piezas), suceso->region());
  for (const Fotograma& fotograma : movimiento_.Frames()) pintor.PaintMoving(fotograma);
}

bool MesaView::IsOnKeyCap(QPointF punto) const {
  return escena_.Toca == Turno::Enter && ToQt(hoja_.Enter).contains(punto);
}

void MesaView::mousePressEvent(QMouseEvent* suceso) {
  pulsada_ = suceso->button() == Qt::LeftButton && IsOnKeyCap(suceso->position());
}

void MesaView::mouseReleaseEvent(QMouseEvent* suceso) {
  const bool vale = std::exchange(pulsada_, false) && IsOnKeyCap(suceso->position());
  if (vale && suceso->button() == Qt::LeftButton) alPulsarEnter_();
}

void MesaView::mouseMoveEvent(QMouseEvent* suceso) {
  if (IsOnKeyCap(suceso->position())) return setCursor(Qt::PointingHandCursor);
  unsetCursor();
}

}  // namespace tasca
