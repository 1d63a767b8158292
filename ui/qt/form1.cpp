// The main window.
#include "ui/qt/form1.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QTextDocument>
#include <QVBoxLayout>
#include <utility>

#include "base/keys.h"
#include "ui/qt/keys.h"
#include "ui/qt/qt_text.h"

namespace tasca {
namespace {

QLabel* Etiqueta(const QString& texto, QWidget* de) {
  auto* const etiqueta = new QLabel{texto, de->parentWidget()};
  etiqueta->setTextFormat(Qt::PlainText);
  etiqueta->setBuddy(de);
  return etiqueta;
}

// Keys that scroll, select or copy in a read-only box, or move the focus.
bool EsTeclaDeLectura(const QKeyEvent& suceso) {
  switch (suceso.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
      return true;
    default:
      return suceso.matches(QKeySequence::Copy) || suceso.matches(QKeySequence::SelectAll);
  }
}

// Stores `texto` in `copiado`. False if it was there already.
bool Renovar(std::u16string& copiado, const std::u16string& texto) {
  if (copiado == texto) return false;
  copiado = texto;
  return true;
}

}  // namespace

Form1::Form1(Events sucesos, bool conSonido)
    : sucesos_{std::move(sucesos)},
      text1_{new InputLine{this, [this](const QKeyEvent& suceso) { return KeyInText1(suceso); }}},
      text2_{new Transcript{this}},
      text3_{new QLineEdit{this}},
      ayuda_{new QLabel{this}} {
  ayuda_->setTextFormat(Qt::PlainText);
  setObjectName(QStringLiteral("Form1"));
  setWindowTitle(ToDisplay(TituloAplicacion));
  text1_->setObjectName(QStringLiteral("Text1"));
  text1_->setAccessibleName(QStringLiteral("Sus cartas"));
  text2_->setObjectName(QStringLiteral("Text2"));
  text2_->setAccessibleName(QStringLiteral("Lo que pasa en la mesa"));
  text3_->setObjectName(QStringLiteral("Text3"));
  text3_->setAccessibleName(QStringLiteral("Tanteo, primero su pareja"));
  text3_->setReadOnly(true);
  text2_->installEventFilter(this);
  text3_->installEventFilter(this);
  BuildLayout();
  layout()->setMenuBar(BuildMenu(conSonido));
  ShowHelp(conSonido);
  EnlargeTexts();
  resize(QGuiApplication::primaryScreen()->availableSize() * 0.8);
  text1_->setFocus();
}

void Form1::BuildLayout() {
  auto* const tanteo = new QHBoxLayout;
  tanteo->addWidget(Etiqueta(QStringLiteral("Tanteo (su pareja / la contraria):"), text3_));
  tanteo->addWidget(text3_, 1);
  auto* const ventana = new QVBoxLayout{this};
  ventana->addLayout(tanteo);
  ventana->addWidget(text2_, 1);
  ventana->addWidget(Etiqueta(QStringLiteral("Sus cartas:"), text1_));
  ventana->addWidget(text1_);
  ventana->addWidget(ayuda_);
}

QMenuBar* Form1::BuildMenu(bool conSonido) {
  auto* const menus = new QMenuBar{this};
  auto* const opciones = menus->addMenu(QStringLiteral("&Opciones"));
  auto* const sonido = opciones->addAction(QStringLiteral("&Sonido"));
  sonido->setObjectName(QStringLiteral("Sonido"));
  sonido->setShortcut(Qt::Key_F9);
  sonido->setAutoRepeat(false);
  sonido->setCheckable(true);
  sonido->setChecked(conSonido);
  connect(sonido, &QAction::toggled, this, [this](bool encendido) {
    ShowHelp(encendido);
    sucesos_.Sonido_Click(encendido);
  });
  return menus;
}

void Form1::ShowHelp(bool conSonido) {
  ayuda_->setText(QStringLiteral("Enter: continuar   ·   Q: abandonar la mano   ·   "
                                 "Re Pág y Av Pág: repasar lo dicho   ·   F9: %1 el sonido")
                      .arg(conSonido ? QStringLiteral("quitar") : QStringLiteral("poner")));
  text1_->setAccessibleDescription(ayuda_->text());
}

void Form1::ShowTexts(const Form1State& estado) {
  text1_->ShowText(ToDisplay(estado.Text1));
  if (Renovar(copiado2_, estado.Text2)) text2_->ShowText(ToDisplay(estado.Text2));
  if (Renovar(copiado3_, estado.Text3)) text3_->setText(ToDisplay(estado.Text3));
}

void Form1::FocusInput() { text1_->setFocus(); }

// Form_KeyDown: a key that no control has handled moves the focus to the input line. Reading keys
// are excluded: the Ctrl of Ctrl+C, or an arrow at the end of a text, must not move it.
void Form1::keyPressEvent(QKeyEvent* suceso) {
  suceso->accept();
  if (!EsTeclaDeLectura(*suceso)) text1_->setFocus();
}

void Form1::closeEvent(QCloseEvent* suceso) {
  suceso->accept();
  sucesos_.Closed();
}

// Passes keys typed in the read-only boxes on to the input line.
bool Form1::eventFilter(QObject* objeto, QEvent* suceso) {
  if (suceso->type() != QEvent::KeyPress) return QWidget::eventFilter(objeto, suceso);
  const auto* const pulsada = dynamic_cast<QKeyEvent*>(suceso);
  if (pulsada == nullptr || EsTeclaDeLectura(*pulsada)) return false;
  text1_->setFocus();
  QCoreApplication::sendEvent(text1_, suceso);
  return true;
}

// The game's texts get a larger font than labels and menus.
void Form1::EnlargeTexts() {
  QFont fuente = Scaled(QApplication::font(), 1.3);
  text1_->setFont(fuente);
  text2_->setFont(fuente);
  fuente.setBold(true);
  text3_->setFont(fuente);
  const int margen = QFontMetrics{fuente}.averageCharWidth();
  text1_->document()->setDocumentMargin(margen);
  text2_->document()->setDocumentMargin(margen);
  text3_->setTextMargins(margen, margen / 2, margen, margen / 2);
}

bool Form1::KeyInText1(const QKeyEvent& suceso) {
  if (suceso.key() == Qt::Key_PageUp || suceso.key() == Qt::Key_PageDown) {
    text2_->ScrollPages(suceso.key() == Qt::Key_PageUp ? -1 : 1);
    return true;
  }
  const Tecla tecla = TeclaDe(suceso);
  const bool juega = tecla.KeyCode == TeclaEnter || tecla.KeyCode == TeclaQ;
  if (juega && suceso.isAutoRepeat()) return true;  // A held key takes one step only.
  Integer codigo = tecla.KeyCode;
  sucesos_.Text1_KeyDown(codigo, tecla.Shift);
  return codigo == 0;
}

}  // namespace tasca
