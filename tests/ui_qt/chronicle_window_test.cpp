// The chronicle's window: its text, its search, copying, saving, and its life beside modal boxes.
#include "ui/qt/chronicle_window.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "base/text.h"
#include "tests/support/full_disk.h"
#include "tests/support/plain_user.h"
#include "tests/support/temp_folder.h"
#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

struct OpenChronicle : testing::Test {
  OpenChronicle() {
    ventana_.Refresh();
    ventana_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&ventana_));
  }

  QPlainTextEdit* Text() { return Control<QPlainTextEdit>(&ventana_, "TextoCronica"); }
  void Click(const char* boton) {
    QTest::mouseClick(Control<QAbstractButton>(&ventana_, boton), Qt::LeftButton);
  }
  std::string Selected() { return Utf8(Text()->textCursor().selectedText()); }
  // Saves into `archivo` and returns the message of the box that opens; "" if none does.
  std::string SaveTo(const std::filesystem::path& archivo) {
    archivo_ = QString::fromStdString(archivo.string());
    std::string mensaje;
    const BoxAnswerer lector{[&mensaje](QWidget* caja) {
      mensaje = Utf8(qobject_cast<QMessageBox*>(caja)->text());
      Press(caja, Qt::Key_Return);
    }};
    Click("Guardar");
    return mensaje;
  }

  std::u16string cronica_ = u"— Mano 1 —\r\nGrande \r\nBerta: Envido\r\nAna: No quiero\r\n";
  QString archivo_;
  ChronicleWindow ventana_{[this] { return cronica_; }, [this](QWidget*) { return archivo_; }};
};

constexpr auto Leido = "— Mano 1 —\nGrande \nBerta: Envido\nAna: No quiero\n";

TEST_F(OpenChronicle, ShowsTheChronicleReadOnly) {
  EXPECT_EQ(Utf8(Text()->toPlainText()), Leido);
  EXPECT_TRUE(Text()->isReadOnly());
  EXPECT_FALSE(Text()->isUndoRedoEnabled()) << "it would remember every step";
  EXPECT_EQ(Nameless(&ventana_), std::vector<std::string>{});
}

TEST_F(OpenChronicle, ShowsTextFromFilesAsPlainText) {
  cronica_ = u"<b>Berta</b> &amp; Dora: \u0007Paso\r\n";
  ventana_.Refresh();
  EXPECT_EQ(Utf8(Text()->toPlainText()), "<b>Berta</b> &amp; Dora: \uFFFDPaso\n");
}

TEST_F(OpenChronicle, SaysThatThereIsNothingYet) {
  cronica_.clear();
  ventana_.Refresh();
  EXPECT_EQ(Utf8(Text()->toPlainText()), "Todavía no se ha dicho nada en la mesa.");
}

TEST_F(OpenChronicle, LeavesTheReaderWhereHeIs) {
  for (int i = 0; i < 200; ++i) cronica_ += Join(u"línea ", i, u"\r\n");
  ventana_.Refresh();
  QScrollBar* const barra = Text()->verticalScrollBar();
  ASSERT_GT(barra->maximum(), 0);
  barra->setValue(3);
  cronica_ += u"otra\r\n";
  ventana_.Refresh();
  EXPECT_EQ(barra->value(), 3);
  barra->setValue(barra->maximum());
  cronica_ += u"y otra\r\ny otra\r\n";
  ventana_.Refresh();
  EXPECT_EQ(barra->value(), barra->maximum());
}

TEST_F(OpenChronicle, Searches) {
  Press(&ventana_, Qt::Key_F, Qt::ControlModifier);
  auto* const campo = Control<QLineEdit>(&ventana_, "Buscado");
  EXPECT_TRUE(campo->hasFocus());
  Type(campo, "envído");
  QTest::keyClick(campo, Qt::Key_Return);
  EXPECT_EQ(Selected(), "Envido");
  campo->setText(QStringLiteral("an"));
  Click("Siguiente");
  EXPECT_EQ(Text()->textCursor().selectionStart(), 33) << "of Ana";
  Click("Siguiente");
  EXPECT_EQ(Text()->textCursor().selectionStart(), 3) << "of Mano, from the beginning again";
  Click("Anterior");
  EXPECT_EQ(Text()->textCursor().selectionStart(), 33);
  EXPECT_EQ(Utf8(Control<QLabel>(&ventana_, "Aviso")->text()), "");
  campo->setText(QStringLiteral("órdago"));
  Click("Siguiente");
  EXPECT_EQ(Utf8(Control<QLabel>(&ventana_, "Aviso")->text()), "No se encuentra.");
}

