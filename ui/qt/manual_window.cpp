// The manual's window.
#include "ui/qt/manual_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

namespace tasca {
namespace {

constexpr int AnchorRole = Qt::UserRole;

QToolButton* ToolButton(QWidget* padre, const char* nombre, Qt::ArrowType flecha,
                        const QString& dicho) {
  auto* const boton = new QToolButton{padre};
  boton->setObjectName(QString::fromLatin1(nombre));
  boton->setArrowType(flecha);
  boton->setAccessibleName(dicho);
  boton->setToolTip(dicho);
  boton->setFocusPolicy(Qt::TabFocus);
  return boton;
}

QTreeWidgetItem* ItemOf(QTreeWidget* indice, const QString& ancla) {
  for (QTreeWidgetItemIterator i{indice}; *i != nullptr; ++i) {
    if ((*i)->data(0, AnchorRole).toString() == ancla) return *i;
  }
  return nullptr;
}

}  // namespace

ManualWindow::ManualWindow()
    : atras_{ToolButton(this, "Atras", Qt::LeftArrow, QStringLiteral("Atrás"))},
      adelante_{ToolButton(this, "Adelante", Qt::RightArrow, QStringLiteral("Adelante"))},
      buscado_{new QLineEdit{this}},
      anterior_{ToolButton(this, "Anterior", Qt::UpArrow, QStringLiteral("Buscar la anterior"))},
      siguiente_{
          ToolButton(this, "Siguiente", Qt::DownArrow, QStringLiteral("Buscar la siguiente"))},
      aviso_{new QLabel{this}},
      indice_{new QTreeWidget{this}},
      texto_{new ManualText{this}} {
  setObjectName(QStringLiteral("Manual"));
  setWindowTitle(QStringLiteral("Manual de la tasca"));
  buscado_->setObjectName(QStringLiteral("Buscado"));
  buscado_->setAccessibleName(QStringLiteral("Buscar en el manual"));
  buscado_->setPlaceholderText(QStringLiteral("Buscar"));
  buscado_->setClearButtonEnabled(true);
  aviso_->setObjectName(QStringLiteral("Aviso"));
  aviso_->setTextFormat(Qt::PlainText);
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
  barra->addWidget(aviso_);
  barra->addWidget(buscado_);
  barra->addWidget(anterior_);
  barra->addWidget(siguiente_);
  return barra;
}

void ManualWindow::BuildLayout() {
  const int letra = fontMetrics().averageCharWidth();
  buscado_->setMinimumWidth(24 * letra);
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
  connect(buscado_, &QLineEdit::textChanged, aviso_, &QLabel::clear);
  connect(buscado_, &QLineEdit::returnPressed, this, [this] { Search(false); });
  connect(siguiente_, &QToolButton::clicked, this, [this] { Search(false); });
  connect(anterior_, &QToolButton::clicked, this, [this] { Search(true); });
  connect(indice_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* entrada) {
    if (entrada != nullptr) texto_->GoTo(entrada->data(0, AnchorRole).toString());
  });
  connect(texto_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { FollowText(); });
}

void ManualWindow::AddShortcuts() {
  const auto alPulsar = [this](const QKeySequence& teclas, auto hace) {
    connect(new QShortcut{teclas, this}, &QShortcut::activated, this, hace);
  };
  alPulsar(Qt::Key_Escape, [this] { close(); });
  alPulsar(Qt::CTRL | Qt::Key_F, [this] {
    buscado_->setFocus();
    buscado_->selectAll();
  });
  alPulsar(Qt::Key_F3, [this] { Search(false); });
  alPulsar(Qt::SHIFT | Qt::Key_F3, [this] { Search(true); });
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

void ManualWindow::Search(bool haciaAtras) {
  if (buscado_->text().isEmpty()) return buscado_->setFocus();
  const bool hallado = texto_->Find(buscado_->text(), haciaAtras);
  aviso_->setText(hallado ? QString{} : QStringLiteral("No se encuentra."));
}

// A modal box blocks every window but its children. The manual becomes one for as long as the box
// is open.
bool ManualWindow::event(QEvent* suceso) {
  if (suceso->type() == QEvent::WindowBlocked && windowHandle() != nullptr) {
    windowHandle()->setTransientParent(QGuiApplication::modalWindow());
  }
  return QWidget::event(suceso);
}

}  // namespace tasca
