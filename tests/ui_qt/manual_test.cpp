// F1 in the windows and boxes of the programs.
#include "ui/qt/manual.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QTest>
#include <algorithm>
#include <set>

#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"
#include "ui/manual/chapters.h"
#include "ui/manual/pieces.h"
#include "ui/qt/chronicle_window.h"
#include "ui/qt/editor_program.h"
#include "ui/qt/form1.h"
#include "ui/qt/help_menu.h"
#include "ui/qt/manual_text.h"
#include "ui/qt/program.h"

namespace tasca::test {
namespace {

// The anchor at which the manual is open; "" if it is not.
std::string OpenAt() {
  const QWidget* const ventana = VisibleWindow("Manual");
  if (ventana == nullptr) return "";
  const auto* const texto = dynamic_cast<ManualText*>(Control<QWidget>(ventana, "ManualText"));
  return Utf8(texto->CurrentAnchor());
}

// Presses F1 in a window, notes where the manual opens, and closes it.
std::string AnchorOnF1(QWidget* ventana) {
  Press(ventana, Qt::Key_F1);
  std::string ancla = OpenAt();
  if (QWidget* const manual = VisibleWindow("Manual")) manual->close();
  return ancla;
}

TEST(Manual, IsNotBuiltBeforeItIsAskedFor) {
  Manual manual{[] { return Asunto::Mus; }};
  QWidget ventana;
  ventana.show();
  Press(&ventana, Qt::Key_F2);
  EXPECT_EQ(manual.Window(), nullptr);
  Press(&ventana, Qt::Key_F1);
  EXPECT_NE(manual.Window(), nullptr);
  EXPECT_EQ(OpenAt(), "el-mus");
}

TEST(Manual, IgnoresAHeldKeyAndModifiers) {
  Manual manual{[] { return Asunto::Mus; }};
  QWidget ventana;
  ventana.show();
  Repeat(&ventana, Qt::Key_F1);
  Press(&ventana, Qt::Key_F1, Qt::ControlModifier);
  EXPECT_EQ(manual.Window(), nullptr);
}

TEST(Manual, StaysWhereItIsReadWhenF1IsPressedInIt) {
  Asunto asunto = Asunto::Mus;
  Manual manual{[&asunto] { return asunto; }};
  manual.Open();
  asunto = Asunto::Punto;
  Press(VisibleWindow("Manual"), Qt::Key_F1);
  EXPECT_EQ(OpenAt(), "el-mus");
  manual.Open();
  EXPECT_EQ(OpenAt(), "el-punto");
}

TEST(Manual, OpensAtTheCharactersInTheEditor) {
  const TempFolder carpeta;
  EditorProgram programa{carpeta.Path()};
  std::string ancla;
  EXPECT_EQ(PlayUntilEnd([&] {
              if (VisibleWindow("Dialog1") == nullptr) return programa.Open();
              ancla = AnchorOnF1(VisibleWindow("Dialog1"));
              QCoreApplication::exit(0);
            }),
            0);
  EXPECT_EQ(ancla, "hacer-un-personaje");
}

// Plays a match, pressing F1 in every window and box before answering it.
class Asker {
 public:
  explicit Asker(Program& programa) : programa_{programa} {}

  void TakeTurn() {
    if (!std::exchange(abierto_, true)) return programa_.OpenDlgInicio();
    if (QWidget* const caja = QApplication::activeModalWidget()) {
      if (TakesKeys(caja)) Answer(caja);
      return;
    }
    if (QWidget* const inicio = VisibleWindow("DlgInicio")) {
      EXPECT_EQ(AnchorOnF1(inicio), "al-empezar");
      return Press(inicio, Qt::Key_Return);
    }
    QWidget* const form1 = VisibleWindow("Form1");
    if (form1 == nullptr) return;
    anclas_.insert(AnchorOnF1(form1));
    Press(form1, Qt::Key_Return);
  }

  using Caja = std::pair<std::string, std::string>;

  // Whether the matches have had every phase and every box that the test asks for.
  bool HasSeenAll() const {
    return std::includes(anclas_.begin(), anclas_.end(), Anclas.begin(), Anclas.end()) &&
           std::includes(cajas_.begin(), cajas_.end(), Cajas.begin(), Cajas.end());
  }

  inline static const Caja Descartes{"Sustituir cartas", "los-descartes"};
  inline static const std::set<std::string> Anclas{"el-mus",    "la-grande", "la-pequeña",
                                                   "los-pares", "el-juego",  "el-recuento"};
  inline static const std::set<Caja> Cajas{Caja{"¿mus?", "el-mus"},
                                           Descartes,
                                           Caja{"¿Tiene pares?", "los-pares"},
                                           Caja{"¿Tiene Juego?", "el-juego"},
                                           Caja{"Dialog", "la-grande"},
                                           Caja{"Dialog", "la-pequeña"},
                                           Caja{"Mus", "juegos-vacas-y-partida"}};

