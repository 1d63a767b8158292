// The main window.
#include "ui/qt/form1.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <utility>

#include "base/keys.h"
#include "ui/qt/accessible.h"
#include "ui/qt/desktop_motion.h"
#include "ui/qt/game_menu.h"
#include "ui/qt/help_menu.h"
#include "ui/qt/keys.h"
#include "ui/qt/mesa_accessible.h"
#include "ui/qt/qt_text.h"
#include "ui/spoken/on_demand.h"
#include "ui/spoken/sentences.h"

namespace tasca {
namespace {

QLabel* NewLabel(QWidget* control, const QString& rotulo) {
  auto* const etiqueta = new QLabel{rotulo, control->parentWidget()};
  etiqueta->setTextFormat(Qt::PlainText);
  etiqueta->setBuddy(control);
  return etiqueta;
}

// An entry that is switched on and off.
QAction* AddSwitch(QMenu& menu, const char* nombre, const char* texto, bool encendido) {
  auto* const entrada = menu.addAction(QString::fromUtf8(texto));
  entrada->setObjectName(QString::fromUtf8(nombre));
  entrada->setCheckable(true);
  entrada->setChecked(encendido);
  return entrada;
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

Rect InWindow(const QWidget& control, const Rect& r) {
  const QPoint esquina = control.mapTo(control.window(), QPoint{});
  return {r.X + esquina.x(), r.Y + esquina.y(), r.Ancho, r.Alto};
}

Rect InWindow(const QWidget& control, const QRect& r) {
  return InWindow(control, Rect{static_cast<double>(r.x()), static_cast<double>(r.y()),
                                static_cast<double>(r.width()), static_cast<double>(r.height())});
}

}  // namespace

Form1::Form1(Events sucesos, const Options& opciones)
    : sucesos_{std::move(sucesos)},
      text1_{new InputLine{this, [this](const QKeyEvent& suceso) { return KeyInText1(suceso); }}},
      text2_{new Transcript{this}},
      text3_{new QLineEdit{this}},
      ayuda_{new QLabel{this}},
      mesa_{new MesaView{this, [this] { PressEnter(); }}},
      marcador_{new ScoreView{this}},
      reparto_{BuildLayout()},
      escritorioMueve_{DesktopShowsMotion()},
      conSonido_{opciones.Sonido} {
  DescribeMesaViews();
  DescribeTexts();
  ayuda_->setTextFormat(Qt::PlainText);
  ayuda_->setWordWrap(true);
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
  reparto_->setMenuBar(BuildMenu(opciones));
  reparto_->ShowPicture(opciones.Mesa);
  SetMotion(opciones.Movimiento);
  ShowHelp();
  EnlargeTexts();
  resize(QGuiApplication::primaryScreen()->availableSize() * 0.8);
  text1_->setFocus();
}

Form1Layout* Form1::BuildLayout() {
  return new Form1Layout{
      this,
      {.Mesa = mesa_,
       .Tanteo = marcador_,
       .RotuloTexto3 = NewLabel(text3_, QStringLiteral("Tanteo (su pareja / la contraria):")),
       .Texto3 = text3_,
       .Texto2 = text2_,
       .RotuloTexto1 = NewLabel(text1_, QStringLiteral("Sus cartas:")),
       .Texto1 = text1_,
       .Ayuda = ayuda_}};
}

QMenuBar* Form1::BuildMenu(const Options& opciones) {
  auto* const menus = new QMenuBar{this};
  AddGameMenu(
      *menus, sucesos_.Cronica_Click, [this](Escucha que) { Listen(que); }, sucesos_.Salir_Click);
  auto* const menu = menus->addMenu(QStringLiteral("&Opciones"));
  QAction* const sonido = AddSwitch(*menu, "Sonido", "&Sonido", opciones.Sonido);
  sonido->setShortcut(Qt::Key_F9);
  sonido->setAutoRepeat(false);
  connect(sonido, &QAction::toggled, this, [this](bool encendido) {
    conSonido_ = encendido;
    ShowHelp();
    voz_.Say(encendido ? QStringLiteral("Con sonido.") : QStringLiteral("Sin sonido."));
    sucesos_.Sonido_Click(encendido);
  });
  AddPictureEntries(*menu, opciones);
  AddLetterEntries(*menu);
  AddHelpMenu(*menus, sucesos_.Manual_Click, sucesos_.AcercaDe_Click);
  return menus;
}

void Form1::AddPictureEntries(QMenu& menu, const Options& opciones) {
  const QAction* const mesa = AddSwitch(menu, "MesaDibujada", "&Mesa dibujada", opciones.Mesa);
  connect(mesa, &QAction::toggled, this, [this](bool dibujada) {
    reparto_->ShowPicture(dibujada);
    sucesos_.Mesa_Click(dibujada);
  });
  const QAction* const movimiento =
      AddSwitch(menu, "Movimiento", "M&ovimiento", opciones.Movimiento);
  connect(movimiento, &QAction::toggled, this, [this](bool encendido) {
    SetMotion(encendido);
    sucesos_.Movimiento_Click(encendido);
  });
}

// The normal size has no key: Ctrl+0 could be taken for the key that shows all hands.
void Form1::AddLetterEntries(QMenu& menu) {
  menu.addSeparator();
  auto* const mayor = menu.addAction(QStringLiteral("Letra m&ayor"), sucesos_.LetraMayor_Click);
  mayor->setObjectName(QStringLiteral("LetraMayor"));
  mayor->setShortcut(Qt::CTRL | Qt::Key_Plus);
  auto* const menor = menu.addAction(QStringLiteral("Letra m&enor"), sucesos_.LetraMenor_Click);
  menor->setObjectName(QStringLiteral("LetraMenor"));
  menor->setShortcut(Qt::CTRL | Qt::Key_Minus);
  auto* const normal = menu.addAction(QStringLiteral("Letra &normal"), sucesos_.LetraNormal_Click);
  normal->setObjectName(QStringLiteral("LetraNormal"));
}

void Form1::SetMotion(bool encendido) {
  mesa_->SetMotion(encendido && escritorioMueve_);
  marcador_->SetMotion(encendido && escritorioMueve_);
}

void Form1::ShowHelp() {
  ayuda_->setText(QStringLiteral("Enter: continuar   ·   Q: abandonar la mano   ·   "
                                 "Re Pág y Av Pág: repasar lo dicho   ·   F9: %1 el sonido   ·   "
                                 "F1: manual")
                      .arg(conSonido_ ? QStringLiteral("quitar") : QStringLiteral("poner")));
}

std::u16string Form1::Asked(Escucha que) const {
  switch (que) {
    case Escucha::Ultimo:
      return Seguido(recital_.Ultimos());
    case Escucha::Mano:
      return ManoDicha(mesa_->Scene());
    case Escucha::Tanteo:
      return TanteoDicho(mesa_->Scene());
    case Escucha::QuienEsMano:
      return ManoDichaPorNombre(mesa_->Scene());
  }
  return {};
}

void Form1::Listen(Escucha que) {
  const QString dicho = ToDisplay(Asked(que));
  ayuda_->setText(dicho);
  voz_.Say(dicho);
}

void Form1::CopyTexts(const Form1State& estado) {
  text1_->ShowText(ToDisplay(estado.Text1));
  ShowHelp();
  if (Renovar(copiado2_, estado.Text2)) text2_->ShowText(ToDisplay(estado.Text2));
  if (!Renovar(copiado3_, estado.Text3)) return;
  text3_->setText(ToDisplay(estado.Text3));
  FitText3();
}

void Form1::ShowTexts(const Form1State& estado) {
  CopyTexts(estado);
  voz_.Say(ToDisplay(Seguido(recital_.Nuevos(estado.Text2))));
}

void Form1::ShowTable(const Table& t, Momento momento) {
  CopyTexts(t);
  const Escena escena = EscenaDe(t, momento);
  voz_.Say(ToDisplay(Seguido(recital_.Nuevos(t.Text2, escena))));
  mesa_->ShowScene(escena);
  marcador_->ShowScene(escena);
}

void Form1::FocusInput() { text1_->setFocus(); }

// Without the picture the cards are those of the input line.
Alrededores Form1::Surroundings() const {
  Alrededores a;
  a.Ventana = InWindow(*this, rect());
  a.Nunca.push_back(InWindow(*text2_, text2_->LastLine()));
  if (mesa_->isHidden()) {
    a.Nunca.push_back(InWindow(*text1_, text1_->rect()));
    return a;
  }
  const auto enLaMesa = [this](const Rect& r) { return InWindow(*mesa_, r); };
  const Lamina& hoja = mesa_->Sheet();
  a.Libre = enLaMesa(hoja.Libre);
  a.Nunca.push_back(enLaMesa(hoja.Mano));
  if (!hoja.Pizarra.Vacio()) a.Nunca.push_back(enLaMesa(hoja.Pizarra));
  for (const Pieza& pieza : hoja.Piezas) {
    const bool seLee = std::holds_alternative<Bocadillo>(pieza) ||
                       std::holds_alternative<Placa>(pieza) ||
                       std::holds_alternative<Distintivo>(pieza);
    if (seLee) a.MejorNo.push_back(enLaMesa(Lugar(pieza)));
  }
  return a;
}

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

void Form1::changeEvent(QEvent* suceso) {
  QWidget::changeEvent(suceso);
  if (suceso->type() != QEvent::FontChange) return;
  EnlargeTexts();
  FitText3();
  reparto_->invalidate();
}

// The key cap does what the key does in the input line.
void Form1::PressEnter() {
  FocusInput();
  const QKeyEvent enter{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier};
  KeyInText1(enter);
}

// Passes keys typed in the read-only boxes on to the input line.
bool Form1::eventFilter(QObject* objeto, QEvent* suceso) {
  if (objeto == text3_ && suceso->type() == QEvent::Resize) FitText3();
  if (suceso->type() != QEvent::KeyPress) return QWidget::eventFilter(objeto, suceso);
  const auto* const pulsada = dynamic_cast<QKeyEvent*>(suceso);
  if (pulsada == nullptr || EsTeclaDeLectura(*pulsada)) return false;
  text1_->setFocus();
  QCoreApplication::sendEvent(text1_, suceso);
  return true;
}

// The game's texts get a larger font than labels and menus.
void Form1::EnlargeTexts() {
  const QFont fuente = Scaled(QApplication::font(), 1.3);
  text1_->setFont(fuente);
  text2_->setFont(fuente);
  const int margen = QFontMetrics{fuente}.averageCharWidth();
  text1_->document()->setDocumentMargin(margen);
  text2_->document()->setDocumentMargin(margen);
  text3_->setTextMargins(margen, margen / 2, margen, margen / 2);
}

// Large and bold where there is room for it.
void Form1::FitText3() {
  QFont fuente = Scaled(QApplication::font(), 1.14);
  fuente.setBold(true);
  const QFontMetrics medidas{fuente};
  const QMargins margen = text3_->textMargins();
  const int falta = medidas.horizontalAdvance(text3_->text()) + margen.left() + margen.right() +
                    medidas.averageCharWidth();
  text3_->setFont(falta <= text3_->width() ? fuente : QApplication::font());
  text3_->home(false);
}

bool Form1::KeyInText1(const QKeyEvent& suceso) {
  if (suceso.key() == Qt::Key_PageUp || suceso.key() == Qt::Key_PageDown) {
    text2_->ScrollPages(suceso.key() == Qt::Key_PageUp ? -1 : 1);
    return true;
  }
  const Tecla tecla = TeclaDe(suceso);
  const bool juega = tecla.KeyCode == TeclaEnter || tecla.KeyCode == TeclaQ;
  if (juega && suceso.isAutoRepeat()) return true;  // A held key takes one step only.
  if (juega) recital_.EmpiezaPaso();
  Integer codigo = tecla.KeyCode;
  sucesos_.Text1_KeyDown(codigo, tecla.Shift);
  return codigo == 0;
}

}  // namespace tasca
