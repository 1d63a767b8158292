// The main window's layout.
#include "ui/qt/form1_layout.h"

#include <QFontInfo>
#include <QScreen>
#include <utility>

#include "ui/qt/input_line.h"

namespace tasca {
namespace {

// To whole pixels, by its borders: parts that touch still do.
QRect InPixels(const Rect& r) {
  return {QPoint{qRound(r.X), qRound(r.Y)}, QPoint{qRound(r.Derecha()) - 1, qRound(r.Abajo()) - 1}};
}

// A part without a place is not there.
void Place(QWidget* control, const Rect& donde) {
  if (control->isHidden() != donde.Vacio()) control->setVisible(!donde.Vacio());
  if (!donde.Vacio()) control->setGeometry(InPixels(donde));
}

}  // namespace

Form1Layout::Form1Layout(QWidget* ventana, const Parts& partes)
    : QLayout{ventana}, partes_{partes} {
  for (QWidget* const control : std::initializer_list<QWidget*>{
           partes.Texto1, partes.Texto2, partes.Texto3, partes.RotuloTexto1, partes.RotuloTexto3,
           partes.Ayuda, partes.Mesa, partes.Tanteo}) {
    addWidget(control);
  }
}

Form1Layout::~Form1Layout() { qDeleteAll(elementos_); }

void Form1Layout::ShowPicture(bool quiere) {
  quiereMesa_ = quiere;
  invalidate();
  activate();
}

void Form1Layout::addItem(QLayoutItem* elemento) { elementos_.append(elemento); }

int Form1Layout::count() const { return static_cast<int>(elementos_.size()); }

QLayoutItem* Form1Layout::itemAt(int indice) const { return elementos_.value(indice); }

QLayoutItem* Form1Layout::takeAt(int indice) {
  return indice >= 0 && indice < count() ? elementos_.takeAt(indice) : nullptr;
}

QSize Form1Layout::sizeHint() const { return minimumSize() * 3; }

QSize Form1Layout::minimumSize() const {
  const int letra = parentWidget()->fontMetrics().height();
  return QSize{18 * letra, 14 * letra}.boundedTo(parentWidget()->screen()->availableSize() * 0.8);
}

MedidasVentana Form1Layout::Measures(const QRect& sitio) const {
  MedidasVentana m;
  m.Ancho = sitio.right() + 1;
  m.Alto = sitio.height();
  m.Menu = sitio.top();
  m.Letra = QFontInfo{parentWidget()->font()}.pixelSize();
  m.QuiereMesa = quiereMesa_;
  m.AltoTanteo = partes_.Texto3->sizeHint().height();
  m.AnchoRotulo = partes_.RotuloTexto3->sizeHint().width();
  m.AltoRotulo = partes_.RotuloTexto1->sizeHint().height();
  m.AltoAyuda = partes_.Ayuda->heightForWidth(sitio.width() - qRound(2 * m.Letra));
  m.AltoLinea = partes_.Texto1->fontMetrics().lineSpacing();
  m.MargenTexto =
      2.0 * (partes_.Texto1->document()->documentMargin() + partes_.Texto1->frameWidth());
  return m;
}

void Form1Layout::setGeometry(const QRect& sitio) {
  QLayout::setGeometry(sitio);
  if (std::exchange(colocando_, true)) return;
  const MedidasVentana m = Measures(sitio);
  InputLine& texto1 = *partes_.Texto1;
  // The width decides into how many lines the text breaks, and these decide the height.
  texto1.resize(qRound(PartesDe(m, texto1.height()).Texto1.Ancho), texto1.height());
  texto1.LimitHeight(static_cast<int>(AltoMaximoTexto1(m)));
  const PartesVentana p = PartesDe(m, texto1.height());
  Place(partes_.Mesa, p.Mesa);
  Place(partes_.Tanteo, p.Tanteo);
  Place(partes_.RotuloTexto3, p.RotuloTexto3);
  Place(partes_.Texto3, p.Texto3);
  Place(partes_.Texto2, p.Texto2);
  Place(partes_.RotuloTexto1, p.RotuloTexto1);
  Place(partes_.Texto1, p.Texto1);
  Place(partes_.Ayuda, p.Ayuda);
  colocando_ = false;
}

}  // namespace tasca