  // Where the manual opened at the table, and in a box by its name or title.
  std::set<std::string> anclas_;
  std::set<Caja> cajas_;

 private:
  void Answer(QWidget* caja) {
    const std::string nombre = Utf8(caja->objectName());
    const std::string titulo = Utf8(caja->windowTitle());
    cajas_.insert({nombre == "Dialog" ? nombre : titulo, AnchorOnF1(caja)});
    const bool cortaElMus = titulo == "¿mus?" && cajas_.contains(Descartes);
    const bool seVa = titulo == "Mus" && HasSeenAll();
    Press(caja, cortaElMus || seVa ? Qt::Key_N : Qt::Key_Return);
  }

  Program& programa_;
  bool abierto_ = false;
};

// Plays matches until everything has come up: the cards are dealt at random.
TEST(Manual, OpensAtWhatIsGoingOnInTheGame) {
  TempFolder carpeta;
  SetTable(carpeta, "5\r\n1\r\n1\r\n");
  Program programa{carpeta.Path()};
  Asker jugador{programa};
  EXPECT_EQ(PlayUntilEnd([&jugador] { jugador.TakeTurn(); }), 0);
  for (const std::string& ancla : Asker::Anclas) {
    EXPECT_TRUE(jugador.anclas_.contains(ancla)) << ancla;
  }
  for (const Asker::Caja& caja : Asker::Cajas) {
    EXPECT_TRUE(jugador.cajas_.contains(caja)) << caja.first << ", " << caja.second;
  }
}

TEST(HelpMenu, TellsTheVersions) {
  const std::string datos = Utf8(QString::fromStdU16String(AboutText()));
  for (const std::string& parte :
       {std::string{"La tasca del tío Zarandel, versión "}, std::string{"Qt "} + qVersion(),
        std::string{"SDL 2."}, std::string{"SDL_mixer 2."}}) {
    EXPECT_NE(datos.find(parte), std::string::npos) << datos;
  }
}

// The name of a key sequence in the manual.
std::string KeysInSpanish(const QKeySequence& teclas) {
  return Utf8(teclas.toString(QKeySequence::PortableText)
                  .replace(QStringLiteral("Shift"), QStringLiteral("Mayús"))
                  .replace(QStringLiteral("Left"), QStringLiteral("Izquierda"))
                  .replace(QStringLiteral("Right"), QStringLiteral("Derecha")));
}

// The first column of the tables of keys.
std::set<std::string> KeysTold() {
  std::set<std::string> teclas;
  for (const std::string_view capitulo : ManualChapters()) {
    bool esDeTeclas = false;
    for (const std::string_view linea : LinesOf(capitulo)) {
      if (!linea.starts_with("|")) esDeTeclas = false;
      if (esDeTeclas) {
        for (const auto tecla : SplitAt(SplitAt(linea, "|").at(1), " y ")) teclas.emplace(tecla);
      }
      if (linea.starts_with("| Tecla |")) esDeTeclas = true;
    }
  }
  return teclas;
}

TEST(ManualKeys, AreAllThatTheWindowsHave) {
  const std::set<std::string> contadas = KeysTold();
  const Form1 form1{{}};
  std::set<std::string> teclas;
  for (const QAction* const accion : form1.findChildren<QAction*>()) {
    // A key that works in boxes too is only told behind the entry's text.
    const QString dicha = accion->text().section(QChar{u'\t'}, 1);
    if (!dicha.isEmpty()) teclas.insert(KeysInSpanish(QKeySequence{dicha}));
    if (!accion->shortcut().isEmpty()) teclas.insert(KeysInSpanish(accion->shortcut()));
  }
  for (const QAction* const menu : form1.findChild<QMenuBar*>()->actions()) {
    teclas.insert(KeysInSpanish(QKeySequence::mnemonic(menu->text())));
  }
  const ManualWindow manual;
  const ChronicleWindow cronica{[] { return std::u16string{}; }};
  for (const QWidget* const ventana :
       {static_cast<const QWidget*>(&manual), static_cast<const QWidget*>(&cronica)}) {
    for (const QShortcut* const atajo : ventana->findChildren<QShortcut*>()) {
      teclas.insert(KeysInSpanish(atajo->key()));
    }
  }
  EXPECT_GE(teclas.size(), 14U);
  for (const std::string& tecla : teclas) EXPECT_TRUE(contadas.contains(tecla)) << tecla;
}

TEST(HelpMenu, IsInTheMainWindow) {
  std::string pedido;
  Form1::Events sucesos;
  sucesos.Manual_Click = [&] { pedido += "manual "; };
  sucesos.AcercaDe_Click = [&] { pedido += "datos "; };
  const Form1 form1{sucesos};
  Control<QAction>(&form1, "Manual")->trigger();
  Control<QAction>(&form1, "AcercaDe")->trigger();
  EXPECT_EQ(pedido, "manual datos ");
}

}  // namespace
}  // namespace tasca::test
