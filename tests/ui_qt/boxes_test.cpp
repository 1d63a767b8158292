// Message, Yes/No and input boxes.
#include "ui/qt/boxes.h"

#include <gtest/gtest.h>

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "tests/support/tables.h"
#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

// A box as "title|text|icon|buttons".
std::string Describe(const QWidget* ventana) {
  std::string linea = Utf8(ventana->windowTitle()) + "|";
  if (const auto* const caja = qobject_cast<const QMessageBox*>(ventana)) {
    EXPECT_EQ(caja->textFormat(), Qt::PlainText);
    linea += Utf8(caja->text()) + "|";
    linea += caja->icon() == QMessageBox::Question ? "?|" : "|";
  } else {
    const auto* const etiqueta = ventana->findChild<QLabel*>();
    EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText);
    linea += Utf8(etiqueta->text()) + "||";
  }
  for (const QPushButton* const boton : ventana->findChildren<QPushButton*>()) {
    linea += Utf8(boton->text()) + " ";
  }
  return linea;
}

// Stores the description of a box in `vista` and answers it with a key.
BoxAnswerer LookAndPress(std::string& vista, Qt::Key tecla) {
  return BoxAnswerer{[&vista, tecla](QWidget* caja) {
    vista = Describe(caja);
    Press(caja, tecla);
  }};
}

// Asks a Yes/No question and presses these keys, one at a time. Fails the test if the box closes
// before the last one.
std::optional<bool> AskAndPress(const YesNoQuestion& pregunta, const std::vector<Qt::Key>& teclas) {
  std::size_t pulsadas = 0;
  const BoxAnswerer jugador{[&](QWidget* caja) {
    if (pulsadas < teclas.size()) Press(caja, teclas.at(pulsadas++));
  }};
  const std::optional<bool> respuesta = AskYesNo(nullptr, pregunta);
  EXPECT_EQ(pulsadas, teclas.size()) << "answered before the last key";
  return respuesta;
}

TEST(ShowMessage, ShowsPlainTextUnderTheApplicationsTitle) {
  std::string vista;
  const BoxAnswerer jugador = LookAndPress(vista, Qt::Key_Return);
  ShowMessage(nullptr, u"La pareja 1 <b>gana</b>\r\n2 & 1");
  EXPECT_EQ(vista, "La tasca del tío Zarandel|La pareja 1 <b>gana</b>\n2 & 1||Aceptar ");
}

TEST(ShowMessage, IsAnsweredByEscToo) {
  std::string vista;
  const BoxAnswerer jugador = LookAndPress(vista, Qt::Key_Escape);
  ShowMessage(nullptr, u"hola");
  EXPECT_FALSE(vista.empty());
}

TEST(AskYesNo, HasTheButtonsSiAndNo) {
  std::string vista;
  const BoxAnswerer jugador = LookAndPress(vista, Qt::Key_Return);
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), true);
  EXPECT_EQ(vista, "¿mus?||?|&Sí &No ");
}

TEST(AskYesNo, NamesAllControlsWhenTheTitleIsTheQuestion) {
  std::vector<std::string> sinNombre{"nobody has looked"};
  const BoxAnswerer jugador{[&sinNombre](QWidget* caja) {
    sinNombre = Nameless(caja);
    Press(caja, Qt::Key_Return);
  }};
  AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""});
  EXPECT_EQ(sinNombre, std::vector<std::string>{});
}

TEST(AskYesNo, ShowsNoIconIfNotRequested) {
  std::string vista;
  const BoxAnswerer jugador = LookAndPress(vista, Qt::Key_Return);
  AskYesNo(nullptr, {.Titulo = u"Mus", .Texto = u"¿Desea jugar otra partida?", .ConIcono = false});
  EXPECT_EQ(vista, "Mus|¿Desea jugar otra partida?||&Sí &No ");
}

TEST(AskYesNo, AcceptsTheLettersSAndN) {
  EXPECT_EQ(AskAndPress({.Titulo = u"¿mus?", .Texto = u"", .PorDefecto = false}, {Qt::Key_S}),
            true);
  EXPECT_EQ(AskAndPress({.Titulo = u"¿mus?", .Texto = u"", .PorDefecto = true}, {Qt::Key_N}),
            false);
}

TEST(AskYesNo, AcceptsEnterForTheDefaultAnswer) {
  EXPECT_EQ(AskAndPress({.Titulo = u"¿mus?", .Texto = u"", .PorDefecto = true}, {Qt::Key_Return}),
            true);
  EXPECT_EQ(AskAndPress({.Titulo = u"¿mus?", .Texto = u"", .PorDefecto = false}, {Qt::Key_Return}),
            false);
}

TEST(AskYesNo, AcceptsEnterAlsoWhenNoButtonHasTheFocus) {
  for (const bool porDefecto : {true, false}) {
    const BoxAnswerer jugador{[](QWidget* caja) { QTest::keyClick(caja, Qt::Key_Return); }};
    EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u"", .PorDefecto = porDefecto}),
              porDefecto);
  }
}

TEST(AskYesNo, IsNotAnsweredByEscOrOtherLetters) {
  EXPECT_EQ(AskAndPress({.Titulo = u"¿mus?", .Texto = u""}, {Qt::Key_Escape, Qt::Key_X, Qt::Key_S}),
            true);
  EXPECT_EQ(
      AskAndPress({.Titulo = u"¿mus?", .Texto = u""}, {Qt::Key_Escape, Qt::Key_Escape, Qt::Key_N}),
      false);
}

