// The editor's text boxes.
#include "ui/qt/guarded_text.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <memory>

#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

class TextBox : public testing::Test {
 protected:
  void Show(int maximo, int filas = 1) {
    caja_ = std::make_unique<GuardedText>(
        nullptr, maximo, filas, [this](std::u16string_view reparo) { reparo_ = Utf8(reparo); });
    caja_->show();
    caja_->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(caja_.get()));
  }

  void Paste(const QString& texto) {
    QApplication::clipboard()->setText(texto);
    caja_->paste();
  }
  void Type(const char* texto) { test::Type(caja_.get(), texto); }
  void Compose(const char* enCurso, const char* escrito) {
    test::Compose(caja_.get(), enCurso, escrito);
  }
  std::string Text() const { return test::Utf8(caja_->Text()); }

  std::unique_ptr<GuardedText> caja_;
  std::string reparo_ = "nothing said";
};

constexpr auto Linea = "Un texto no puede tener más de una línea.";
constexpr auto NoCabe = "El archivo no tiene sitio para ese carácter.";
constexpr auto EsSeparador = "El signo > no puede guardarse: separa las partes del archivo.";
constexpr auto Largo = "El texto no puede ser más largo.";

TEST_F(TextBox, LeavesTabForGoingOn) {
  Show(20);
  EXPECT_TRUE(caja_->tabChangesFocus());
}

TEST_F(TextBox, AcceptsCharactersOfWindows1252) {
  Show(20);
  Type("a&b ");
  Paste(QStringLiteral("¿ñ€?"));
  EXPECT_EQ(Text(), "a&b ¿ñ€?");
  EXPECT_EQ(reparo_, "");
}

// Qt reports AltGr as Ctrl+Alt on Windows, and as none or a group switch on X11.
TEST_F(TextBox, AcceptsAltGrCharactersAndCountsThem) {
  Show(6);
  for (const Qt::KeyboardModifiers con :
       {Qt::KeyboardModifiers{Qt::NoModifier}, Qt::ControlModifier | Qt::AltModifier,
        Qt::KeyboardModifiers{Qt::GroupSwitchModifier}}) {
    QTest::sendKeyEvent(QTest::Click, caja_.get(), Qt::Key_At, QStringLiteral("@"), con);
    QTest::sendKeyEvent(QTest::Click, caja_.get(), Qt::Key(0x20AC), QStringLiteral("€"), con);
  }
  EXPECT_EQ(Text(), "@€@€@€");
  EXPECT_EQ(reparo_, "");
  QTest::sendKeyEvent(QTest::Click, caja_.get(), Qt::Key_At, QStringLiteral("@"),
                      Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(Text(), "@€@€@€");
  EXPECT_EQ(reparo_, Largo);
}

TEST_F(TextBox, RefusesCharactersThatTheFileCannotStore) {
  Show(20);
  Type("a>");
  EXPECT_EQ(reparo_, EsSeparador);
  Type("ł");
  EXPECT_EQ(reparo_, NoCabe);
  Type("b");
  EXPECT_EQ(reparo_, "");
  EXPECT_EQ(Text(), "ab");
}

TEST_F(TextBox, IgnoresAnEmptyClipboard) {
  Show(5);
  Type("abc");
  QApplication::clipboard()->setMimeData(new QMimeData);
  caja_->paste();
  EXPECT_EQ(Text(), "abc");
}

TEST_F(TextBox, RefusesAWholePasteWithTheReason) {
  Show(20);
  Type("x");
  Paste(QStringLiteral("uno\ndos"));
  EXPECT_EQ(reparo_, Linea);
  Paste(QStringLiteral("日本"));
  EXPECT_EQ(reparo_, NoCabe);
  Paste(QStringLiteral("a > b"));
  EXPECT_EQ(reparo_, EsSeparador);
  EXPECT_EQ(Text(), "x");
}

TEST_F(TextBox, RefusesADrop) {
  Show(20);
  QMimeData datos;
  datos.setText(QStringLiteral("a>b"));
  QDragEnterEvent entra{QPoint{2, 2}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier};
  QApplication::sendEvent(caja_->viewport(), &entra);
  QDropEvent suelta{QPointF{2, 2}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier};
  QApplication::sendEvent(caja_->viewport(), &suelta);
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(reparo_, EsSeparador);
}

TEST_F(TextBox, RefusesATextOfAnInputMethod) {
  Show(20);
  Compose("", "é");
  EXPECT_EQ(Text(), "é");
  Compose("", "日");
  EXPECT_EQ(Text(), "é");
  EXPECT_EQ(reparo_, NoCabe);
}

TEST_F(TextBox, RestoresASelectionReplacedByARefusedInputMethodText) {
  Show(20);
  caja_->ShowText(u"La\u00A0boticaria");
  caja_->selectAll();
  Compose("r", "");
  Compose("ri", "");
  Compose("", "日");
  EXPECT_EQ(Text(), "La\u00A0boticaria");
  EXPECT_EQ(reparo_, NoCabe);
  EXPECT_EQ(caja_->textCursor().selectedText().size(), 12);
}

TEST_F(TextBox, RestoresTheSelectionWhenAnInputMethodCancels) {
  Show(20);
  Type("abcd");
  caja_->moveCursor(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
  Compose("´", "");
  Compose("", "");
  EXPECT_EQ(Text(), "abcd");
  Compose("", "é");
  EXPECT_EQ(Text(), "é");
}

TEST_F(TextBox, ComposesOneCharacterAfterAnother) {
  Show(20);
  Type("abcd");
  caja_->selectAll();
  Compose("´", "");
  Compose("´", "é");
  Compose("", "");
  EXPECT_EQ(Text(), "é") << "the first character is kept";
}

TEST_F(TextBox, LimitsItsLength) {
  Show(3);
  Type("abc");
  EXPECT_EQ(reparo_, "");
  Type("d");
  EXPECT_EQ(reparo_, Largo);
  Paste(QStringLiteral("d"));
  EXPECT_EQ(reparo_, Largo);
  EXPECT_EQ(Text(), "abc");
}

TEST_F(TextBox, CountsTheReplacedSelectionInItsLength) {
  Show(3);
  Type("abc");
  caja_->selectAll();
  Paste(QStringLiteral("xyz"));
  EXPECT_EQ(Text(), "xyz");
  caja_->selectAll();
  Paste(QStringLiteral("wxyz"));
  EXPECT_EQ(Text(), "xyz");
}

TEST_F(TextBox, SupportsDeletingMovingAndUndo) {
  Show(3);
  Type("abc");
  QTest::keyClick(caja_.get(), Qt::Key_Left);
  QTest::keyClick(caja_.get(), Qt::Key_Backspace);
  EXPECT_EQ(Text(), "ac");
  caja_->undo();
  EXPECT_EQ(Text(), "abc");
}

TEST_F(TextBox, PassesEnterToTheWindowIfItHasOneRow) {
  Show(20);
  Type("a");
  QKeyEvent enter{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r")};
  QApplication::sendEvent(caja_.get(), &enter);
  EXPECT_FALSE(enter.isAccepted());
  EXPECT_EQ(Text(), "a");
  EXPECT_EQ(reparo_, "");
}

TEST_F(TextBox, RefusesEnterIfItHasSeveralRows) {
  Show(20, 4);
  QTest::keyClick(caja_.get(), Qt::Key_Return);
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(reparo_, Linea);
}

TEST_F(TextBox, SelectsAllWhenItGetsTheFocus) {
  Show(20);
  caja_->ShowText(u"La boticaria");
  caja_->clearFocus();
  caja_->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Utf8(caja_->textCursor().selectedText()), "La boticaria");
}

TEST_F(TextBox, SelectsAllAfterTheClickThatGivesItTheFocus) {
  Show(20);
  caja_->ShowText(u"La boticaria");
  caja_->clearFocus();
  caja_->setFocus(Qt::MouseFocusReason);
  QTest::mouseClick(caja_->viewport(), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return caja_->textCursor().hasSelection(); }));
  EXPECT_EQ(Utf8(caja_->textCursor().selectedText()), "La boticaria");
}

