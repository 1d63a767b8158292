// What the windows make screen readers say.
#include "ui/qt/announcer.h"

#include <gtest/gtest.h>

#include <QAccessibleInterface>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <algorithm>

#include "cards/hand_text.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/ear.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/accessible.h"
#include "ui/qt/boxes.h"
#include "ui/qt/form1.h"
#include "ui/qt/manual_window.h"
#include "ui/spoken/on_demand.h"

namespace tasca::test {
namespace {

using Spoken = std::vector<std::string>;

TEST(Announcer, TellsItsWindowEachText) {
  const Ear oido;
  QWidget ventana;
  Announcer voz{ventana};
  ventana.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
  voz.Say(QStringLiteral("Ana: paso."));
  voz.Say({});
  voz.Say(QStringLiteral("Ana: paso."));
  EXPECT_EQ(oido.Heard(), (Spoken{"Ana: paso.", "Ana: paso."}));
}

TEST(Announcer, WaitsUntilItsWindowIsActive) {
  Ear oido;
  QWidget ventana;
  Announcer voz{ventana};
  voz.Say(QStringLiteral("Partida de"));
  voz.Say(QStringLiteral("Sus cartas son"));
  EXPECT_EQ(oido.Heard(), Spoken{});
  ventana.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
  EXPECT_EQ(oido.TakeHeard(), (Spoken{"Partida de", "Sus cartas son"}));
  ventana.hide();
  voz.Say(QStringLiteral("Ana: paso."));
  EXPECT_EQ(oido.TakeHeard(), Spoken{"Ana: paso."}) << "only the first time";
}

// Rey and sota of copas, the six of copas, the as of oros; Dora is mano.
Table MesaOida() {
  Table t = MesaDePrueba();
  t.Manos[AsientoHumano] = {NumeroDeCarta('R', 2), NumeroDeCarta('S', 2), NumeroDeCarta('6', 2),
                            NumeroDeCarta('A', 1)};
  t.OrdenAsiento = {4, 1, 2, 3};
  t.UsarNombres = true;
  MostrarManos(t, AsientoHumano);
  t.Text2 = u"Sus cartas son \r\n" + TextoMano(t) + u"\r\nPulse enter para empezar";
  return t;
}

class HeardForm1 : public testing::Test {
 protected:
  HeardForm1() {
    ventana_.ShowTable(mesa_, Momento::Reposo);
    ventana_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  }

