// The search bar.
#include "ui/qt/search_bar.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <utility>

namespace tasca {

QToolButton* ArrowButton(QWidget* padre, const char* nombre, Qt::ArrowType flecha,
                         const QString& dicho) {
  auto* const boton = new QToolButton{padre};
  boton->setObjectName(QString::fromLatin1(nombre));
  boton->setArrowType(flecha);
  boton->setAccessibleName(dicho);
  boton->setToolTip(dicho);
  boton->setFocusPolicy(Qt::TabFocus);
  return boton;
}

SearchBar::SearchBar(QWidget* ventana, const QString& dicho, Finder alBuscar)
    : QWidget{ventana},
      alBuscar_{std::move(alBuscar)},
      aviso_{new QLabel{this}},
      buscado_{new QLineEdit{this}},
      anterior_{ArrowButton(this, "Anterior", Qt::UpArrow, QStringLiteral("Buscar la anterior"))},
      siguiente_{
          ArrowButton(this, "Siguiente", Qt::DownArrow, QStringLiteral("Buscar la siguiente"))} {
  buscado_->setObjectName(QStringLiteral("Buscado"));
  buscado_->setAccessibleName(dicho);
  buscado_->setPlaceholderText(QStringLiteral("Buscar"));
  buscado_->setClearButtonEnabled(true);
  buscado_->setMinimumWidth(24 * fontMetrics().averageCharWidth());
  aviso_->setObjectName(QStringLiteral("Aviso"));
  aviso_->setTextFormat(Qt::PlainText);
  auto* const fila = new QHBoxLayout{this};
  fila->setContentsMargins({});
  for (QWidget* const control :
       {static_cast<QWidget*>(aviso_), static_cast<QWidget*>(buscado_),
        static_cast<QWidget*>(anterior_), static_cast<QWidget*>(siguiente_)}) {
    fila->addWidget(control);
  }
  connect(buscado_, &QLineEdit::textChanged, aviso_, &QLabel::clear);
  connect(buscado_, &QLineEdit::returnPressed, this, [this] { Search(false); });
  connect(siguiente_, &QToolButton::clicked, this, [this] { Search(false); });
  connect(anterior_, &QToolButton::clicked, this, [this] { Search(true); });
  AddShortcuts(ventana);
}

void SearchBar::AddShortcuts(QWidget* ventana) {
  const auto alPulsar = [this, ventana](const QKeySequence& teclas, auto hace) {
    connect(new QShortcut{teclas, ventana}, &QShortcut::activated, this, hace);
  };
  alPulsar(Qt::CTRL | Qt::Key_F, [this] {
    buscado_->setFocus();
    buscado_->selectAll();
  });
  alPulsar(Qt::Key_F3, [this] { Search(false); });
  alPulsar(Qt::SHIFT | Qt::Key_F3, [this] { Search(true); });
}

void SearchBar::Search(bool haciaAtras) {
  if (buscado_->text().isEmpty()) return buscado_->setFocus();
  const bool hallado = alBuscar_(buscado_->text(), haciaAtras);
  aviso_->setText(hallado ? QString{} : QStringLiteral("No se encuentra."));
}

}  // namespace tasca