TEST_F(TextBox, KeepsTheSelectionWhenAMenuGivesTheFocusBack) {
  Show(20);
  caja_->ShowText(u"La boticaria");
  caja_->clearFocus();
  caja_->moveCursor(QTextCursor::End);
  caja_->setFocus(Qt::PopupFocusReason);
  EXPECT_FALSE(caja_->textCursor().hasSelection());
}

TEST_F(TextBox, KeepsNoBreakSpaces) {
  Show(20);
  Paste(QStringLiteral("a\u00A0b"));
  EXPECT_EQ(Text(), "a\u00A0b");
  caja_->ShowText(u"c\u00A0d");
  EXPECT_EQ(Text(), "c\u00A0d");
}

TEST_F(TextBox, DropsReplacementCharactersOnceItIsEdited) {
  Show(20);
  caja_->ShowText(u"a\rb\u0081c");
  caja_->moveCursor(QTextCursor::End);
  Type("d");
  EXPECT_EQ(Text(), "abcd");
}

TEST_F(TextBox, RefusesTabsFromTheKeyboard) {
  Show(20);
  Type("a");
  QKeyEvent conAlt{QEvent::KeyPress, Qt::Key_Tab, Qt::AltModifier, QStringLiteral("\t")};
  QApplication::sendEvent(caja_.get(), &conAlt);
  QKeyEvent conLetra{QEvent::KeyPress, Qt::Key_I, Qt::ControlModifier | Qt::AltModifier,
                     QStringLiteral("\t")};
  QApplication::sendEvent(caja_.get(), &conLetra);
  EXPECT_EQ(Text(), "a");
}

TEST_F(TextBox, ShowsATextNeverFilledAsEmpty) {
  Show(20);
  caja_->ShowText(std::u16string(20, u'\0'));
  EXPECT_EQ(Text(), "");
}

TEST_F(TextBox, ReturnsAnUneditedTextUnchanged) {
  Show(20);
  const std::u16string raro{u"a\0b\u0081", 4};
  caja_->ShowText(raro);
  EXPECT_EQ(Utf8(caja_->toPlainText()), "ab\uFFFD");
  EXPECT_EQ(caja_->Text(), raro);
  caja_->moveCursor(QTextCursor::End);
  QTest::keyClick(caja_.get(), Qt::Key_Backspace);
  EXPECT_EQ(Text(), "ab");
}

}  // namespace
}  // namespace tasca::test
