// The window of the character editor.
#include "ui/qt/dialog1_form.h"

#include <gtest/gtest.h>

#include <QTest>
#include <set>

#include "characters/character_file.h"
#include "tests/support/scripted_editor_port.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

using Textos = std::vector<std::string>;

class EditorWindow : public testing::Test {
 protected:
  EditorWindow() {
    SetTable(carpeta_);
    t_.Carpeta = carpeta_.Path();
    ventana_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana_));
  }

  // Loads the five characters.
  void Load() {
    Alt(Qt::Key_C);
    EXPECT_EQ(port_.TakeEvents(), (Textos{"box: se han cargado 5 jugadores"}));
  }
  void Alt(Qt::Key tecla) {
    Press(&ventana_, tecla, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !ButtonIsDown(&ventana_); }));
  }
  void Keys(std::initializer_list<Qt::Key> teclas) {
    for (const Qt::Key tecla : teclas) Press(&ventana_, tecla);
  }
  void Type(const char* texto) { test::Type(ventana_.focusWidget(), texto); }
  std::string Focus() const { return Utf8(ventana_.focusWidget()->objectName()); }

  template <class T>
  T* Find(const char* nombre) {
    return Control<T>(&ventana_, nombre);
  }
  Textos Shown(const char* nombre) {
    Textos filas;
    const auto* const lista = Find<QListWidget>(nombre);
    for (int i = 0; i < lista->count(); ++i) filas.push_back(Utf8(lista->item(i)->text()));
    return filas;
  }
  void ClickCharacter(int posicion) {
    auto* const lista = Find<QListWidget>("List1");
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, Qt::NoModifier,
                      lista->visualItemRect(lista->item(posicion)).center());
  }
  std::string Text(const char* nombre) { return Utf8(Find<GuardedText>(nombre)->toPlainText()); }

  TempFolder carpeta_;
  Table t_;
  ScriptedEditorPort port_;
  int cerradas_ = 0;
  Dialog1Form ventana_{t_,
                       port_,
                       {.Run = [](const std::function<void()>& suceso) { suceso(); },
                        .Closed = [this] { ++cerradas_; }}};
};

TEST_F(EditorWindow, HasTheCaptionsOfTheForm) {
  EXPECT_EQ(Utf8(ventana_.windowTitle()), "Dialog Caption");
  Textos rotulos;
  for (const char* const nombre : {"Label1", "Label2", "Label3", "Label4", "Label5", "Label6"}) {
    rotulos.push_back(Utf8(Find<QLabel>(nombre)->text()));
  }
  EXPECT_EQ(rotulos,
            (Textos{"&Nombre", "&Ordaguero", "&Historia", "&Jugadores", "&Jugada", "&Mensaje"}));
}

TEST_F(EditorWindow, HasTheCaptionsOfTheButtons) {
  Textos rotulos;
  for (const char* const nombre : {"Command1_0", "Command1_1", "Command1_2", "Command2_0",
                                   "Command2_1", "Command3_0", "Command3_1", "CbOK"}) {
    rotulos.push_back(Utf8(Find<QPushButton>(nombre)->text()));
  }
  EXPECT_EQ(rotulos, (Textos{"N&uevo jugador", "&Eliminar jugador", "Re&leer  datos jugador",
                             "M&odificar mensaje(f2)", "E&liminar mensaje", "&Guardar en disco",
                             "&Cargar de disco", "Aceptar"}));
}

TEST_F(EditorWindow, ExplainsEnterInASingleLineTextBox) {
  const std::string que = "Para guardar los datos, pulse «Nuevo jugador» o «Releer datos jugador».";
  for (const char* const nombre : {"Text1", "Text2"}) {
    Find<QWidget>(nombre)->setFocus();
    Keys({Qt::Key_Return});
    EXPECT_EQ(Utf8(Find<QLabel>("Status")->text()), que) << nombre;
    Type("3");
    EXPECT_EQ(Utf8(Find<QLabel>("Status")->text()), "") << nombre;
  }
  Find<QWidget>("List1")->setFocus();
  Keys({Qt::Key_Return});
  EXPECT_EQ(Utf8(Find<QLabel>("Status")->text()), "");
}

