// The start-up dialog's window.
#include "ui/qt/dlg_inicio_form.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/text.h"
#include "ui/qt/accessible.h"
#include "ui/qt/qt_text.h"
#include "ui/spoken/sentences.h"

namespace tasca {
namespace {

QLabel* Texto(QWidget* padre) {
  auto* const texto = new QLabel{padre};
  texto->setTextFormat(Qt::PlainText);
  texto->setWordWrap(true);
  return texto;
}

// A text in a sunken frame.
QLabel* Hoja(QWidget* padre) {
  auto* const hoja = Texto(padre);
  hoja->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  hoja->setAutoFillBackground(true);
  hoja->setBackgroundRole(QPalette::Base);
  hoja->setForegroundRole(QPalette::Text);
  return hoja;
}

// Makes room for `lineas` lines.
void FitHoja(QLabel& hoja, int lineas) {
  const int letra = hoja.fontMetrics().averageCharWidth();
  hoja.setMargin(letra);
  hoja.setMinimumHeight(lineas * hoja.fontMetrics().lineSpacing() + 3 * letra);
}

// Inserts zero-width spaces into words wider than the minimum width of `hoja`, so that they can be
// broken after any character.
QString Breakable(const QString& texto, const QLabel& hoja) {
  const QChar permisoDeCorte{0x200B};
  const int sitio = hoja.minimumWidth() - 2 * (hoja.margin() + hoja.frameWidth());
  QStringList palabras = texto.split(QChar{u' '});
  for (QString& palabra : palabras) {
    if (hoja.fontMetrics().horizontalAdvance(palabra) <= sitio) continue;
    for (qsizetype i = palabra.size() - 1; i > 0; --i) palabra.insert(i, permisoDeCorte);
  }
  return palabras.join(QChar{u' '});
}

// What a window can have of the screen, without its own frame and title.
QSize RoomOnScreen(const QWidget& ventana) {
  return ventana.screen()->availableSize() - QSize{1, 2} * ventana.fontMetrics().height();
}

// As large as what it holds. On a screen too small for that, it scrolls.
class Pliego : public QScrollArea {
 public:
  Pliego(QWidget* padre, QLayout* disposicion) : QScrollArea{padre} {
    setFrameStyle(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto* const contenido = new QWidget;
    contenido->setLayout(disposicion);
    setWidget(contenido);
  }

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override {
    const int ancho = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {std::min(ancho, RoomOnScreen(*window()).width() * 9 / 10),
            QScrollArea::minimumSizeHint().height()};
  }
  // The contents have got another size.
  bool eventFilter(QObject* objeto, QEvent* suceso) override {
    if (objeto == widget() && suceso->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(objeto, suceso);
  }
};

// The characters for which there is room in the left and the right half of the dialog.
struct Columnas {
  int Lista;
  int Historia;
};

Columnas ColumnsOn(const QWidget& ventana) {
  const int caben = RoomOnScreen(ventana).width() / ventana.fontMetrics().averageCharWidth();
  return caben < 90 ? Columnas{.Lista = 10, .Historia = 24} : Columnas{.Lista = 20, .Historia = 40};
}

void ShowCombo(QComboBox* combo, const ComboBox& lista) {
  if (combo->count() != static_cast<int>(lista.List.size())) {
    combo->clear();
    for (const ComboBox::Entrada& entrada : lista.List) combo->addItem(ToDisplay(entrada.Texto));
  }
  combo->setCurrentIndex(lista.ListIndex);
}

}  // namespace

DlgInicioForm::DlgInicioForm(DlgInicio& estado, Events sucesos)
    : sucesos_{std::move(sucesos)},
      estado_{estado},
      text1_{Texto(this)},
      text2_{new NameEdit{this, [this](std::u16string_view reparo) { RefuseName(reparo); }}},
      estadoTexto_{new StatusLine{this}},
      text3_{Hoja(this)},
      text4_{Hoja(this)},
      combos_{new QComboBox{this}, new QComboBox{this}, new QComboBox{this}},
      check1_{new QCheckBox{QStringLiteral("Usar los nombres de los jugadores"), this},
              new QCheckBox{QStringLiteral("Usar las expresiones de los jugadores"), this}},
      option1_{new QRadioButton{QStringLiteral("Estilo directo"), this},
               new QRadioButton{QStringLiteral("Estilo indirecto"), this}},
      cbOK_{new QPushButton{QStringLiteral("&Aceptar"), this}},
      cbCancel_{new QPushButton{QStringLiteral("&Salir del juego"), this}} {
  DescribeTexts();
  setWindowTitle(ToDisplay(TituloAplicacion));
  NameControls();
  BuildLayout();
  Connect();
  text2_->setFocus();
}

void DlgInicioForm::NameControls() {
  setObjectName(QStringLiteral("DlgInicio"));
  text1_->setObjectName(QStringLiteral("Text1"));
  text2_->setObjectName(QStringLiteral("Text2"));
  text3_->setObjectName(QStringLiteral("Text3"));
  text4_->setObjectName(QStringLiteral("Text4"));
  text2_->setAccessibleName(QStringLiteral("Su nombre"));
  const std::array nombres{QStringLiteral("Compañero"), QStringLiteral("Contrario 1"),
                           QStringLiteral("Contrario 2")};
  for (std::size_t i = 0; i < combos_.size(); ++i) {
    combos_.at(i)->setObjectName(QStringLiteral("Combo%1").arg(i + 1));
    combos_.at(i)->setAccessibleName(nombres.at(i));
    combos_.at(i)->view()->setAccessibleName(nombres.at(i));
    combos_.at(i)->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  }
  for (std::size_t i = 0; i < check1_.size(); ++i) {
    check1_.at(i)->setObjectName(QStringLiteral("Check1_%1").arg(i));
    option1_.at(i)->setObjectName(QStringLiteral("Option1_%1").arg(i));
    check1_.at(i)->setAccessibleName(check1_.at(i)->text());
    option1_.at(i)->setAccessibleName(option1_.at(i)->text());
  }
  cbOK_->setObjectName(QStringLiteral("CbOK"));
  cbOK_->setAccessibleName(QStringLiteral("Aceptar"));
  cbOK_->setDefault(true);
  cbCancel_->setObjectName(QStringLiteral("CbCancel"));
  cbCancel_->setAccessibleName(QStringLiteral("Salir del juego"));
}

void DlgInicioForm::Connect() {
  using ComboClick = void (*)(DlgInicio&, int);
  const auto pasar = [this](const std::function<void()>& suceso) {
    sucesos_.Run(suceso);
    ShowState();
  };
  ConnectName();
  const auto elegir = [this, pasar](QComboBox* combo, ComboClick clic) {
    connect(combo, &QComboBox::activated, this, [this, combo, pasar, clic](int posicion) {
      pasar([this, clic, posicion] { clic(estado_, posicion); });
      TellCompanion(*combo);
    });
  };
  elegir(combos_[0], Combo1_Click);
  elegir(combos_[1], Combo2_Click);
  elegir(combos_[2], Combo3_Click);
  for (int i = 0; i < 2; ++i) {
    const auto indice = static_cast<std::size_t>(i);
    connect(check1_.at(indice), &QCheckBox::clicked, this, [this, pasar, i](bool marcada) {
      pasar([this, i, marcada] { Check1_Click(estado_, i, marcada); });
    });
    connect(option1_.at(indice), &QRadioButton::clicked, this,
            [this, pasar, i] { pasar([this, i] { Option1_Click(estado_, i); }); });
  }
  connect(cbOK_, &QPushButton::clicked, this, [this] { sucesos_.CbOK_Click(); });
  connect(cbCancel_, &QPushButton::clicked, this, [this] { sucesos_.Left(); });
}

// The name again: the story interrupts the screen reader, which is saying the new entry. The first
// entry is "Aleatorio", which leaves the last story in place.
void DlgInicioForm::TellCompanion(const QComboBox& combo) {
  if (combo.currentIndex() <= 0) return;
  voz_.Say(ToDisplay(
      Join(Seguido({FromInput(combo.currentText())}), u" ", Seguido(Renglones(estado_.Text4)))));
}

// QLineEdit truncates a pasted text that is too long. The message about that stays until the name
// is shorter than the maximum again.
void DlgInicioForm::ConnectName() {
  connect(text2_, &QLineEdit::textChanged, this, [this](const QString& texto) {
    estado_.Text2 = text2_->Text();
    const bool cortado = estadoTexto_->text() == ToDisplay(NombreDemasiadoLargo);
    if (!cortado || texto.size() < text2_->maxLength()) estadoTexto_->ShowText({});
  });
}

void DlgInicioForm::RefuseName(std::u16string_view reparo) {
  estadoTexto_->ShowText(reparo);
  QApplication::beep();
}

void DlgInicioForm::BuildLayout() {
  text1_->setAlignment(Qt::AlignHCenter);
  text4_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  FitToFont();
  const int margen = 2 * fontMetrics().averageCharWidth();
  auto* const mesa = new QHBoxLayout;
  mesa->addLayout(BuildChoices(), 1);
  mesa->addWidget(text4_, 1);
  auto* const pliego = new QVBoxLayout;
  pliego->setContentsMargins(0, 0, 0, 0);
  pliego->setSpacing(margen);
  pliego->addWidget(text1_);
  pliego->addLayout(mesa, 1);
  pliego->addLayout(BuildStyle());
  pliego->addWidget(text3_);
  auto* const ventana = new QVBoxLayout{this};
  ventana->setContentsMargins(margen, margen, margen, margen);
  ventana->setSpacing(margen);
  ventana->addWidget(new Pliego{this, pliego}, 1);
  ventana->addLayout(BuildButtons());
}

void DlgInicioForm::FitToFont() {
  text1_->setFont(Scaled(font(), 1.2));
  FitHoja(*text3_, 1);
  FitHoja(*text4_, 7);
  const Columnas columnas = ColumnsOn(*this);
  text4_->setMinimumWidth(columnas.Historia * fontMetrics().averageCharWidth());
  for (QComboBox* const combo : combos_) combo->setMinimumContentsLength(columnas.Lista);
}

void DlgInicioForm::showEvent(QShowEvent* suceso) {
  if (!suceso->spontaneous()) resize(sizeHint().boundedTo(RoomOnScreen(*this)));
  QDialog::showEvent(suceso);
}

void DlgInicioForm::changeEvent(QEvent* suceso) {
  QDialog::changeEvent(suceso);
  if (suceso->type() != QEvent::FontChange || !isVisible()) return;
  FitToFont();
  ShowState();
  resize(sizeHint().boundedTo(RoomOnScreen(*this)));
}

QLayout* DlgInicioForm::BuildChoices() {
  auto* const fichas = new QFormLayout;
  fichas->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  fichas->addRow(QStringLiteral("Su nombre:"), text2_);
  fichas->addRow(QStringLiteral("Compañero:"), combos_[0]);
  fichas->addRow(QStringLiteral("Contrario 1:"), combos_[1]);
  fichas->addRow(QStringLiteral("Contrario 2:"), combos_[2]);
  const std::array<std::pair<QWidget*, QString>, 4> etiquetas{
      {{text2_, QStringLiteral("Label4")},
       {combos_[0], QStringLiteral("Label1")},
       {combos_[1], QStringLiteral("Label2")},
       {combos_[2], QStringLiteral("Label3")}}};
  for (const auto& [campo, nombre] : etiquetas) fichas->labelForField(campo)->setObjectName(nombre);
  return fichas;
}

QLayout* DlgInicioForm::BuildStyle() {
  auto* const frame1 = new QGroupBox{QStringLiteral("Narración"), this};
  frame1->setObjectName(QStringLiteral("Frame1"));
  auto* const opciones = new QVBoxLayout;
  for (QRadioButton* const opcion : option1_) opciones->addWidget(opcion);
  frame1->setLayout(opciones);
  auto* const casillas = new QVBoxLayout;
  for (QCheckBox* const casilla : check1_) casillas->addWidget(casilla);
  auto* const estilo = new QHBoxLayout;
  estilo->addLayout(casillas, 1);
  estilo->addWidget(frame1, 1);
  return estilo;
}

QLayout* DlgInicioForm::BuildButtons() {
  auto* const botones = new QHBoxLayout;
  botones->addWidget(estadoTexto_, 1);
  botones->addWidget(cbOK_);
  botones->addWidget(cbCancel_);
  return botones;
}

void DlgInicioForm::ShowState() {
  text1_->setText(ToDisplay(estado_.Text1).trimmed());
  text2_->ShowText(estado_.Text2);
  text3_->setText(ToDisplay(estado_.Text3));
  text4_->setText(Breakable(ToDisplay(estado_.Text4), *text4_));
  ShowCombo(combos_[0], estado_.Combo1);
  ShowCombo(combos_[1], estado_.Combo2);
  ShowCombo(combos_[2], estado_.Combo3);
  for (int i = 0; i < 2; ++i) {
    check1_.at(static_cast<std::size_t>(i))->setChecked(estado_.Check1[i]);
    option1_.at(static_cast<std::size_t>(i))->setChecked(estado_.Option1 == i);
  }
  cbOK_->setEnabled(estado_.CbOKEnabled);
}

}  // namespace tasca
