// The texts as assistive technologies get them.
#include "ui/qt/unpadded_text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/accessible.h"
#include "ui/qt/form1.h"

namespace tasca::test {
namespace {

// A line of text in a window, asked like an assistive technology.
class AskedLine : public testing::Test {
 protected:
  explicit AskedLine(const char* texto = "12 34") {
    DescribeTexts();
    campo_.setText(QString::fromUtf8(texto));
    campo_.resize(400, 40);
    campo_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&campo_));
  }

  QAccessibleInterface& Asked() { return *QAccessible::queryAccessibleInterface(&campo_); }
  QAccessibleTextInterface& Text() { return *Asked().textInterface(); }
  std::string All() { return Utf8(Text().text(0, Text().characterCount())); }
  std::pair<int, int> Selection() {
    int desde = -1;
    int hasta = -1;
    Text().selection(0, &desde, &hasta);
    return {desde, hasta};
  }

  QLineEdit campo_;
};

struct AskedScore : AskedLine {
  AskedScore() : AskedLine{"  Piedras: 3 / 10;    juegos:   0 / 1"} { campo_.setReadOnly(true); }
};

TEST_F(AskedScore, HasItsWordsWithoutPadding) {
  const std::string sinRelleno = "Piedras: 3 / 10; juegos: 0 / 1";
  EXPECT_EQ(All(), sinRelleno);
  EXPECT_EQ(Utf8(Asked().text(QAccessible::Value)), sinRelleno);
  EXPECT_EQ(Text().characterCount(), static_cast<int>(sinRelleno.size()));
  EXPECT_EQ(Utf8(campo_.text()), "  Piedras: 3 / 10;    juegos:   0 / 1") << "what is shown";
}

// All positions refer to the same text.
TEST_F(AskedScore, HasConsistentPositions) {
  const QString todo = Text().text(0, Text().characterCount());
  for (int i = 0; i < todo.size(); ++i) {
    SCOPED_TRACE(i);
    Text().setCursorPosition(i);
    EXPECT_EQ(Text().cursorPosition(), i);
    EXPECT_EQ(Text().text(i, i + 1), QString{todo.at(i)});
    const QRect letra = Text().characterRect(i);
    EXPECT_EQ(Text().offsetAtPoint({letra.left() + 1, letra.center().y()}), i);
  }
}

TEST_F(AskedScore, SelectsBetweenThosePositions) {
  const QString todo = Text().text(0, Text().characterCount());
  for (int i = 0; i < todo.size(); ++i) {
    Text().setSelection(0, i, i + 1);
    EXPECT_EQ(Selection(), std::pair(i, i + 1));
    EXPECT_EQ(campo_.selectedText(), QString{todo.at(i)});
  }
}

TEST_F(AskedScore, ReadsByWordsAndLinesOfThatText) {
  int desde = -1;
  int hasta = -1;
  EXPECT_EQ(Utf8(Text().textAtOffset(17, QAccessible::WordBoundary, &desde, &hasta)), "juegos");
  EXPECT_EQ(desde, 17);
  EXPECT_EQ(hasta, 23);
  EXPECT_EQ(Utf8(Text().textAtOffset(3, QAccessible::LineBoundary, &desde, &hasta)), All());
}

TEST_F(AskedScore, CopiesWhatIsShown) {
  Text().addSelection(0, Text().characterCount());
  EXPECT_EQ(Utf8(campo_.selectedText()), "Piedras: 3 / 10;    juegos:   0 / 1");
}

TEST_F(AskedScore, CannotBeWritten) {
  EXPECT_TRUE(Asked().state().readOnly);
  EXPECT_FALSE(Asked().state().editable);
  Asked().editableTextInterface()->insertText(0, QStringLiteral("9"));
  EXPECT_EQ(All(), "Piedras: 3 / 10; juegos: 0 / 1");
}