TEST_F(EditorWindow, AddsNoCharacterForAHeldKey) {
  Find<QPushButton>("Command1_0")->setFocus();
  Press(&ventana_, Qt::Key_Return);
  for (int i = 0; i < 200; ++i) Repeat(&ventana_, Qt::Key_Return);
  EXPECT_EQ(Find<QListWidget>("List1")->count(), 1);
}

TEST_F(EditorWindow, StartsWithOnlyTheKindsOfPhraseListed) {
  EXPECT_EQ(Shown("List1"), Textos{});
  EXPECT_EQ(Shown("List3"), Textos{});
  EXPECT_EQ(Shown("List2").size(), 14U);
  EXPECT_EQ(Shown("List2").at(8), "envido & más");
  EXPECT_EQ(Find<QListWidget>("List2")->currentRow(), -1);
}

TEST_F(EditorWindow, ShowsAmpersandsOfTheFileLiterally) {
  Load();
  EXPECT_EQ(Shown("List1").at(3), "4. el Cojo & Cía");
  EXPECT_TRUE(Find<QListWidget>("List1")->selectedItems().isEmpty());
  EXPECT_EQ(Text("Text1"), "Default indirecto");
  EXPECT_EQ(Text("Text2"), "40");
  EXPECT_EQ(Find<QListWidget>("List2")->currentRow(), 0);
  EXPECT_EQ(Find<QListWidget>("List3")->currentRow(), 1);
  EXPECT_EQ(Shown("List3").at(0), "Digo QMus" + std::string(91, ' '));
  EXPECT_EQ(Shown("List3").at(1), "");
}

TEST_F(EditorWindow, SelectsACharacterByKeys) {
  Load();
  Alt(Qt::Key_J);
  EXPECT_EQ(Focus(), "List1");
  EXPECT_TRUE(Find<QListWidget>("List1")->selectedItems().isEmpty());
  Keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down});
  EXPECT_EQ(ventana_.State().List1.ListIndex, 2);
  EXPECT_EQ(Text("Text1"), "Berta");
  EXPECT_EQ(Text("Text3"), "Berta cuida cabras.");
}

TEST_F(EditorWindow, SelectsTheLastCharacterWithEndWithoutASelection) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_End});
  EXPECT_EQ(ventana_.State().List1.ListIndex, 4);
  Keys({Qt::Key_Home});
  EXPECT_EQ(ventana_.State().List1.ListIndex, 0);
}

TEST_F(EditorWindow, LeavesThePhrasesUnselectedAfterAKindIsChosen) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  Find<QListWidget>("List2")->setFocus();
  Keys({Qt::Key_Down});
  EXPECT_EQ(Shown("List3"), (Textos{"Digo NMus", "", ""}));
  Alt(Qt::Key_M);
  EXPECT_EQ(Focus(), "List3");
  EXPECT_EQ(ventana_.State().List3.ListIndex, -1);
  Keys({Qt::Key_Down});
  EXPECT_EQ(ventana_.State().List3.ListIndex, 0);
}

TEST_F(EditorWindow, CyclesThroughControlsWithTheSameAccessKey) {
  Load();
  const auto visitados = [this](Qt::Key tecla) {
    std::set<std::string> nombres;
    for (int vez = 0; vez < 4; ++vez) {
      Alt(tecla);
      nombres.insert(Focus());
    }
    return nombres;
  };
  using Nombres = std::set<std::string>;
  EXPECT_EQ(visitados(Qt::Key_J), (Nombres{"List1", "List2"}));
  EXPECT_EQ(visitados(Qt::Key_O), (Nombres{"Text2", "Command2_0"}));
  EXPECT_EQ(visitados(Qt::Key_L), (Nombres{"Command1_2", "Command2_1"}));
  EXPECT_EQ(port_.TakeEvents(), Textos{});
}

