// The bidding dialog's window.
#include "ui/qt/dialog_form.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>
#include <optional>

#include "ui/qt/qt_text.h"

namespace tasca {
namespace {

// The form's layout in twips: 15 are a pixel at 96 dpi.
constexpr QSize Superficie{4410, 2130};
constexpr QSize Boton{1500, 500};
constexpr std::array<QPoint, 4> Esquinas{QPoint{500, 500}, QPoint{2500, 500}, QPoint{500, 1500},
                                         QPoint{2500, 1500}};
constexpr double Unidad = 1.0 / 15;

struct ButtonLetter {
  Qt::Key Tecla;
  std::u16string_view Caption;
};
constexpr std::array<ButtonLetter, 5> Letras{{{Qt::Key_P, u"Paso"},
                                              {Qt::Key_E, u"Envido"},
                                              {Qt::Key_M, u"Envido Más"},
                                              {Qt::Key_O, u"Órdago"},
                                              {Qt::Key_Q, u"Quiero"}}};

// The caption of the button that a key presses; "" if it presses none.
std::u16string_view CaptionFor(const QKeyEvent& suceso) {
  const bool sola = suceso.modifiers() == Qt::NoModifier || suceso.modifiers() == Qt::ShiftModifier;
  if (!sola) return {};
  for (const ButtonLetter& letra : Letras) {
    if (letra.Tecla == suceso.key()) return letra.Caption;
  }
  return {};
}

// The index of the button next to `indice` in the direction of an arrow key. The buttons form two
// rows of two.
std::optional<int> Vecino(int indice, int tecla) {
  if (tecla == Qt::Key_Left || tecla == Qt::Key_Right) return indice ^ 1;
  if (tecla == Qt::Key_Up || tecla == Qt::Key_Down) return indice ^ 2;
  return std::nullopt;
}

}  // namespace

DialogForm::DialogForm(QWidget* padre, Dialog& dialogo)
    : LateHiding{padre, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint},
      dialogo_{dialogo} {
  setObjectName(QStringLiteral("Dialog"));
  setWindowTitle(ToDisplay(dialogo.Caption));
  for (int indice = 0; indice < 4; ++indice) BuildButton(indice);
  TellButtons();
  Place();
  command1_.at(static_cast<std::size_t>(dialogo.Foco))->setFocus();
}

// Screen readers say the title, this, and the button that has the focus.
void DialogForm::TellButtons() {
  QStringList rotulos;
  for (const DialogButton& boton : dialogo_.Command1) {
    if (boton.Visible && boton.Enabled) rotulos += ToDisplay(boton.Caption);
  }
  setAccessibleDescription(rotulos.join(QStringLiteral(", ")));
}

void DialogForm::BuildButton(int indice) {
  const DialogButton& boton = dialogo_.Command1[indice];
  auto* const nuevo = new QPushButton{ToLabel(boton.Caption), this};
  nuevo->setObjectName(QStringLiteral("Command1_%1").arg(indice));
  nuevo->setAccessibleName(ToDisplay(boton.Caption));
  nuevo->setVisible(boton.Visible);
  nuevo->setEnabled(boton.Enabled);
  nuevo->installEventFilter(this);
  connect(nuevo, &QPushButton::clicked, this, [this, indice] {
    Command1_Click(dialogo_, indice);
    if (!dialogo_.Visible) accept();
  });
  command1_.at(static_cast<std::size_t>(indice)) = nuevo;
}

// The layout is made for a font of 13 pixels. A larger font scales the whole form, as far as the
// screen allows it and every caption needs it.
void DialogForm::Place() {
  constexpr double letraDelDibujo = 13;
  const QSize pantalla = screen()->availableSize() * 0.9;
  const double cabe = std::min(static_cast<double>(pantalla.width()) / Superficie.width(),
                               static_cast<double>(pantalla.height()) / Superficie.height());
  double escala =
      std::max(Unidad, std::min(Unidad * fontMetrics().height() / letraDelDibujo, cabe));
  for (const QPushButton* const boton : command1_) {
    const QSize falta = boton->sizeHint();
    escala = std::max({escala, static_cast<double>(falta.width()) / Boton.width(),
                       static_cast<double>(falta.height()) / Boton.height()});
  }
  setFixedSize(Superficie * escala);
  for (std::size_t i = 0; i < command1_.size(); ++i) {
    command1_.at(i)->setGeometry(QRect{Esquinas.at(i) * escala, Boton * escala});
  }
}

void DialogForm::changeEvent(QEvent* suceso) {
  QDialog::changeEvent(suceso);
  if (suceso->type() == QEvent::FontChange && command1_.back() != nullptr) Place();
}

void DialogForm::closeEvent(QCloseEvent* suceso) { suceso->ignore(); }

// The letters arrive here because buttons ignore them.
void DialogForm::keyPressEvent(QKeyEvent* suceso) {
  const std::u16string_view rotulo = CaptionFor(*suceso);
  if (rotulo.empty()) return QDialog::keyPressEvent(suceso);
  for (int indice = 0; indice < 4; ++indice) {
    QPushButton* const boton = command1_.at(static_cast<std::size_t>(indice));
    if (dialogo_.Command1[indice].Caption == rotulo && boton->isVisible()) return boton->click();
  }
}

bool DialogForm::eventFilter(QObject* objeto, QEvent* suceso) {
  if (const auto* const pulsada = dynamic_cast<QKeyEvent*>(suceso)) {
    for (int indice = 0; indice < 4; ++indice) {
      const bool esEste = command1_.at(static_cast<std::size_t>(indice)) == objeto;
      if (esEste && pulsada->type() == QEvent::KeyPress && MoveFocus(indice, pulsada->key())) {
        return true;
      }
    }
  }
  return QDialog::eventFilter(objeto, suceso);
}

bool DialogForm::MoveFocus(int desde, int tecla) {
  const std::optional<int> vecino = Vecino(desde, tecla);
  if (!vecino) return false;
  QPushButton* const boton = command1_.at(static_cast<std::size_t>(*vecino));
  if (boton->isVisible()) boton->setFocus(Qt::TabFocusReason);
  return true;
}

}  // namespace tasca
