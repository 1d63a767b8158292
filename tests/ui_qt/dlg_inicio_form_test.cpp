// The window of the start-up dialog.
#include "ui/qt/dlg_inicio_form.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <utility>
#include <vector>

#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/ear.h"
#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/qt_text.h"

namespace tasca::test {
namespace {

class DlgInicioWindow : public testing::Test {
 protected:
  DlgInicioWindow() {
    SetTable(carpeta_);
    t_.Carpeta = carpeta_.Path();
    Form_Load(estado_, g_);
    ventana_.ShowState();
    ventana_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  }

  template <class T>
  T* Find(const char* nombre) {
    return Control<T>(&ventana_, nombre);
  }
  std::string LabelText(const char* nombre) { return Utf8(Find<QLabel>(nombre)->text()); }

  TempFolder carpeta_;
  Table t_;
  Rnd rnd_;
  ScriptedPort port_;
  Game g_{t_, rnd_, port_};
  int aceptadas_ = 0;
  int salidas_ = 0;
  DlgInicio estado_;
  DlgInicioForm ventana_{estado_,
                         {.Run = [](const std::function<void()>& suceso) { suceso(); },
                          .CbOK_Click = [this] { ++aceptadas_; },
                          .Left = [this] { ++salidas_; }}};
};

TEST_F(DlgInicioWindow, HasTheCaptionsOfTheDialog) {
  EXPECT_EQ(Utf8(ventana_.windowTitle()), "La tasca del tío Zarandel");
  EXPECT_EQ(LabelText("Label4"), "Su nombre:");
  EXPECT_EQ(LabelText("Label1"), "Compañero:");
  EXPECT_EQ(LabelText("Label2"), "Contrario 1:");
  EXPECT_EQ(LabelText("Label3"), "Contrario 2:");
  EXPECT_EQ(Utf8(Find<QCheckBox>("Check1_0")->text()), "Usar los nombres de los jugadores");
  EXPECT_EQ(Utf8(Find<QCheckBox>("Check1_1")->text()), "Usar las expresiones de los jugadores");
  EXPECT_EQ(Utf8(Find<QGroupBox>("Frame1")->title()), "Narración");
  EXPECT_EQ(Utf8(Find<QRadioButton>("Option1_0")->text()), "Estilo directo");
  EXPECT_EQ(Utf8(Find<QRadioButton>("Option1_1")->text()), "Estilo indirecto");
  EXPECT_EQ(Utf8(Find<QPushButton>("CbOK")->text()), "&Aceptar");
  EXPECT_EQ(Utf8(Find<QPushButton>("CbCancel")->text()), "&Salir del juego");
}

TEST_F(DlgInicioWindow, WelcomesThePlayer) {
  EXPECT_EQ(LabelText("Text1"),
            "Bienvenido a la tasca\ndel tío Zarandel\nElija a sus compañeros de mesa \n"
            "y la forma de la partida.\nQue pase ustéd un buen rato");
}

TEST_F(DlgInicioWindow, ShowsTheStateThatWasLoaded) {
  EXPECT_EQ(Utf8(Find<QLineEdit>("Text2")->text()), "Ana");
  EXPECT_EQ(LabelText("Text3"), "La boticaria: Sí, como bueyes");
  EXPECT_TRUE(Find<QCheckBox>("Check1_0")->isChecked());
  EXPECT_TRUE(Find<QCheckBox>("Check1_1")->isChecked());
  EXPECT_TRUE(Find<QRadioButton>("Option1_0")->isChecked());
  EXPECT_FALSE(Find<QRadioButton>("Option1_1")->isChecked());
  EXPECT_TRUE(Find<QPushButton>("CbOK")->isEnabled());
}

TEST_F(DlgInicioWindow, OffersTheSameCharactersForEverySeat) {
  for (const char* const nombre : {"Combo1", "Combo2", "Combo3"}) {
    const auto* const combo = Find<QComboBox>(nombre);
    std::string entradas;
    for (int i = 0; i < combo->count(); ++i) entradas += Utf8(combo->itemText(i)) + "|";
    EXPECT_EQ(entradas, "Aleatorio|Berta|el Cojo & Cía|Dora|") << nombre;
    EXPECT_EQ(combo->currentIndex(), 0) << nombre;
  }
}

TEST_F(DlgInicioWindow, DisablesAceptarWhenTheStateSaysSo) {
  estado_.CbOKEnabled = false;
  ventana_.ShowState();
  EXPECT_FALSE(Find<QPushButton>("CbOK")->isEnabled());
}

TEST_F(DlgInicioWindow, SelectsTheWholeNameWhenItGetsTheFocus) {
  auto* const nombre = Find<QLineEdit>("Text2");
  EXPECT_TRUE(nombre->hasFocus());
  EXPECT_EQ(Utf8(nombre->selectedText()), "Ana");
  nombre->deselect();
  Find<QComboBox>("Combo1")->setFocus();
  QTest::mouseClick(nombre, Qt::LeftButton);
  Find<QComboBox>("Combo1")->setFocus();
  nombre->setFocus(Qt::MouseFocusReason);
  QCoreApplication::processEvents();
  EXPECT_EQ(Utf8(nombre->selectedText()), "Ana");
  QTest::keyClicks(nombre, QStringLiteral("Luz"));
  EXPECT_EQ(Utf8(estado_.Text2), "Luz");
}

TEST_F(DlgInicioWindow, ConvertsAPastedNameToOneLine) {
  Find<QLineEdit>("Text2")->setText(QStringLiteral("Ana\r\nMaría"));
  EXPECT_EQ(Utf8(estado_.Text2), "Ana  María");
}

TEST_F(DlgInicioWindow, RefusesMoreThanAHundredCharactersWithAMessage) {
  auto* const nombre = Find<QLineEdit>("Text2");
  const std::string cien(100, 'x');
  const std::string reparo = "El nombre puede tener hasta 100 caracteres.";
  QTest::keyClicks(nombre, QString::fromStdString(cien));
  EXPECT_EQ(Utf8(estado_.Text2), cien);
  EXPECT_EQ(LabelText("Status"), "");
  QTest::keyClicks(nombre, QStringLiteral("y"));
  EXPECT_EQ(Utf8(estado_.Text2), cien);
  EXPECT_EQ(LabelText("Status"), reparo);
  Press(&ventana_, Qt::Key_Backspace);
  EXPECT_EQ(LabelText("Status"), "");
  nombre->insert(QStringLiteral("yz"));
  EXPECT_EQ(Utf8(estado_.Text2), std::string(99, 'x') + "y");
  EXPECT_EQ(LabelText("Status"), reparo);
}

TEST_F(DlgInicioWindow, CutsALongPasteToAHundredCharacters) {
  auto* const nombre = Find<QLineEdit>("Text2");
  QGuiApplication::clipboard()->setText(QString{300, QChar{u'x'}});
  nombre->selectAll();
  nombre->paste();
  EXPECT_EQ(Utf8(estado_.Text2), std::string(100, 'x'));
  EXPECT_EQ(LabelText("Status"), "El nombre puede tener hasta 100 caracteres.");
}

TEST_F(DlgInicioWindow, KeepsALongerNameFromTheSettings) {
  auto* const nombre = Find<QLineEdit>("Text2");
  const std::string largo(150, 'x');
  estado_.Text2 = std::u16string(150, u'x');
  ventana_.ShowState();
  EXPECT_EQ(Utf8(nombre->text()), largo);
  EXPECT_EQ(Utf8(estado_.Text2), largo);
  EXPECT_EQ(LabelText("Status"), "");
  nombre->end(false);
  QTest::keyClicks(nombre, QStringLiteral("y"));
  EXPECT_EQ(Utf8(estado_.Text2), largo);
  EXPECT_EQ(LabelText("Status"), "El nombre puede tener hasta 100 caracteres.");
}

TEST_F(DlgInicioWindow, KeepsAnUneditedNameByteForByte) {
  const std::u16string raro = u"A\u0081B\tC";
  estado_.Text2 = raro;
  ventana_.ShowState();
  EXPECT_EQ(estado_.Text2, raro);
  auto* const nombre = Find<QLineEdit>("Text2");
  nombre->end(false);
  QTest::keyClicks(nombre, QStringLiteral("x"));
  EXPECT_EQ(Utf8(estado_.Text2), "AB Cx");
  Press(&ventana_, Qt::Key_Backspace);
  EXPECT_EQ(estado_.Text2, raro) << "the original name";
  EXPECT_EQ(LabelText("Status"), "");
}

constexpr auto SinSitio = "El archivo no tiene sitio para ese carácter.";
constexpr auto Separador = "El signo > no puede guardarse: separa las partes del archivo.";

TEST_F(DlgInicioWindow, RefusesANameThatTheSettingsCannotHold) {
  auto* const nombre = Find<QLineEdit>("Text2");
  nombre->deselect();
  Type(nombre, ">");
  EXPECT_EQ(LabelText("Status"), Separador);
  EXPECT_EQ(Utf8(estado_.Text2), "Ana");
  Type(nombre, "ñ");
  EXPECT_EQ(LabelText("Status"), "");
  Type(nombre, "ł");
  EXPECT_EQ(LabelText("Status"), SinSitio);
  nombre->selectAll();
  QGuiApplication::clipboard()->setText(QStringLiteral("日本"));
  nombre->paste();
  EXPECT_EQ(LabelText("Status"), SinSitio);
  EXPECT_EQ(Utf8(estado_.Text2), "Anañ");
}

TEST_F(DlgInicioWindow, ClearsARefusalWhenTheLastCharacterFits) {
  auto* const nombre = Find<QLineEdit>("Text2");
  nombre->setText(QString{99, QChar{u'x'}});
  Type(nombre, ">");
  EXPECT_EQ(LabelText("Status"), Separador);
  Type(nombre, "y");
  EXPECT_EQ(LabelText("Status"), "");
  Type(nombre, "y");
  EXPECT_EQ(LabelText("Status"), "El nombre puede tener hasta 100 caracteres.");
}

TEST_F(DlgInicioWindow, KeepsTheNameWhenAnInputMethodTextIsRefused) {
  auto* const nombre = Find<QLineEdit>("Text2");
  nombre->selectAll();
  Compose(nombre, "ri", "");
  Compose(nombre, "", "日");
  EXPECT_EQ(Utf8(estado_.Text2), "Ana");
  EXPECT_EQ(Utf8(nombre->selectedText()), "Ana");
  EXPECT_EQ(LabelText("Status"), SinSitio);
  Compose(nombre, "´", "");
  Compose(nombre, "", "");
  EXPECT_EQ(Utf8(estado_.Text2), "Ana") << "nothing was committed";
  Compose(nombre, "´", "");
  Compose(nombre, "", "é");
  EXPECT_EQ(Utf8(estado_.Text2), "é");
  EXPECT_EQ(LabelText("Status"), "");
}

TEST_F(DlgInicioWindow, PassesEachChoiceToItsSeatAndShowsTheStory) {
  auto* const combo1 = Find<QComboBox>("Combo1");
  combo1->setFocus();
  Press(&ventana_, Qt::Key_Down);
  EXPECT_EQ(estado_.Combo1.ListIndex, 1);
  EXPECT_EQ(LabelText("Text4"), "Berta cuida cabras.");
  Find<QComboBox>("Combo2")->setFocus();
  Press(&ventana_, Qt::Key_End);
  EXPECT_EQ(estado_.Combo2.ListIndex, 3);
  EXPECT_EQ(LabelText("Text4"), "Dora calla.");
  Find<QComboBox>("Combo3")->setFocus();
  Press(&ventana_, Qt::Key_Down);
  Press(&ventana_, Qt::Key_Down);
  EXPECT_EQ(estado_.Combo3.ListIndex, 2);
  EXPECT_EQ(LabelText("Text4"), "El Cojo corre.");
  EXPECT_EQ(estado_.Combo1.ListIndex, 1);
}

TEST_F(DlgInicioWindow, SaysWhoWasChosenAndTheStory) {
  Ear oido;
  auto* const combo1 = Find<QComboBox>("Combo1");
  combo1->setFocus();
  Press(&ventana_, Qt::Key_Down);
  const std::string primero = Utf8(combo1->currentText());
  EXPECT_EQ(oido.TakeHeard(), std::vector<std::string>{primero + ". Berta cuida cabras."});
  Press(&ventana_, Qt::Key_Up);
  Find<QCheckBox>("Check1_0")->click();
  EXPECT_EQ(oido.TakeHeard(), std::vector<std::string>{}) << "\"Aleatorio\" has no story";
}

TEST_F(DlgInicioWindow, ShowsAStoryWithoutBlanksInFullAndKeepsItsSize) {
  auto* const historia = Find<QLabel>("Text4");
  const QSize forma = ventana_.size();
  for (const std::u16string& texto :
       {std::u16string(200, u'x'), u"Dice " + std::u16string(195, u'n'),
        std::u16string(200, u'W')}) {
    estado_.Text4 = texto;
    ventana_.ShowState();
    QCoreApplication::processEvents();
    const QRect hueco = historia->contentsRect().marginsRemoved(
        {historia->margin(), historia->margin(), historia->margin(), historia->margin()});
    const QRect ocupado = historia->fontMetrics().boundingRect(QRect{0, 0, hueco.width(), 10000},
                                                               Qt::TextWordWrap, historia->text());
    EXPECT_LE(ocupado.width(), hueco.width()) << Utf8(texto);
    EXPECT_LE(ocupado.height(), hueco.height()) << Utf8(texto);
    EXPECT_EQ(ventana_.size(), forma);
  }
}

// So large letters that the whole dialog does not fit on the test's screen of 800 pixels.
class DlgInicioWithLargeLetters : public DlgInicioWindow {
 protected:
  class LargeLetters {
   public:
    LargeLetters() { QApplication::setFont(Scaled(antes_, 3)); }
    LargeLetters(const LargeLetters&) = delete;
    LargeLetters& operator=(const LargeLetters&) = delete;
    ~LargeLetters() { QApplication::setFont(antes_); }