TEST_F(EditorWindow, ChangesAPhraseWithF2AndWithEnter) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down});
  Alt(Qt::Key_M);
  port_.Types(u"mus & más");
  Keys({Qt::Key_F2});
  EXPECT_EQ(Shown("List3").at(1), "mus & más");
  port_.Types(u"dale al mus");
  Keys({Qt::Key_Return});
  EXPECT_EQ(Shown("List3").at(1), "dale al mus");
  EXPECT_EQ(Utf8(t_.Mensajes[3][1][2].Trimmed()), "dale al mus");
  EXPECT_EQ(port_.TakeEvents(),
            (Textos{"input[Mensaje Quiero mus]: Nuevo mensaje: (default )",
                    "input[Mensaje Quiero mus]: Nuevo mensaje: (default mus & más)"}));
}

TEST_F(EditorWindow, PressesTheFocusedButtonWithEnter) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  Find<QListWidget>("List3")->setCurrentRow(0);
  for (int vez = 0; vez < 3 && Focus() != "Command2_1"; ++vez) Alt(Qt::Key_L);
  EXPECT_EQ(Focus(), "Command2_1");
  Keys({Qt::Key_Return});
  EXPECT_EQ(Shown("List3").at(0), "");
}

TEST_F(EditorWindow, ClearsAPhrase) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  Find<QListWidget>("List3")->setCurrentRow(0);
  QTest::mouseClick(Find<QPushButton>("Command2_1"), Qt::LeftButton);
  EXPECT_EQ(Shown("List3").at(0), "");
  EXPECT_EQ(port_.TakeEvents(), Textos{});
}

TEST_F(EditorWindow, AddsACharacterFromTheThreeTextBoxes) {
  Load();
  Alt(Qt::Key_N);
  EXPECT_EQ(Focus(), "Text1");
  Type("el tío & yo");
  Keys({Qt::Key_Tab});
  EXPECT_EQ(Focus(), "Text2");
  Type("7x");
  Keys({Qt::Key_Tab});
  Type("Bebe.");
  Alt(Qt::Key_U);
  EXPECT_EQ(Shown("List1").at(5), "6. el tío & yo");
  EXPECT_EQ(Text("Text2"), "7");
  EXPECT_EQ(t_.Personajes[6].Ordaguero, 7);
  EXPECT_EQ(Utf8(t_.Personajes[6].Historia.Trimmed()), "Bebe.");
}

// AltGr+E types the euro sign; Alt+E is the access key of "Eliminar jugador".
TEST_F(EditorWindow, TypesTheEuroWithoutPressingAButton) {
  Load();
  Alt(Qt::Key_N);
  QTest::sendKeyEvent(QTest::Click, ventana_.focusWidget(), Qt::Key_E, QStringLiteral("€"),
                      Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(Text("Text1"), "€");
  EXPECT_EQ(port_.TakeEvents(), Textos{});
}

TEST_F(EditorWindow, StoresTheTextBoxesIntoTheSelectedCharacter) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  Alt(Qt::Key_N);
  Type("Lola");
  QTest::mouseClick(Find<QPushButton>("Command1_2"), Qt::LeftButton);
  EXPECT_EQ(Utf8(t_.Personajes[1].Nombre.Trimmed()), "Lola");
  EXPECT_EQ(Shown("List1").at(0), "1. Default indirecto");
}

TEST_F(EditorWindow, DeletesACharacter) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down, Qt::Key_Down});
  port_.Confirms(true);
  Alt(Qt::Key_E);
  EXPECT_EQ(port_.TakeEvents(), (Textos{"confirm[Eliminar jugador]: Confirme que desea eliminar el "
                                        "jugador 2. Default directo"}));
  EXPECT_EQ(Shown("List1"),
            (Textos{"1. Default indirecto", "3. Berta", "4. el Cojo & Cía", "5. Dora"}));
  EXPECT_EQ(Find<QListWidget>("List1")->currentRow(), 0);
  EXPECT_EQ(Text("Text1"), "Default indirecto");
}

