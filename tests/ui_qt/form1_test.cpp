// The main window: its texts, its keys and its focus.
#include "ui/qt/form1.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <array>
#include <utility>
#include <vector>

#include "match/phase_machine.h"
#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

constexpr int TeclaSinSignificado = 255;

// A window that records its keys. Q and Enter are handled, other keys are not.
class Form1Window : public testing::Test {
 protected:
  using Pulsada = std::pair<int, int>;

  Form1Window() {
    ventana_.resize(1000, 700);
    ventana_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  }

  QPlainTextEdit* Text1() { return Control<QPlainTextEdit>(&ventana_, "Text1"); }
  QPlainTextEdit* Text2() { return Control<QPlainTextEdit>(&ventana_, "Text2"); }
  QLineEdit* Text3() { return Control<QLineEdit>(&ventana_, "Text3"); }

  std::vector<Pulsada> teclas_;
  std::vector<bool> sonidos_;
  int cerrada_ = 0;
  Form1State estado_;
  Form1 ventana_{{.Text1_KeyDown =
                      [this](Integer& tecla, Integer shift) {
                        teclas_.emplace_back(tecla, shift);
                        if (tecla == TeclaEnter || tecla == TeclaQ) tecla = 0;
                      },
                  .Sonido_Click = [this](bool encendido) { sonidos_.push_back(encendido); },
                  .Closed = [this] { ++cerrada_; }}};
};

TEST_F(Form1Window, ShowsTheThreeTexts) {
  estado_.Text1 = u"Rey        de Oros";
  estado_.Text2 = u"La grande\r\nPulse enter";
  estado_.Text3 = u"Piedras: 1 / 2;    juegos: 0 / 0";
  ventana_.ShowTexts(estado_);
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "Rey        de Oros");
  EXPECT_EQ(Utf8(Text2()->toPlainText()), "La grande\nPulse enter");
  EXPECT_EQ(Utf8(Text3()->text()), "Piedras: 1 / 2;    juegos: 0 / 0");
  EXPECT_FALSE(Text3()->hasSelectedText());
}

TEST_F(Form1Window, StartsWithTheFocusInTheInputLine) { EXPECT_TRUE(Text1()->hasFocus()); }

TEST_F(Form1Window, MakesOnlyTheInputLineEditable) {
  EXPECT_FALSE(Text1()->isReadOnly());
  EXPECT_TRUE(Text2()->isReadOnly());
  EXPECT_TRUE(Text3()->isReadOnly());
}

TEST_F(Form1Window, NamesItsControlsForScreenReaders) {
  for (const QWidget* const control :
       {static_cast<QWidget*>(Text1()), static_cast<QWidget*>(Text2()),
        static_cast<QWidget*>(Text3())}) {
    EXPECT_FALSE(control->accessibleName().isEmpty()) << Utf8(control->objectName());
  }
  EXPECT_EQ(Nameless(&ventana_), std::vector<std::string>{});
}

TEST_F(Form1Window, PastesIntoTheInputLine) {
  QApplication::clipboard()->setText(QStringLiteral("pegado"));
  Press(&ventana_, Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "pegado");
}

TEST_F(Form1Window, PastesNothingFromAnEmptyClipboard) {
  Type(Text1(), "abc");
  QApplication::clipboard()->setMimeData(new QMimeData);
  Press(&ventana_, Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "abc");
}

TEST_F(Form1Window, HandlesBothEnterKeys) {
  Press(&ventana_, Qt::Key_Return);
  Press(&ventana_, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(teclas_, (std::vector<Pulsada>{{TeclaEnter, 0}, {TeclaEnter, 0}}));
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "");
}

TEST_F(Form1Window, HandlesQWithoutTypingIt) {
  Press(&ventana_, Qt::Key_Q);
  Press(&ventana_, Qt::Key_Q, Qt::ShiftModifier);
  ASSERT_FALSE(teclas_.empty());
  EXPECT_EQ(teclas_.front(), (Pulsada{TeclaQ, 0}));
  EXPECT_EQ(teclas_.back(), (Pulsada{TeclaQ, 1}));
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "");
}

TEST_F(Form1Window, PlaysOneStepForAHeldKey) {
  Press(&ventana_, Qt::Key_Return);
  for (int i = 0; i < 100; ++i) Repeat(&ventana_, Qt::Key_Return);
  Repeat(&ventana_, Qt::Key_Enter, Qt::KeypadModifier);
  Press(&ventana_, Qt::Key_Q);
  Repeat(&ventana_, Qt::Key_Q);
  Text2()->setFocus();
  Repeat(&ventana_, Qt::Key_Return);
  EXPECT_EQ(teclas_, (std::vector<Pulsada>{{TeclaEnter, 0}, {TeclaQ, 0}}));
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "");
}

