// The manual's window.
#include "ui/qt/manual_window.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

namespace tasca {
namespace {

constexpr int AnchorRole = Qt::UserRole;

QTreeWidgetItem* ItemOf(QTreeWidget* indice, const QString& ancla) {
  for (QTreeWidgetItemIterator i{indice}; *i != nullptr; ++i) {
    if ((*i)->data(0, AnchorRole).toString() == ancla) return *i;
  }
  return nullptr;
}

}  // namespace

ManualWindow::ManualWindow()
    : atras_{ArrowButton(this, "Atras", Qt::LeftArrow, QStringLiteral("Atrás"))},
      adelante_{ArrowButton(this, "Adelante", Qt::RightArrow, QStringLiteral("Adelante"))},
      busqueda_{new SearchBar{
          this, QStringLiteral("Buscar en el manual"),
          [this](const QString& que, bool haciaAtras) { return texto_->Find(que, haciaAtras); }}},
      indice_{new QTreeWidget{this}},
      texto_{new ManualText{this}} {
  setObjectName(QStringLiteral("Manual"));
  setWindowTitle(QStringLiteral("Manual de la tasca"));
  indice_->setObjectName(QStringLiteral("Indice"));
  indice_->setAccessibleName(QStringLiteral("Índice"));
  const QSize sitio = QGuiApplication::primaryScreen()->availableSize();
  resize((QSize{66, 45} * fontMetrics().height()).boundedTo(sitio * 0.9));
  FillContents();
  BuildLayout();
  Connect();
  AddShortcuts();
  texto_->setFocus();
}

void ManualWindow::FillContents() {
  QTreeWidgetItem* capitulo = nullptr;
  for (const ManualText::Entry& titulo : texto_->Entries()) {
    QTreeWidgetItem* entrada = nullptr;
    if (titulo.Level == 1 || capitulo == nullptr) {
      entrada = capitulo = new QTreeWidgetItem{indice_};
    } else {
      entrada = new QTreeWidgetItem{capitulo};
    }
    entrada->setText(0, titulo.Title);
    entrada->setToolTip(0, titulo.Title);
    entrada->setData(0, AnchorRole, titulo.Anchor);
  }
  indice_->setHeaderHidden(true);
  indice_->setColumnCount(1);
  indice_->setUniformRowHeights(true);
}

QLayout* ManualWindow::BuildBar() {
  auto* const barra = new QHBoxLayout;
  barra->addWidget(atras_);
  barra->addWidget(adelante_);
  barra->addStretch();
  barra->addWidget(busqueda_);
  return barra;
}

void ManualWindow::BuildLayout() {
  const int letra = fontMetrics().averageCharWidth();
  auto* const partes = new QSplitter{this};
  partes->addWidget(indice_);
  partes->addWidget(texto_);
  partes->setStretchFactor(1, 1);
  partes->setChildrenCollapsible(false);
  indice_->setMinimumWidth(12 * letra);
  const int ancho = std::min(34 * letra, width() * 3 / 10);
  partes->setSizes({ancho, width() - ancho});
  auto* const filas = new QVBoxLayout{this};
  filas->addLayout(BuildBar());
  filas->addWidget(partes, 1);
}

void ManualWindow::Connect() {
  connect(atras_, &QToolButton::clicked, texto_, &QTextBrowser::backward);
  connect(adelante_, &QToolButton::clicked, texto_, &QTextBrowser::forward);
  connect(texto_, &QTextBrowser::backwardAvailable, atras_, &QWidget::setEnabled);
  connect(texto_, &QTextBrowser::forwardAvailable, adelante_, &QWidget::setEnabled);
  atras_->setEnabled(false);
  adelante_->setEnabled(false);
  connect(indice_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* entrada) {
    if (entrada != nullptr) texto_->GoTo(entrada->data(0, AnchorRole).toString());
  });
  connect(texto_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { FollowText(); });
}

void ManualWindow::AddShortcuts() {
  const auto alPulsar = [this](const QKeySequence& teclas, auto hace) {
    connect(new QShortcut{teclas, this}, &QShortcut::activated, this, hace);
  };
  alPulsar(Qt::ALT | Qt::Key_Left, [this] { texto_->backward(); });
  alPulsar(Qt::ALT | Qt::Key_Right, [this] { texto_->forward(); });
  alPulsar(Qt::CTRL | Qt::Key_Plus, [this] { texto_->Zoom(1); });
  alPulsar(Qt::CTRL | Qt::Key_Minus, [this] { texto_->Zoom(-1); });
}

void ManualWindow::ShowSection(const QString& ancla) {
  texto_->GoTo(ancla);
  texto_->setFocus();
}

// Only shows where the reader is: the text must not move.
void ManualWindow::FollowText() {
  QTreeWidgetItem* const entrada = ItemOf(indice_, texto_->CurrentAnchor());
  if (entrada == nullptr || entrada == indice_->currentItem()) return;
  const QSignalBlocker callado{indice_};
  indice_->setCurrentItem(entrada);
  indice_->scrollToItem(entrada);
}

void ManualWindow::changeEvent(QEvent* suceso) {
  BesideWindow::changeEvent(suceso);
  if (suceso->type() == QEvent::FontChange) texto_->FitFont();
}

}  // namespace tasca