TEST_F(EditorWindow, SavesTheFile) {
  Load();
  Alt(Qt::Key_G);
  EXPECT_EQ(port_.TakeEvents(), (Textos{"box: Se han guardado datos de 5 jugadores"}));
  EXPECT_EQ(carpeta_.Read("Jugadores.dat"), TextoPersonajes(t_, 5));
}

TEST_F(EditorWindow, ShowsTheReasonOfARefusedKeyUntilTheNextOne) {
  Find<GuardedText>("Text1")->setFocus();
  Type(">");
  EXPECT_EQ(Utf8(Find<QLabel>("Status")->text()),
            "El signo > no puede guardarse: separa las partes del archivo.");
  EXPECT_EQ(port_.TakeEvents(), (Textos{"beep"}));
  Type("a");
  EXPECT_EQ(port_.TakeEvents(), Textos{});
  EXPECT_EQ(Utf8(Find<QLabel>("Status")->text()), "");
}

TEST_F(EditorWindow, LimitsEveryTextToItsWidth) {
  const std::vector<std::pair<const char*, int>> anchos{
      {"Text1", 100}, {"Text2", 3}, {"Text3", 200}};
  for (const auto& [nombre, ancho] : anchos) {
    auto* const texto = Find<GuardedText>(nombre);
    texto->setFocus();
    for (int i = 0; i < ancho; ++i) Type("1");
    EXPECT_EQ(Utf8(Find<QLabel>("Status")->text()), "") << nombre;
    Type("1");
    EXPECT_EQ(Utf8(Find<QLabel>("Status")->text()), "El texto no puede ser más largo.") << nombre;
    EXPECT_EQ(texto->toPlainText().size(), ancho) << nombre;
  }
}

TEST_F(EditorWindow, BringsCharactersOfAnotherFile) {
  Load();
  carpeta_.Write("otro.dat", "Datos>\r\nLola & Co\r\n070\r\nBaila.\r\n");
  EXPECT_EQ(Utf8(Find<QPushButton>("Traer")->text()), "&Traer personajes de un archivo...");
  port_.Opens(carpeta_.Path() / "otro.dat").Chooses({0});
  Alt(Qt::Key_T);
  EXPECT_EQ(port_.TakeEvents().size(), 3U);
  EXPECT_EQ(Shown("List1").at(5), "6. Lola & Co");
  EXPECT_EQ(ventana_.State().NumPersonajes, 6);
}

TEST_F(EditorWindow, DoesNothingOnAceptar) {
  Load();
  const std::string antes = TextoPersonajes(t_, 5);
  QTest::mouseClick(Find<QPushButton>("CbOK"), Qt::LeftButton);
  EXPECT_TRUE(ventana_.isVisible());
  EXPECT_EQ(cerradas_, 0);
  EXPECT_EQ(TextoPersonajes(t_, 5), antes);
}

TEST_F(EditorWindow, KeepsTheSelectionAfterAClickBelowTheEntries) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  auto* const lista = Find<QListWidget>("List1");
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, Qt::NoModifier,
                    lista->viewport()->rect().bottomLeft() - QPoint{0, 2});
  EXPECT_EQ(ventana_.State().List1.ListIndex, 0);
  EXPECT_EQ(lista->selectedItems().size(), 1);
}

TEST_F(EditorWindow, RestoresTheTextsWhenTheEntryIsClickedAgain) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  Alt(Qt::Key_N);
  Type("otra cosa");
  port_.Confirms(false);
  ClickCharacter(0);
  EXPECT_EQ(port_.TakeEvents().size(), 1U);
  EXPECT_EQ(Text("Text1"), "Default indirecto");
}