   private:
    QFont antes_ = QApplication::font();
  };

  LargeLetters letras_;
  DlgInicioForm grande_{estado_, {.Run = {}, .CbOK_Click = [this] { ++aceptadas_; }, .Left = {}}};
};

TEST_F(DlgInicioWithLargeLetters, StaysOnTheScreenWithItsButtonsInSight) {
  grande_.ShowState();
  grande_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&grande_));
  const QSize pantalla = grande_.screen()->availableSize();
  EXPECT_GT(grande_.findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
  EXPECT_LE(grande_.height(), pantalla.height());
  for (const char* const nombre : {"CbOK", "CbCancel"}) {
    const auto* const boton = Control<QPushButton>(&grande_, nombre);
    EXPECT_TRUE(grande_.rect().contains(boton->geometry())) << nombre;
  }
}

TEST_F(DlgInicioWithLargeLetters, ScrollsToTheControlThatGetsTheFocus) {
  grande_.ShowState();
  grande_.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&grande_));
  const auto* const pliego = grande_.findChild<QScrollArea*>()->viewport();
  auto* const ultimo = Control<QRadioButton>(&grande_, "Option1_0");
  const auto aLaVista = [&] {
    return pliego->rect().contains(QRect{ultimo->mapTo(pliego, QPoint{}), ultimo->size()}.center());
  };
  EXPECT_FALSE(aLaVista());
  for (int i = 0; i < 10 && !ultimo->hasFocus(); ++i) {
    QTest::keyClick(grande_.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_TRUE(ultimo->hasFocus());
  EXPECT_TRUE(aLaVista());
}

TEST_F(DlgInicioWindow, RewritesThePreviewWithTheOptions) {
  Find<QCheckBox>("Check1_0")->click();
  EXPECT_EQ(LabelText("Text3"), "jugador 3: Sí, como bueyes");
  Find<QCheckBox>("Check1_1")->click();
  EXPECT_EQ(LabelText("Text3"), "jugador 3: Sí tengo pares");
  Find<QRadioButton>("Option1_1")->click();
  EXPECT_EQ(LabelText("Text3"), "El jugador 3 dice: Sí tengo pares");
  EXPECT_EQ(estado_.Option1, 1);
  EXPECT_FALSE(estado_.Check1[0]);
}

TEST_F(DlgInicioWindow, TabMovesFromTheNameToSalir) {
  for (const char* const siguiente : {"Combo1", "Combo2", "Combo3", "Check1_0", "Check1_1",
                                      "Option1_0", "CbOK", "CbCancel", "Text2"}) {
    Press(&ventana_, Qt::Key_Tab);
    EXPECT_EQ(Utf8(ventana_.focusWidget()->objectName()), siguiente);
  }
  Find<QRadioButton>("Option1_0")->setFocus();
  Press(&ventana_, Qt::Key_Down);
  EXPECT_TRUE(Find<QRadioButton>("Option1_1")->isChecked());
}

TEST_F(DlgInicioWindow, NamesEveryControlForScreenReaders) {
  const std::vector<std::pair<const char*, const char*>> nombres{
      {"Text2", "Su nombre"},
      {"Combo1", "Compañero"},
      {"Combo2", "Contrario 1"},
      {"Combo3", "Contrario 2"},
      {"Check1_0", "Usar los nombres de los jugadores"},
      {"Check1_1", "Usar las expresiones de los jugadores"},
      {"Option1_0", "Estilo directo"},
      {"Option1_1", "Estilo indirecto"},
      {"CbOK", "Aceptar"},
      {"CbCancel", "Salir del juego"}};
  for (const auto& [control, nombre] : nombres) {
    EXPECT_EQ(Utf8(Find<QWidget>(control)->accessibleName()), nombre);
  }
  EXPECT_EQ(Utf8(Find<QComboBox>("Combo2")->view()->accessibleName()), "Contrario 1");
  EXPECT_EQ(Nameless(&ventana_), std::vector<std::string>{});
}

TEST_F(DlgInicioWindow, HasABuddyForEveryLabel) {
  EXPECT_EQ(Find<QLabel>("Label1")->buddy(), Find<QWidget>("Combo1"));
  EXPECT_EQ(Find<QLabel>("Label2")->buddy(), Find<QWidget>("Combo2"));
  EXPECT_EQ(Find<QLabel>("Label3")->buddy(), Find<QWidget>("Combo3"));
  EXPECT_EQ(Find<QLabel>("Label4")->buddy(), Find<QWidget>("Text2"));
}

TEST_F(DlgInicioWindow, EnterAccepts) {
  Press(&ventana_, Qt::Key_Return);
  EXPECT_EQ(aceptadas_, 1);
  EXPECT_EQ(salidas_, 0);
}

TEST_F(DlgInicioWindow, AHeldKeyNeitherAcceptsNorLeaves) {
  for (const char* const nombre : {"Text2", "Combo1", "CbOK", "CbCancel"}) {
    Find<QWidget>(nombre)->setFocus();
    Repeat(&ventana_, Qt::Key_Return);
    Repeat(&ventana_, Qt::Key_Escape);
  }
  EXPECT_EQ(aceptadas_, 0);
  EXPECT_EQ(salidas_, 0);
}

TEST_F(DlgInicioWindow, LeavesBySalirEscAndClosing) {
  Find<QPushButton>("CbCancel")->click();
  EXPECT_EQ(salidas_, 1);
  Press(&ventana_, Qt::Key_Escape);
  EXPECT_EQ(salidas_, 2);
  ventana_.close();
  EXPECT_EQ(salidas_, 3);
  EXPECT_EQ(aceptadas_, 0);
}

TEST_F(DlgInicioWindow, ShowsTextFromFilesAsPlainText) {
  for (const QLabel* const hoja : {Find<QLabel>("Text3"), Find<QLabel>("Text4")}) {
    EXPECT_EQ(hoja->textFormat(), Qt::PlainText);
  }
}

}  // namespace
}  // namespace tasca::test