TEST_F(Form1Window, CountsEveryPressHoweverQuick) {
  for (int i = 0; i < 5; ++i) Press(&ventana_, Qt::Key_Return);
  EXPECT_EQ(teclas_.size(), 5U);
}

TEST_F(Form1Window, RepeatsAHeldLetter) {
  Press(&ventana_, Qt::Key_A);
  Repeat(&ventana_, Qt::Key_A);
  Repeat(&ventana_, Qt::Key_A);
  Repeat(&ventana_, Qt::Key_Backspace);
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "aa");
}

TEST_F(Form1Window, TypesKeysThatTheRulesDoNotHandle) {
  QTest::keyClicks(Text1(), QStringLiteral("hola"));
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "hola");
}

TEST_F(Form1Window, LeavesTypedTextAloneUntilTheRulesRewriteIt) {
  estado_.Text1 = u"As";
  ventana_.ShowTexts(estado_);
  QTest::keyClicks(Text1(), QStringLiteral("mi "));
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "mi As");
  ventana_.ShowTexts(estado_);
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "As");
  QTest::keyClicks(Text1(), QStringLiteral("mi "));
  estado_.Text1 = u"Dos";
  ventana_.ShowTexts(estado_);
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "Dos");
}

TEST_F(Form1Window, KeepsTheCursorWhenTheTextIsUnchanged) {
  estado_.Text1 = u"As de oros";
  ventana_.ShowTexts(estado_);
  Text1()->moveCursor(QTextCursor::End);
  ventana_.ShowTexts(estado_);
  EXPECT_TRUE(Text1()->textCursor().atEnd());
}

TEST_F(Form1Window, GrowsTheInputLineForFourHandsAndShrinksItAgain) {
  estado_.Text1 = u"una mano";
  ventana_.ShowTexts(estado_);
  const int alto = Text1()->height();
  const int linea = Text1()->fontMetrics().lineSpacing();
  EXPECT_LT(alto, 3 * linea);
  estado_.Text1 = u"a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\n";
  ventana_.ShowTexts(estado_);
  EXPECT_EQ(Text1()->height(), alto + 8 * linea);
  EXPECT_EQ(Text1()->verticalScrollBar()->maximum(), 0);
  estado_.Text1 = u"una mano";
  ventana_.ShowTexts(estado_);
  EXPECT_EQ(Text1()->height(), alto);
}

TEST_F(Form1Window, GrowsTheInputLineWithItsFont) {
  const int alto = Text1()->height();
  const int linea = Text1()->fontMetrics().lineSpacing();
  QFont grande = Text1()->font();
  grande.setPointSizeF(3 * grande.pointSizeF());
  Text1()->setFont(grande);
  EXPECT_EQ(Text1()->height(), alto + Text1()->fontMetrics().lineSpacing() - linea);
}

TEST_F(Form1Window, LimitsTheInputLineToHalfTheWindow) {
  for (int i = 0; i < 100; ++i) estado_.Text1 += u"línea\r\n";
  ventana_.ShowTexts(estado_);
  EXPECT_LE(Text1()->height(), ventana_.height() / 2);
}

TEST_F(Form1Window, ScrollsTheTranscriptToItsEndWheneverItGrows) {
  for (int i = 0; i < 5; ++i) {
    for (int j = 0; j < 40; ++j) estado_.Text2 += u"Berta: paso\r\n";
    ventana_.ShowTexts(estado_);
    const QScrollBar* const barra = Text2()->verticalScrollBar();
    EXPECT_GT(barra->maximum(), 0);
    EXPECT_EQ(barra->value(), barra->maximum());
  }
}

TEST_F(Form1Window, KeepsTheEndOfTheTranscriptInViewWhenTheWindowIsResized) {
  for (int j = 0; j < 40; ++j) {
    estado_.Text2 += std::u16string(150, u'x') + u"\r\n";  // wraps in a narrow window
  }
  ventana_.ShowTexts(estado_);
  const QScrollBar* const barra = Text2()->verticalScrollBar();
  for (const QSize tamano : {QSize{1000, 300}, QSize{800, 300}, QSize{1000, 500}}) {
    ventana_.resize(tamano);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana_.size() == tamano; }));
    EXPECT_GT(barra->maximum(), 0);
    EXPECT_EQ(barra->value(), barra->maximum()) << tamano.width() << " x " << tamano.height();
  }
}

