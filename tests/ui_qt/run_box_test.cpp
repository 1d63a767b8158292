// The keys that a box accepts and ignores.
#include "ui/qt/run_box.h"

#include <gtest/gtest.h>

#include <QEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <array>
#include <functional>
#include <utility>

#include "table/dialog.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/boxes.h"
#include "ui/qt/phrase_box.h"
#include "ui/qt/qt_port.h"

namespace tasca::test {
namespace {

// Presses Enter on every button of a box when it is shown, before it has the focus, and again when
// it is hidden. In between it answers the box with Enter.
class HastyPlayer : public QObject {
 public:
  HastyPlayer() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* objeto, QEvent* suceso) override {
    auto* const caja = qobject_cast<QDialog*>(objeto);
    const bool cambia = suceso->type() == QEvent::Show || suceso->type() == QEvent::Hide;
    if (caja == nullptr || !cambia) return false;
    PressEverywhere(caja);
    if (suceso->type() == QEvent::Show && !caja->isVisible()) ShowAgain(caja);
    return false;
  }

  // The number of keys that came too early or too late.
  int Wasted() const { return perdidas_; }

 private:
  void PressEverywhere(QDialog* caja) {
    for (QPushButton* const boton : caja->findChildren<QPushButton*>()) {
      QTest::keyClick(boton, Qt::Key_Return);
      ++perdidas_;
    }
  }

  // exec() of a box that is hidden before it starts would block for ever.
  static void ShowAgain(QDialog* caja) {
    ADD_FAILURE() << "answered by a key that came too early";
    QMetaObject::invokeMethod(caja, "show", Qt::QueuedConnection);
  }

  int perdidas_ = 0;
  BoxAnswerer paciente_{[](QWidget* caja) { Press(caja, Qt::Key_Return); }};
};

class HurriedBox : public testing::Test {
 protected:
  void TearDown() override { EXPECT_EQ(jugador_.Wasted(), teclas_) << "keys before and after"; }

  HastyPlayer jugador_;
  int teclas_ = 4;
};

TEST_F(HurriedBox, TakesYesByDefault) {
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), true);
}

TEST_F(HurriedBox, TakesNoIfThatIsTheDefault) {
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿Tiene pares?", .Texto = u"", .PorDefecto = false}),
            false);
}

TEST_F(HurriedBox, ConfirmsByDefault) { EXPECT_TRUE(AskOkCancel(nullptr, u"¿Fuera?", u"")); }

TEST_F(HurriedBox, TakesTheDefaultText) {
  EXPECT_EQ(Utf8(AskText(nullptr, u"¿Cuántas?", u"Envite", u"2")), "2");
}

TEST_F(HurriedBox, TakesTheDefaultPhrase) {
  EXPECT_EQ(Utf8(AskPhrase(nullptr, u"Nuevo mensaje:", u"Mensaje", u"van", 10)), "van");
}

TEST_F(HurriedBox, BidsPaso) {
  teclas_ = 8;
  QtPort port;
  Dialog dialogo;
  Form_Activate(dialogo);
  port.ShowDialog(MesaDePrueba(), dialogo);
  EXPECT_EQ(dialogo.Resultado, 0);
}

TEST_F(HurriedBox, StaysOpenUntilAKeyAfterItHasTheFocus) {
  teclas_ = 2;
  ShowMessage(nullptr, u"La pareja 1 gana");
}

// The focus is on another control at first: the first Enter must have no effect, the second one
// must answer the box.
TEST(RunBox, AcceptsTheKeyAfterOneThatCameTooEarly) {
  QMessageBox caja;
  auto* const inicial = caja.addButton(QStringLiteral("Uno"), QMessageBox::AcceptRole);
  caja.addButton(QStringLiteral("Dos"), QMessageBox::RejectRole);
  inicial->setEnabled(false);
  int teclas = 0;
  const BoxAnswerer jugador{[&](QWidget* ventana) {
    inicial->setEnabled(true);
    ++teclas;
    Press(ventana, Qt::Key_Return);
  }};
  RunBox(caja, inicial);
  EXPECT_EQ(caja.clickedButton(), inicial);
  EXPECT_EQ(teclas, 2);
}

// A step of the game follows the answer. What it says must come before the activation of the main
// window, which the event loop handles.
TEST(RunBox, HidesEveryBoxAfterItsEventLoop) {
  QtPort port;
  Dialog dialogo;
  Form_Activate(dialogo);
  const std::array<std::function<void()>, 5> cajas{
      [] { ShowMessage(nullptr, u"hola"); },
      [] { AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}); },
      [] { AskOkCancel(nullptr, u"¿Fuera?", u""); },
      [] { AskText(nullptr, u"¿Cuántas?", u"Envite", u"2"); },
      [&] { port.ShowDialog(MesaDePrueba(), dialogo); }};
  for (std::size_t i = 0; i < cajas.size(); ++i) {
    bool trasContestar = false;
    const BoxAnswerer jugador{[&trasContestar](QWidget* caja) {
      Press(caja, Qt::Key_Return);
      trasContestar = caja->isVisible();
    }};
    cajas.at(i)();
    EXPECT_TRUE(trasContestar) << i;
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << i;
  }
}