TEST_F(OpenChronicle, CopiesTheSelectionOrAll) {
  Click("Copiar");
  EXPECT_EQ(Utf8(QGuiApplication::clipboard()->text()), Leido);
  Control<QLineEdit>(&ventana_, "Buscado")->setText(QStringLiteral("berta"));
  Click("Siguiente");
  Click("Copiar");
  EXPECT_EQ(Utf8(QGuiApplication::clipboard()->text()), "Berta");
}

TEST_F(OpenChronicle, SavesItsText) {
  const TempFolder carpeta;
  EXPECT_EQ(SaveTo(carpeta.Path() / "mía.txt"), "");
  EXPECT_EQ(carpeta.Read("mía.txt"), Leido);
}

TEST_F(OpenChronicle, SavesNothingIfThePlayerCancels) {
  EXPECT_EQ(SaveTo({}), "");
  EXPECT_EQ(Utf8(Text()->toPlainText()), Leido);
}

TEST_F(OpenChronicle, TellsWhyItCannotSaveAndLosesNothing) {
  const TempFolder carpeta;
  carpeta.Write("vieja.txt", "lo de antes");
  const std::filesystem::path vieja = carpeta.Path() / "vieja.txt";
  std::string mensaje;
  {
    const PlainUser sinPermiso{carpeta};
    std::filesystem::permissions(
        carpeta.Path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    mensaje = SaveTo(carpeta.Path() / "nueva.txt");
    std::filesystem::permissions(carpeta.Path(), std::filesystem::perms::owner_all);
  }
  EXPECT_TRUE(mensaje.ends_with("nueva.txt: no hay permiso para escribir.")) << mensaje;
  {
    const FullDisk disco{5};
    mensaje = SaveTo(vieja);
  }
  EXPECT_TRUE(mensaje.ends_with("vieja.txt: no queda sitio en el disco.")) << mensaje;
  mensaje = SaveTo(carpeta.Path());
  EXPECT_TRUE(mensaje.ends_with(": hay otra cosa en su lugar.")) << mensaje;
  EXPECT_EQ(carpeta.Names(), std::vector<std::string>{"vieja.txt"});
  EXPECT_EQ(carpeta.Read("vieja.txt"), "lo de antes");
  EXPECT_EQ(Utf8(Text()->toPlainText()), Leido);
}

TEST_F(OpenChronicle, WritesToADeviceInsteadOfReplacingIt) {
  EXPECT_EQ(SaveTo("/dev/full"),
            "No se ha podido escribir el archivo /dev/full: no queda sitio en el disco.");
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(OpenChronicle, IsClosedByEsc) {
  Press(&ventana_, Qt::Key_Escape);
  EXPECT_FALSE(ventana_.isVisible());
}

// The chronicle is opened first, then the box; the step has said more before it asks.
TEST_F(OpenChronicle, CanBeUsedWhileABoxIsOpen) {
  cronica_ += u"Berta: Órdago\r\n";
  QDialog caja;
  caja.setModal(true);
  caja.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&caja));
  ASSERT_EQ(QApplication::activeModalWidget(), &caja);
  auto* const siguiente = Control<QToolButton>(&ventana_, "Siguiente");
  Control<QLineEdit>(&ventana_, "Buscado")->setText(QStringLiteral("ordago"));
  QTest::mouseClick(ventana_.windowHandle(), Qt::LeftButton, {},
                    siguiente->mapTo(&ventana_, siguiente->rect().center()));
  EXPECT_EQ(Selected(), "Órdago");
}

}  // namespace
}  // namespace tasca::test
