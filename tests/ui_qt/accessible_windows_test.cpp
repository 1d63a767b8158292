// What a screen reader is told of every window and box: roles, names, states, and the tab stops in
// their order.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <functional>

#include "table/dialog.h"
#include "tests/support/scripted_editor_port.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/described.h"
#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/boxes.h"
#include "ui/qt/chronicle_window.h"
#include "ui/qt/dialog1_form.h"
#include "ui/qt/dlg_inicio_form.h"
#include "ui/qt/form1.h"
#include "ui/qt/help_menu.h"
#include "ui/qt/manual_window.h"
#include "ui/qt/phrase_box.h"
#include "ui/qt/qt_port.h"

namespace tasca::test {
namespace {

using Descripcion = std::vector<std::string>;

Descripcion OfWindow(QWidget& ventana) {
  ventana.show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
  EXPECT_EQ(Nameless(&ventana), Descripcion{});
  return Described(&ventana);
}

// The box that `preguntar` opens.
Descripcion OfBox(const std::function<void()>& preguntar) {
  Descripcion dicha;
  const BoxAnswerer jugador{[&dicha](QWidget* caja) {
    EXPECT_EQ(Nameless(caja), Descripcion{});
    dicha = Described(caja);
    Press(caja, Qt::Key_Return);
  }};
  preguntar();
  return dicha;
}

TEST(AccessibleWindows, MainWindow) {
  Form1 ventana{
      {.Text1_KeyDown = [](Integer&, Integer) {}, .Sonido_Click = [](bool) {}, .Closed = [] {}}};
  ventana.ShowTable(MesaDePrueba(), Momento::Reposo);
  EXPECT_EQ(
      OfWindow(ventana),
      (Descripcion{"window: La tasca del tío Zarandel", "text: Sus cartas:, focused, editable",
                   "text: Lo que pasa en la mesa, read-only",
                   "text: Tanteo (su pareja / la contraria):, read-only"}));
}

TEST(AccessibleWindows, StartUpDialog) {
  DlgInicio estado;
  estado.CbOKEnabled = true;
  DlgInicioForm ventana{
      estado, {.Run = [](const auto& suceso) { suceso(); }, .CbOK_Click = [] {}, .Left = [] {}}};
  ventana.ShowState();
  EXPECT_EQ(
      OfWindow(ventana),
      (Descripcion{"dialog: La tasca del tío Zarandel", "text: Su nombre:, focused, editable",
                   "combo box: Compañero:", "combo box: Contrario 1:", "combo box: Contrario 2:",
                   "check box: Usar los nombres de los jugadores, checked",
                   "check box: Usar las expresiones de los jugadores, checked",
                   "radio button: Estilo directo, checked", "radio button: Estilo indirecto",
                   "button: Aceptar, default", "button: Salir del juego"}));
}

TEST(AccessibleWindows, Editor) {
  Table t;
  ScriptedEditorPort port;
  Dialog1Form ventana{t, port, {.Run = [](const auto& suceso) { suceso(); }, .Closed = [] {}}};
  EXPECT_EQ(
      OfWindow(ventana),
      (Descripcion{"window: Dialog Caption", "list: Jugadores, focused",
                   "button: Traer personajes de un archivo...", "text: Nombre, editable",
                   "text: Ordaguero, editable", "text: Historia, editable", "button: Nuevo jugador",
                   "button: Eliminar jugador", "button: Releer  datos jugador", "list: Jugada",
                   "list: Mensaje", "button: Modificar mensaje(f2)", "button: Eliminar mensaje",
                   "button: Guardar en disco", "button: Cargar de disco", "button: Aceptar"}));
}

TEST(AccessibleWindows, Manual) {
  ManualWindow ventana;
  EXPECT_EQ(OfWindow(ventana),
            (Descripcion{"window: Manual de la tasca", "static text: El manual, focused, read-only",
                         "text: Buscar en el manual, editable", "button: Buscar la anterior",
                         "button: Buscar la siguiente", "tree: Índice"}));
}

TEST(AccessibleWindows, Chronicle) {
  ChronicleWindow ventana{[] { return u"Hola"; }, [](QWidget*) { return QString{}; }};
  EXPECT_EQ(OfWindow(ventana),
            (Descripcion{"window: Crónica de la partida", "text: Crónica, focused, read-only",
                         "button: Copiar", "button: Guardar como...",
                         "text: Buscar en la crónica, editable", "button: Buscar la anterior",
                         "button: Buscar la siguiente"}));
}

TEST(AccessibleWindows, AboutBox) {
  EXPECT_EQ(OfBox([] { ShowMessage(nullptr, AboutText()); }),
            (Descripcion{"alert: La tasca del tío Zarandel", "button: Aceptar, focused, default"}));
}

TEST(AccessibleWindows, YesNoBox) {
  EXPECT_EQ(OfBox([] { AskYesNo(nullptr, {.Titulo = u"Mus", .Texto = u"¿Desea jugar?"}); }),
            (Descripcion{"alert: Mus", "button: Sí, focused, default", "button: No"}));
  EXPECT_EQ(OfBox([] {
              AskYesNo(nullptr, {.Titulo = u"¿Tiene pares?", .Texto = u"", .PorDefecto = false});
            }),
            (Descripcion{"alert: ¿Tiene pares?", "button: No, focused, default", "button: Sí"}));
}

TEST(AccessibleWindows, YesNoBoxTellsItsTextAndBothButtons) {
  std::vector<std::string> dichos;
  const BoxAnswerer jugador{[&dichos](QWidget* caja) {
    dichos.push_back(Utf8(Control<QLabel>(caja, "qt_msgbox_label")->accessibleName()));
    Press(caja, Qt::Key_Return);
  }};
  AskYesNo(nullptr, {.Titulo = u"¿mus?", .Texto = u""});
  AskYesNo(nullptr, {.Titulo = u"Mus", .Texto = u"¿Desea  jugar otra partida?"});
  EXPECT_EQ(dichos, (Descripcion{"Sí, s; No, n", "¿Desea jugar otra partida?\nSí, s; No, n"}));
}

TEST(AccessibleWindows, OkCancelBox) {
  EXPECT_EQ(OfBox([] { AskOkCancel(nullptr, u"¿Fuera?", u"Eliminar jugador"); }),
            (Descripcion{"alert: Eliminar jugador", "button: Aceptar, focused, default",
                         "button: Cancelar"}));
}

TEST(AccessibleWindows, BiddingDialog) {
  QtPort port;
  Dialog dialogo;
  dialogo.Modo = ModoDialogo::Apertura;
  Form_Activate(dialogo);
  EXPECT_EQ(OfBox([&] { port.ShowDialog(MesaDePrueba(), dialogo); }),
            (Descripcion{"dialog: Dialog Caption", "button: Paso, focused, default",
                         "button: Envido", "button: Envido Más", "button: Órdago"}));
}

TEST(AccessibleWindows, BoxOfTheDiscards) {
  QtPort port;
  const InputQuestion pregunta{.Titulo = u"Sustituir cartas", .Texto = u"1. As", .PorDefecto = u""};
  EXPECT_EQ(OfBox([&] { port.InputBox(MesaDePrueba(), Pregunta::Descarte, pregunta); }),
            (Descripcion{"dialog: Sustituir cartas", "text: 1. As, focused, editable",
                         "button: Aceptar, default", "button: Cancelar"}));
}

TEST(AccessibleWindows, BoxOfTheAmount) {
  QtPort port;
  const InputQuestion pregunta{.Titulo = u"Envite", .Texto = u"¿Cuántas?", .PorDefecto = u"2"};
  EXPECT_EQ(OfBox([&] { port.InputBox(MesaDePrueba(), Pregunta::Cantidad, pregunta); }),
            (Descripcion{"dialog: Envite", "text: ¿Cuántas?, focused, editable",
                         "button: Aceptar, default", "button: Cancelar"}));
}

TEST(AccessibleWindows, BoxOfAPhrase) {
  EXPECT_EQ(OfBox([] { AskPhrase(nullptr, u"Nuevo mensaje:", u"Mensaje", u"van", 10); }),
            (Descripcion{"dialog: Mensaje", "text: Nuevo mensaje:, focused, editable",
                         "button: Aceptar, default", "button: Cancelar"}));
}

}  // namespace
}  // namespace tasca::test