TEST(RunBox, LetsThePlayerMoveTheFocus) {
  std::size_t pulsadas = 0;
  const std::array teclas{Qt::Key_Tab, Qt::Key_Return};
  const BoxAnswerer jugador{[&](QWidget* caja) { Press(caja, teclas.at(pulsadas++)); }};
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), false);
}

// Sends auto-repeat events of several keys to a box, then presses `alFin`. Done is true if the box
// stayed open meanwhile.
class KeyHolder {
 public:
  explicit KeyHolder(Qt::Key alFin) : alFin_{alFin} {}

  bool Done() const { return pulsadas_ == teclas_.size(); }

 private:
  void Look(QWidget* caja) {
    if (Done()) return Press(caja, alFin_);
    const auto [tecla, con] = teclas_.at(pulsadas_++);
    Repeat(caja, tecla, con);
  }

  static constexpr std::array<std::pair<Qt::Key, Qt::KeyboardModifier>, 8> teclas_{
      {{Qt::Key_Return, Qt::NoModifier},
       {Qt::Key_Enter, Qt::KeypadModifier},
       {Qt::Key_Escape, Qt::NoModifier},
       {Qt::Key_S, Qt::NoModifier},
       {Qt::Key_N, Qt::NoModifier},
       {Qt::Key_S, Qt::AltModifier},
       {Qt::Key_N, Qt::ShiftModifier},
       {Qt::Key_Return, Qt::ShiftModifier}}};

  Qt::Key alFin_;
  std::size_t pulsadas_ = 0;
  BoxAnswerer jugador_{[this](QWidget* caja) { Look(caja); }};
};

TEST(HeldKey, AnswersNoQuestion) {
  const KeyHolder jugador{Qt::Key_N};
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), false);
  EXPECT_TRUE(jugador.Done());
}

TEST(HeldKey, ClosesNoMessageBox) {
  const KeyHolder jugador{Qt::Key_Return};
  ShowMessage(nullptr, u"La pareja 1 gana");
  EXPECT_TRUE(jugador.Done());
}

TEST(HeldKey, BidsNothing) {
  const KeyHolder jugador{Qt::Key_Return};
  QtPort port;
  Dialog dialogo;
  Form_Activate(dialogo);
  port.ShowDialog(MesaDePrueba(), dialogo);
  EXPECT_TRUE(jugador.Done());
}

TEST(HeldKey, BidsNothingByALetterEither) {
  std::size_t pulsadas = 0;
  constexpr std::array letras{Qt::Key_P, Qt::Key_E, Qt::Key_M, Qt::Key_O};
  const BoxAnswerer jugador{[&](QWidget* caja) {
    if (pulsadas == letras.size()) return Press(caja, Qt::Key_E);
    Repeat(caja, letras.at(pulsadas++));
  }};
  QtPort port;
  Dialog dialogo;
  dialogo.Modo = ModoDialogo::Apertura;
  Form_Activate(dialogo);
  port.ShowDialog(MesaDePrueba(), dialogo);
  EXPECT_EQ(pulsadas, letras.size());
  EXPECT_EQ(dialogo.Resultado, 1);
}

TEST(HeldKey, TypesIntoAnInputBoxButDoesNotCloseIt) {
  const KeyHolder jugador{Qt::Key_Return};
  EXPECT_EQ(Utf8(AskText(nullptr, u"¿Cuántas?", u"Envite", u"2")), "snn");
  EXPECT_TRUE(jugador.Done());
}

TEST(HeldKey, ClosesNoPhraseBox) {
  const KeyHolder jugador{Qt::Key_Return};
  EXPECT_EQ(Utf8(AskPhrase(nullptr, u"Nuevo mensaje:", u"Mensaje", u"van", 10)), "snn");
  EXPECT_TRUE(jugador.Done());
}

TEST(HeldKey, MovesTheFocus) {
  bool movido = false;
  const BoxAnswerer jugador{[&movido](QWidget* caja) {
    if (std::exchange(movido, true)) return Press(caja, Qt::Key_Return);
    Repeat(caja, Qt::Key_Tab);
  }};
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), false);
}

// An accepted ShortcutOverride keeps the access key from the button.
TEST(HeldKey, PressesNoButtonByItsAccessKey) {
  bool aceptado = false;
  const BoxAnswerer jugador{[&aceptado](QWidget* caja) {
    QKeyEvent atajo{QEvent::ShortcutOverride, Qt::Key_N, Qt::AltModifier, QString{}, true};
    atajo.ignore();
    QApplication::sendEvent(caja->focusWidget(), &atajo);
    aceptado = atajo.isAccepted();
    Press(caja, Qt::Key_Return);
  }};
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), true);
  EXPECT_TRUE(aceptado);
}

}  // namespace
}  // namespace tasca::test