TEST_F(AskedLine, KeepsTheBlanksThatThePlayerTypes) {
  campo_.setText(QStringLiteral(" 1  2 "));
  EXPECT_EQ(All(), " 1  2 ");
}

TEST_F(AskedLine, IsWrittenByAnAssistiveTechnology) {
  QAccessibleEditableTextInterface& escrito = *Asked().editableTextInterface();
  EXPECT_TRUE(Asked().state().editable);
  escrito.insertText(2, QStringLiteral("x"));
  EXPECT_EQ(All(), "12x 34");
  escrito.deleteText(1, 3);
  EXPECT_EQ(All(), "1 34");
  escrito.replaceText(0, 1, QStringLiteral("zz"));
  EXPECT_EQ(All(), "zz 34");
  Asked().setText(QAccessible::Value, QStringLiteral("7"));
  EXPECT_EQ(All(), "7");
}

// Orca reads a line run by run.
TEST_F(AskedLine, IsOneRunOfAttributes) {
  int desde = -1;
  int hasta = -1;
  Text().attributes(2, &desde, &hasta);
  EXPECT_EQ(desde, 0);
  EXPECT_EQ(hasta, 5);
}

TEST_F(AskedLine, HasOneSelectionAtMost) {
  campo_.deselect();
  EXPECT_EQ(Text().selectionCount(), 0);
  EXPECT_EQ(Selection(), std::pair(5, 5)) << "where the cursor is";
  Text().setSelection(1, 0, 2);
  EXPECT_EQ(Text().selectionCount(), 0) << "there is no second one";
  Text().setSelection(0, 1, 3);
  EXPECT_EQ(Text().selectionCount(), 1);
  EXPECT_EQ(Utf8(campo_.selectedText()), "2 ");
  Text().removeSelection(1);
  EXPECT_EQ(Text().selectionCount(), 1);
  Text().removeSelection(0);
  EXPECT_EQ(Text().selectionCount(), 0);
}

TEST_F(AskedLine, ShowsTheCharacterThatIsAskedFor) {
  campo_.setText(QString{400, u'm'} + u'z');
  campo_.home(false);
  Text().scrollToSubstring(400, 401);
  EXPECT_EQ(campo_.cursorPosition(), 400);
}

// The transcript in the main window, asked like an assistive technology.
class AskedTranscript : public testing::Test {
 protected:
  AskedTranscript() {
    Table t = MesaDePrueba();
    t.Text2 = u"Sus cartas son \r\nRey        de copas     , As\r\n";
    ventana_.ShowTable(t, Momento::Reposo);
  }

  QPlainTextEdit* Sheet() { return Control<QPlainTextEdit>(&ventana_, "Text2"); }
  QAccessibleInterface& Asked() { return *QAccessible::queryAccessibleInterface(Sheet()); }

 private:
  Form1 ventana_{
      {.Text1_KeyDown = [](Integer&, Integer) {}, .Sonido_Click = [](bool) {}, .Closed = [] {}}};
};

TEST_F(AskedTranscript, HasSeveralLinesThatCannotBeWritten) {
  EXPECT_TRUE(Asked().state().multiLine);
  EXPECT_TRUE(Asked().state().readOnly);
  const QAccessibleTextInterface& texto = *Asked().textInterface();
  EXPECT_EQ(Utf8(texto.text(0, texto.characterCount())), "Sus cartas son\nRey de copas, As\n");
}

TEST_F(AskedTranscript, SelectsAndScrollsByItsPositions) {
  QAccessibleTextInterface& texto = *Asked().textInterface();
  texto.addSelection(15, 18);
  EXPECT_EQ(Utf8(Sheet()->textCursor().selectedText()), "Rey");
  EXPECT_EQ(texto.selectionCount(), 1);
  texto.removeSelection(0);
  EXPECT_EQ(texto.selectionCount(), 0);
  texto.scrollToSubstring(20, 21);
  EXPECT_EQ(texto.cursorPosition(), 20);
}

}  // namespace
}  // namespace tasca::test