TEST_F(Form1Window, ScrollsTheTranscriptByPagesFromTheInputLine) {
  for (int j = 0; j < 200; ++j) estado_.Text2 += u"Berta: paso\r\n";
  ventana_.ShowTexts(estado_);
  const QScrollBar* const barra = Text2()->verticalScrollBar();
  Press(&ventana_, Qt::Key_PageUp);
  EXPECT_LT(barra->value(), barra->maximum());
  EXPECT_TRUE(Text1()->hasFocus());
  Press(&ventana_, Qt::Key_PageDown);
  EXPECT_EQ(barra->value(), barra->maximum());
}

TEST_F(Form1Window, MovesTypedTextToTheInputLine) {
  for (QWidget* const otro : {static_cast<QWidget*>(Text2()), static_cast<QWidget*>(Text3())}) {
    otro->setFocus();
    Press(&ventana_, Qt::Key_X);
    EXPECT_TRUE(Text1()->hasFocus());
  }
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "xx");
  Text2()->setFocus();
  Press(&ventana_, Qt::Key_Return);
  EXPECT_TRUE(Text1()->hasFocus());
  EXPECT_EQ(teclas_.back(), (Pulsada{TeclaEnter, 0}));
}

TEST_F(Form1Window, ScrollsAndCopiesTheTranscriptByKeyboard) {
  Text2()->setFocus();
  Press(&ventana_, Qt::Key_Up);
  Press(&ventana_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Text2()->hasFocus());
  EXPECT_TRUE(teclas_.empty());
}

// The modifiers that Qt reports for AltGr: Ctrl+Alt on Windows, none or a group switch on X11.
constexpr std::array<Qt::KeyboardModifiers, 3> ConAltGr{
    Qt::NoModifier, Qt::ControlModifier | Qt::AltModifier, Qt::GroupSwitchModifier};

TEST_F(Form1Window, TypesAltGrCharacters) {
  for (const Qt::KeyboardModifiers con : ConAltGr) {
    QTest::sendKeyEvent(QTest::Click, Text1(), Qt::Key_At, QStringLiteral("@"), con);
    QTest::sendKeyEvent(QTest::Click, Text1(), Qt::Key(0x20AC), QStringLiteral("€"), con);
  }
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "@€@€@€");
  for (const auto& [tecla, shift] : teclas_) EXPECT_EQ(tecla, TeclaSinSignificado);
}

// On a German keyboard AltGr+0 is the closing brace.
TEST_F(Form1Window, TreatsNoAltGrCharacterAsACommand) {
  constexpr quint32 lugarDelCero = 19;
  for (const Qt::KeyboardModifiers con : ConAltGr) {
    QKeyEvent llave{QEvent::KeyPress,   Qt::Key_BraceRight, con, lugarDelCero, 0, 0,
                    QStringLiteral("}")};
    QApplication::sendEvent(Text1(), &llave);
  }
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "}}}");
  EXPECT_EQ(teclas_.size(), 3U);
  for (const auto& [tecla, shift] : teclas_) EXPECT_NE(shift, MayusculasYControl);
}

TEST_F(Form1Window, MovesAltGrCharactersToTheInputLineToo) {
  Text2()->setFocus();
  QTest::sendKeyEvent(QTest::Click, Text2(), Qt::Key_AltGr, QString{}, Qt::GroupSwitchModifier);
  EXPECT_TRUE(Text2()->hasFocus()) << "AltGr alone types nothing";
  QTest::sendKeyEvent(QTest::Click, Text2(), Qt::Key_At, QStringLiteral("@"),
                      Qt::ControlModifier | Qt::AltModifier);
  EXPECT_TRUE(Text1()->hasFocus());
  EXPECT_EQ(Utf8(Text1()->toPlainText()), "@");
}

TEST_F(Form1Window, SelectsInTheTranscriptByKeyboard) {
  estado_.Text2 = u"Dora: envido";
  ventana_.ShowTexts(estado_);
  Text2()->setFocus();
  Press(&ventana_, Qt::Key_Home, Qt::ControlModifier);
  for (int letra = 0; letra < 4; ++letra) Press(&ventana_, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Utf8(Text2()->textCursor().selectedText()), "Dora");
  EXPECT_FALSE(Text2()->testAttribute(Qt::WA_InputMethodEnabled)) << "the transcript is read-only";
}

TEST_F(Form1Window, MovesTheFocusWithTab) {
  Press(&ventana_, Qt::Key_Tab);
  EXPECT_TRUE(Text2()->hasFocus());
  Press(&ventana_, Qt::Key_Tab);
  EXPECT_TRUE(Text3()->hasFocus());
  Press(&ventana_, Qt::Key_Tab);
  EXPECT_TRUE(Text1()->hasFocus());
}