  Ear oido_;
  Table mesa_ = MesaOida();
  Form1 ventana_{{.Text1_KeyDown = [](Integer& tecla, Integer) { tecla = 0; },
                  .Sonido_Click = [](bool) {},
                  .Closed = [] {}}};
};

TEST_F(HeardForm1, SaysTheDealAndThenOnlyNewLines) {
  EXPECT_EQ(oido_.TakeHeard(),
            Spoken{"Sus cartas son. Rey de copas, Sota de copas, Seis de copas, As de oros. "
                   "Pulse enter para empezar."});
  ventana_.ShowTable(mesa_, Momento::Reposo);
  EXPECT_EQ(oido_.TakeHeard(), Spoken{}) << "nothing new";
  mesa_.Text2 = u"La grande\r\nDora: paso\r\n";
  ventana_.ShowTable(mesa_, Momento::Pregunta);
  mesa_.Text2 += u"Ana: envido\r\n";
  ventana_.ShowTable(mesa_, Momento::Reposo);
  EXPECT_EQ(oido_.TakeHeard(), (Spoken{"La grande. Dora: paso.", "Ana: envido."}));
}

TEST_F(HeardForm1, AnswersTheListeningKeys) {
  oido_.TakeHeard();
  for (const Qt::Key tecla : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5}) {
    Press(&ventana_, tecla);
  }
  const Escena escena = EscenaDe(mesa_, Momento::Reposo);
  EXPECT_EQ(
      oido_.TakeHeard(),
      (Spoken{"Sus cartas son. Rey de copas, Sota de copas, Seis de copas, As de oros. "
              "Pulse enter para empezar.",
              "Rey de copas, sota de copas, seis de copas, as de oros.", Utf8(TanteoDicho(escena)),
              "Es mano Dora, de la pareja contraria, a su izquierda."}));
}

TEST_F(HeardForm1, ShowsWhatWasAskedUntilTheNextStep) {
  const auto seLee = [this](const char* texto) {
    const auto etiquetas = ventana_.findChildren<QLabel*>();
    return std::any_of(etiquetas.begin(), etiquetas.end(), [texto](const QLabel* etiqueta) {
      return etiqueta->text().startsWith(QString::fromUtf8(texto));
    });
  };
  EXPECT_TRUE(seLee("Enter: continuar"));
  Press(&ventana_, Qt::Key_F3);
  EXPECT_TRUE(seLee("Rey de copas, sota de copas"));
  EXPECT_FALSE(seLee("Enter: continuar"));
  ventana_.ShowTable(mesa_, Momento::Reposo);
  EXPECT_TRUE(seLee("Enter: continuar"));
}

TEST_F(HeardForm1, KeepsTheFocusOnAListeningKey) {
  auto* const texto2 = Control<QWidget>(&ventana_, "Text2");
  texto2->setFocus();
  Press(&ventana_, Qt::Key_F3);
  EXPECT_TRUE(texto2->hasFocus());
}

TEST_F(HeardForm1, AnswersInTheBoxesToo) {
  oido_.TakeHeard();
  const BoxAnswerer jugador{[&](QWidget* caja) {
    Press(caja, Qt::Key_F3);
    Press(caja, Qt::Key_S);
  }};
  EXPECT_EQ(AskYesNo(&ventana_, {.Titulo = u"¿mus?", .Texto = u""}), true);
  EXPECT_EQ(oido_.TakeHeard(), Spoken{"Rey de copas, sota de copas, seis de copas, as de oros."});
}

TEST_F(HeardForm1, LeavesTheKeysOfOtherWindowsAlone) {
  oido_.TakeHeard();
  ManualWindow manual;
  manual.show();
  Press(&manual, Qt::Key_F3);
  EXPECT_EQ(oido_.TakeHeard(), Spoken{});
}

QAccessibleTextInterface* TextOf(QWidget* control) {
  return QAccessible::queryAccessibleInterface(control)->textInterface();
}

TEST_F(HeardForm1, HasTextsWithoutPadding) {
  auto* const texto1 = Control<QPlainTextEdit>(&ventana_, "Text1");
  QAccessibleTextInterface* const leido = TextOf(texto1);
  const std::string mano = "Rey de copas, Sota de copas, Seis de copas, As de oros";
  EXPECT_EQ(Utf8(leido->text(0, leido->characterCount())), mano);
  EXPECT_NE(Utf8(texto1->toPlainText()), mano) << "the window shows it with its padding";
  leido->setCursorPosition(5);
  EXPECT_EQ(leido->cursorPosition(), 5);
  EXPECT_EQ(texto1->textCursor().position(), texto1->toPlainText().indexOf(QChar{u'e'}, 4));
}

TEST_F(HeardForm1, CopiesTheExactText) {
  auto* const texto1 = Control<QPlainTextEdit>(&ventana_, "Text1");
  QAccessibleTextInterface* const leido = TextOf(texto1);
  leido->setSelection(0, 0, leido->characterCount());
  EXPECT_EQ(Utf8(texto1->textCursor().selectedText()),
            Utf8(texto1->toPlainText().left(texto1->textCursor().selectionEnd())));
  EXPECT_NE(Utf8(texto1->textCursor().selectedText()).find("Rey        de copas"),
            std::string::npos);
  int desde = -1;
  int hasta = -1;
  leido->selection(0, &desde, &hasta);
  EXPECT_EQ(desde, 0);
  EXPECT_EQ(hasta, leido->characterCount());
}

TEST_F(HeardForm1, HasTheRoleOfAWindow) {
  const auto* const leida = QAccessible::queryAccessibleInterface(&ventana_);
  EXPECT_EQ(leida->role(), QAccessible::Window);
  EXPECT_EQ(Utf8(leida->text(QAccessible::Name)), "La tasca del tío Zarandel");
}

TEST_F(HeardForm1, HasEveryCharacterWhereItIsShown) {
  auto* const texto1 = Control<QPlainTextEdit>(&ventana_, "Text1");
  QAccessibleTextInterface* const leido = TextOf(texto1);
  const QRect letra = leido->characterRect(4);  // the "d" of "de"
  EXPECT_TRUE(texto1->rect().translated(texto1->mapToGlobal(QPoint{})).contains(letra.center()));
  EXPECT_EQ(leido->offsetAtPoint({letra.left() + 1, letra.center().y()}), 4);
}

}  // namespace
}  // namespace tasca::test