TEST_F(EditorWindow, AsksOnceAboutChangedTextsWhenAnotherEntryIsClicked) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  Alt(Qt::Key_N);
  Type("Lola");
  Alt(Qt::Key_L);
  port_.Confirms(true);
  ClickCharacter(2);
  EXPECT_EQ(port_.TakeEvents().size(), 1U);
  EXPECT_EQ(Utf8(t_.Personajes[1].Nombre.Trimmed()), "Lola");
  EXPECT_EQ(Text("Text1"), "Berta");
}

// The texts of the selected character cannot be stored, and another one is selected.
class EditorWindowWithOddData : public EditorWindow {
 protected:
  EditorWindowWithOddData() {
    Load();
    Alt(Qt::Key_J);
    Keys({Qt::Key_Down});
    Find<GuardedText>("Text2")->setFocus();
    Type("-10");
    port_.Confirms(true);
  }

  void ExpectNothingChanged() {
    const auto* const lista = Find<QListWidget>("List1");
    EXPECT_EQ(port_.TakeEvents().size(), 2U);
    EXPECT_TRUE(QTest::qWaitFor(
        [lista] { return lista->currentRow() == 0 && lista->item(0)->isSelected(); }));
    EXPECT_EQ(ventana_.State().List1.ListIndex, 0);
    EXPECT_EQ(Text("Text1"), "Default indirecto");
    EXPECT_EQ(Text("Text2"), "-10");
  }
};

TEST_F(EditorWindowWithOddData, KeepsTheTextsAndTheEntryAfterAKey) {
  Find<QListWidget>("List1")->setFocus();
  Keys({Qt::Key_Down});
  ExpectNothingChanged();
}

TEST_F(EditorWindowWithOddData, KeepsTheTextsAndTheEntryAfterAClick) {
  ClickCharacter(2);
  ExpectNothingChanged();
}

TEST_F(EditorWindow, CreatesABlankCharacterFromOneNeverFilled) {
  Load();
  Load();  // the names are listed twice; the last entry stands for character 10
  Alt(Qt::Key_J);
  Keys({Qt::Key_End, Qt::Key_Home, Qt::Key_End});
  EXPECT_EQ(port_.TakeEvents(), Textos{});
  Alt(Qt::Key_U);
  EXPECT_EQ(ventana_.State().NumPersonajes, 6);
  EXPECT_EQ(Utf8(t_.Personajes[6].Nombre.Trimmed()), "");
  EXPECT_EQ(Utf8(t_.Personajes[6].Historia.Trimmed()), "");
}

TEST_F(EditorWindow, NamesEveryControlForScreenReaders) {
  EXPECT_EQ(Nameless(&ventana_), Textos{});
  EXPECT_EQ(Utf8(Find<QListWidget>("List1")->accessibleName()), "Jugadores");
  EXPECT_EQ(Utf8(Find<QListWidget>("List2")->accessibleName()), "Jugada");
  EXPECT_EQ(Utf8(Find<QListWidget>("List3")->accessibleName()), "Mensaje");
}

TEST_F(EditorWindow, NamesEmptyPhrasesForScreenReaders) {
  Load();
  Alt(Qt::Key_J);
  Keys({Qt::Key_Down});
  EXPECT_EQ(Find<QListWidget>("List3")->count(), 3);
  EXPECT_EQ(Nameless(&ventana_), Textos{});
}

TEST_F(EditorWindow, MovesThroughItsControlsWithTab) {
  Find<QListWidget>("List1")->setFocus();
  for (const char* const nombre :
       {"Traer", "Text1", "Text2", "Text3", "Command1_0", "Command1_1", "Command1_2", "List2",
        "List3", "Command2_0", "Command2_1", "Command3_0", "Command3_1", "CbOK", "List1"}) {
    Keys({Qt::Key_Tab});
    EXPECT_EQ(Focus(), nombre);
  }
}

TEST_F(EditorWindow, ReportsACloseRequestAndStaysOpen) {
  ventana_.close();
  EXPECT_EQ(cerradas_, 1);
  EXPECT_TRUE(ventana_.isVisible());
}

}  // namespace
}  // namespace tasca::test