TEST_F(Form1Window, ShowsTextFromFilesAsPlainText) {
  estado_.Text2 = u"<b>Berta</b> &amp; Dora";
  ventana_.ShowTexts(estado_);
  EXPECT_EQ(Utf8(Text2()->toPlainText()), "<b>Berta</b> &amp; Dora");
  for (const QLabel* const etiqueta : ventana_.findChildren<QLabel*>()) {
    EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText) << Utf8(etiqueta->text());
  }
}

TEST_F(Form1Window, TurnsTheSoundOffAndOnByF9FromAnyControl) {
  const auto* const sonido = Control<QAction>(&ventana_, "Sonido");
  EXPECT_TRUE(sonido->isChecked());
  EXPECT_FALSE(sonido->autoRepeat());
  Press(&ventana_, Qt::Key_F9);
  EXPECT_FALSE(sonido->isChecked());
  Text2()->setFocus();
  Press(&ventana_, Qt::Key_F9);
  EXPECT_EQ(sonidos_, (std::vector<bool>{false, true}));
  EXPECT_TRUE(teclas_.empty()) << "this key is not passed to the rules";
  EXPECT_TRUE(Text2()->hasFocus());
}

TEST_F(Form1Window, HasThreeMenus) {
  QStringList titulos;
  for (const QAction* const cual : ventana_.findChild<QMenuBar*>()->actions()) {
    titulos += cual->text();
  }
  EXPECT_EQ(Utf8(titulos.join(QChar{u'|'})), "&Juego|&Opciones|A&yuda");
}

TEST_F(Form1Window, OffersTheSoundInAMenu) {
  const QMenu* const opciones = ventana_.findChild<QMenuBar*>()->actions().at(1)->menu();
  QAction* const sonido = opciones->actions().constFirst();
  EXPECT_EQ(Utf8(sonido->text()), "&Sonido");
  EXPECT_TRUE(sonido->isCheckable());
  EXPECT_EQ(sonido->shortcut(), QKeySequence{Qt::Key_F9});
  sonido->trigger();
  EXPECT_EQ(sonidos_, std::vector<bool>{false});
}

TEST(Form1, OffersTheChronicleInAMenu) {
  int pedida = 0;
  Form1::Events sucesos;
  sucesos.Cronica_Click = [&pedida] { ++pedida; };
  const Form1 ventana{sucesos};
  const QMenu* const juego = ventana.findChild<QMenuBar*>()->actions().constFirst()->menu();
  EXPECT_EQ(Utf8(juego->title()), "&Juego");
  EXPECT_EQ(Utf8(juego->actions().constFirst()->text()), "&Crónica\tF6");
  juego->actions().constFirst()->trigger();
  EXPECT_EQ(pedida, 1);
}

// The help below the texts.
QString Help(const QWidget& ventana) {
  for (const QLabel* const etiqueta : ventana.findChildren<QLabel*>()) {
    if (etiqueta->text().startsWith(QStringLiteral("Enter: "))) return etiqueta->text();
  }
  return {};
}

TEST_F(Form1Window, DescribesTheNextEffectOfF9) {
  const auto seLee = [this](const char* texto) {
    return Help(ventana_).contains(QString::fromUtf8(texto));
  };
  EXPECT_TRUE(seLee("F9: quitar el sonido"));
  Press(&ventana_, Qt::Key_F9);
  EXPECT_TRUE(seLee("F9: poner el sonido"));
}

TEST(Form1, StartsWithTheGivenSoundSetting) {
  const Form1 ventana{{}, {.Sonido = false}};
  EXPECT_FALSE(Control<QAction>(&ventana, "Sonido")->isChecked());
  EXPECT_TRUE(Help(ventana).contains(QStringLiteral("poner el sonido")));
}

TEST_F(Form1Window, ReportsThatItWasClosed) {
  ventana_.close();
  EXPECT_EQ(cerrada_, 1);
}

TEST(Transcript, ChangesOnlyWhatDiffers) {
  Transcript texto{nullptr};
  texto.ShowText(QStringLiteral("La grande\nBerta: paso\nPulse enter"));
  int cambiadoDesde = -1;
  QObject::connect(texto.document(), &QTextDocument::contentsChange, &texto,
                   [&cambiadoDesde](int desde, int, int) { cambiadoDesde = desde; });
  texto.ShowText(QStringLiteral("La grande\nBerta: paso\nDora: envido"));
  EXPECT_EQ(Utf8(texto.toPlainText()), "La grande\nBerta: paso\nDora: envido");
  EXPECT_EQ(cambiadoDesde, 22);
  texto.ShowText(QString{});
  EXPECT_EQ(Utf8(texto.toPlainText()), "");
}

}  // namespace
}  // namespace tasca::test