TEST(AskYesNo, IsNotAnsweredByALetterWithCtrl) {
  const BoxAnswerer jugador{[](QWidget* caja) {
    Press(caja, Qt::Key_S, Qt::ControlModifier);
    if (caja->isVisible()) Press(caja, Qt::Key_N);
  }};
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), false);
}

TEST(AskYesNo, IsNotAnsweredByItsCloseBox) {
  bool cerrada = true;
  bool siguioVisible = false;
  const BoxAnswerer jugador{[&](QWidget* caja) {
    if (siguioVisible) return Press(caja, Qt::Key_N);
    cerrada = caja->close();
    siguioVisible = caja->isVisible();
  }};
  EXPECT_EQ(AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}), false);
  EXPECT_FALSE(cerrada);
  EXPECT_TRUE(siguioVisible);
}

TEST(AskYesNo, IsWideEnoughForAQuestionInTheTitle) {
  const BoxAnswerer jugador{[](QWidget* caja) {
    EXPECT_GE(caja->width(), caja->fontMetrics().horizontalAdvance(caja->windowTitle()) + 100);
    Press(caja, Qt::Key_Return);
  }};
  AskYesNo(nullptr,
           {.Titulo = u"¿Tiene usted pares en esta mano tan larga, señora?", .Texto = u""});
}

TEST(AskYesNo, ReturnsNothingWhenTheProgramEnds) {
  const BoxAnswerer fin{[](QWidget*) { QCoreApplication::exit(3); }};
  std::optional<bool> respuesta = true;
  const int estado = RunInEventLoop(
      [&respuesta] { respuesta = AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""}); });
  EXPECT_EQ(estado, 3);
  EXPECT_EQ(respuesta, std::nullopt);
}

TEST(AskText, ShowsAPromptOfSeveralLinesAndTheDefaultAnswer) {
  std::string vista;
  const BoxAnswerer jugador = LookAndPress(vista, Qt::Key_Return);
  EXPECT_EQ(Utf8(AskText(nullptr, u"1. As\r\n2. Dos & <i>Tres</i>", u"Sustituir cartas", u"2")),
            "2");
  EXPECT_EQ(vista, "Sustituir cartas|1. As\n2. Dos && <i>Tres</i>||Aceptar Cancelar ");
}

TEST(AskText, IsWideEnoughForItsTitle) {
  const BoxAnswerer jugador{[](QWidget* caja) {
    EXPECT_GE(caja->width(), caja->fontMetrics().horizontalAdvance(caja->windowTitle()) + 100);
    Press(caja, Qt::Key_Return);
  }};
  AskText(nullptr, u"¿Cuántas?", u"Envite a la grande de la última mano de la partida", u"2");
}

TEST(AskText, ReturnsTheTypedText) {
  const BoxAnswerer jugador{[](QWidget* caja) {
    QTest::keyClicks(caja->focusWidget(), QStringLiteral("134"));
    Press(caja, Qt::Key_Return);
  }};
  EXPECT_EQ(Utf8(AskText(nullptr, u"¿Cuántas?", u"Envite", u"2")), "134");
}

TEST(AskText, ReturnsAnEmptyTextForCancelAndEsc) {
  {
    const BoxAnswerer jugador{[](QWidget* caja) { Press(caja, Qt::Key_Escape); }};
    EXPECT_EQ(Utf8(AskText(nullptr, u"¿Cuántas?", u"Envite", u"2")), "");
  }
  const BoxAnswerer jugador{[](QWidget* caja) {
    for (QPushButton* const boton : caja->findChildren<QPushButton*>()) {
      if (boton->text() == QLatin1String{"Cancelar"}) boton->click();
    }
  }};
  EXPECT_EQ(Utf8(AskText(nullptr, u"¿Cuántas?", u"Envite", u"2")), "");
}

TEST(AskYesNoCancel, SelectsNoAndHasThreeButtons) {
  std::string vista;
  const BoxAnswerer jugador = LookAndPress(vista, Qt::Key_Return);
  EXPECT_EQ(AskYesNoCancel(nullptr, u"¿<b>Sí</b> & no?", u"Traer"), false);
  EXPECT_EQ(vista, "Traer|¿<b>Sí</b> & no?||&Sí &No Cancelar ");
}

TEST(AskYesNoCancel, AcceptsTheLettersAndIsCancelledByEsc) {
  const std::vector<std::pair<Qt::Key, std::optional<bool>>> casos{
      {Qt::Key_S, true}, {Qt::Key_N, false}, {Qt::Key_Escape, std::nullopt}};
  for (const auto& [tecla, respuesta] : casos) {
    std::string vista;
    const BoxAnswerer jugador = LookAndPress(vista, tecla);
    EXPECT_EQ(AskYesNoCancel(nullptr, u"¿Sí?", u"Traer"), respuesta) << tecla;
  }
}

TEST(AskOkCancel, IsTrueForAceptarAlone) {
  const auto preguntar = [](Qt::Key tecla) {
    std::string vista;
    const BoxAnswerer jugador = LookAndPress(vista, tecla);
    const bool respuesta = AskOkCancel(nullptr, u"¿Fuera el 2 & el 3?", u"Eliminar jugador");
    EXPECT_EQ(vista, "Eliminar jugador|¿Fuera el 2 & el 3?||Aceptar Cancelar ");
    return respuesta;
  };
  EXPECT_TRUE(preguntar(Qt::Key_Return));
  EXPECT_FALSE(preguntar(Qt::Key_Escape));
}

}  // namespace
}  // namespace tasca::test
