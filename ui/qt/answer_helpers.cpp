// Cards and steps beside a text field.
#include "ui/qt/answer_helpers.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QToolButton>
#include <algorithm>
#include <array>

#include "cards/deck.h"
#include "ui/qt/card_painter.h"
#include "ui/qt/mesa_colors.h"
#include "ui/qt/qt_text.h"

namespace tasca {
namespace {

// The keyboard stays with the field.
QToolButton* BesideTheField(QWidget* padre, const QString& nombre, const QString& texto) {
  auto* const boton = new QToolButton{padre};
  boton->setObjectName(nombre);
  boton->setText(texto);
  boton->setFocusPolicy(Qt::NoFocus);
  return boton;
}

void Toggle(QLineEdit& campo, const QString& cifra) {
  const QString antes = campo.text();
  campo.setText(antes.contains(cifra) ? QString{antes}.remove(cifra) : antes + cifra);
}

QToolButton* CardButton(QWidget* fila, QLineEdit& campo, int hueco, int carta) {
  const QString cifra = QString::number(hueco);
  auto* const boton = BesideTheField(fila, QStringLiteral("Carta%1").arg(hueco), cifra);
  const int alto = std::max(SmallCardHeight + 4, 6 * fila->fontMetrics().height());
  const bool oscuro = ColorsFor(fila->palette()).Oscuro;
  const QPixmap dibujo = CardPainter{}.Card(carta, alto, fila->devicePixelRatioF(), oscuro);
  boton->setIcon(dibujo);
  boton->setIconSize(dibujo.deviceIndependentSize().toSize());
  boton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  boton->setAccessibleName(
      QStringLiteral("Carta %1: %2").arg(cifra, ToDisplay(NombreDeCarta(carta))));
  boton->setCheckable(true);
  const auto marcar = [boton, cifra](const QString& texto) {
    boton->setChecked(texto.contains(cifra));
  };
  marcar(campo.text());
  QObject::connect(&campo, &QLineEdit::textChanged, boton, marcar);
  QObject::connect(boton, &QToolButton::clicked, &campo, [&campo, cifra] { Toggle(campo, cifra); });
  return boton;
}

void Step(QLineEdit& campo, int cuanto) {
  campo.setText(QString::number(std::clamp(campo.text().toInt() + cuanto, 1, INT16_MAX)));
}

}  // namespace

QWidget* CardsToClick(QLineEdit& campo, const Array<Integer, 1, 4>& mano) {
  auto* const fila = new QWidget{campo.parentWidget()};
  auto* const sitio = new QHBoxLayout{fila};
  sitio->setContentsMargins(0, 0, 0, 0);
  for (int hueco = 1; hueco <= 4; ++hueco) {
    if (mano[hueco] != 0) sitio->addWidget(CardButton(fila, campo, hueco, mano[hueco]));
  }
  sitio->addStretch();
  return fila;
}

QWidget* Steps(QLineEdit& campo) {
  struct Way {
    const char* Nombre;
    const char* Texto;
    const char* Dicho;
    int Cuanto;
    Qt::Key Flecha;
  };
  constexpr std::array<Way, 2> sentidos{
      {{"Menos", "−", "Una menos", -1, Qt::Key_Down}, {"Mas", "+", "Una más", 1, Qt::Key_Up}}};
  auto* const fila = new QWidget{campo.parentWidget()};
  auto* const sitio = new QHBoxLayout{fila};
  sitio->setContentsMargins(0, 0, 0, 0);
  for (const Way& sentido : sentidos) {
    auto* const boton =
        BesideTheField(fila, QString::fromUtf8(sentido.Nombre), QString::fromUtf8(sentido.Texto));
    boton->setAccessibleName(QString::fromUtf8(sentido.Dicho));
    boton->setAutoRepeat(true);
    boton->setMinimumSize(QSize{3, 2} * boton->fontMetrics().height());
    const auto paso = [&campo, cuanto = sentido.Cuanto] { Step(campo, cuanto); };
    QObject::connect(boton, &QToolButton::clicked, &campo, paso);
    auto* const flecha = new QShortcut{sentido.Flecha, &campo};
    flecha->setContext(Qt::WidgetShortcut);
    QObject::connect(flecha, &QShortcut::activated, &campo, paso);
    sitio->addWidget(boton);
  }
  sitio->addStretch();
  return fila;
}

}  // namespace tasca
