// The editor's input box.
#include "ui/qt/phrase_box.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "tests/support/tables.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/guarded_text.h"

namespace tasca::test {
namespace {

// Asks for a phrase, calls `hacer` once with the box, and returns the answer.
std::string Ask(std::u16string_view porDefecto, const std::function<void(QWidget*)>& hacer) {
  bool hecho = false;
  const BoxAnswerer jugador{[&](QWidget* caja) {
    if (!std::exchange(hecho, true)) hacer(caja);
  }};
  return Utf8(
      AskPhrase(nullptr, u"Nuevo mensaje & más: ", u"Mensaje envido & más", porDefecto, 10));
}

TEST(AskPhrase, ShowsThePromptAndTheDefaultPhrase) {
  EXPECT_EQ(Ask(u"van & más",
                [](QWidget* caja) {
                  EXPECT_EQ(Utf8(caja->windowTitle()), "Mensaje envido & más");
                  EXPECT_EQ(Utf8(caja->findChild<QLabel*>()->text()), "Nuevo mensaje && más: ");
                  auto* const texto = Control<GuardedText>(caja, "Text1");
                  EXPECT_EQ(Utf8(texto->toPlainText()), "van & más");
                  EXPECT_TRUE(texto->hasFocus());
                  EXPECT_EQ(Utf8(texto->textCursor().selectedText()), "van & más");
                  Press(caja, Qt::Key_Return);
                }),
            "van & más");
}

TEST(AskPhrase, ReturnsTheTypedPhrase) {
  EXPECT_EQ(Ask(u"antes",
                [](QWidget* caja) {
                  Type(caja->focusWidget(), "nuevo");
                  Press(caja, Qt::Key_Enter);
                }),
            "nuevo");
}

TEST(AskPhrase, IsEmptyWhenCancelled) {
  EXPECT_EQ(Ask(u"antes", [](QWidget* caja) { Press(caja, Qt::Key_Escape); }), "");
}

// True if the whole text of the label is visible.
bool IsReadable(const QLabel& estado) {
  const QRect hueco{0, 0, estado.contentsRect().width(), 10000};
  const QRect texto = estado.fontMetrics().boundingRect(hueco, Qt::TextWordWrap, estado.text());
  return !estado.text().isEmpty() && texto.height() <= estado.contentsRect().height();
}

TEST(AskPhrase, ShowsEveryReasonInFull) {
  Ask(u"", [](QWidget* caja) {
    auto* const estado = Control<QLabel>(caja, "Status");
    for (const char* const rechazado : {">", "ł", "\u0001", "abcdefghijk"}) {
      Compose(caja->focusWidget(), "", rechazado);
      EXPECT_TRUE(IsReadable(*estado)) << Utf8(estado->text());
    }
    Press(caja, Qt::Key_Return);
  });
}

TEST(AskPhrase, KeepsThePhraseWhenAnInputMethodTextIsRefused) {
  EXPECT_EQ(Ask(u"van",
                [](QWidget* caja) {
                  Compose(caja->focusWidget(), "ri", "");
                  Compose(caja->focusWidget(), "", "日");
                  Press(caja, Qt::Key_Return);
                }),
            "van");
}

TEST(AskPhrase, ShowsTheReasonOfARefusal) {
  EXPECT_EQ(Ask(u"",
                [](QWidget* caja) {
                  Type(caja->focusWidget(), "a>");
                  EXPECT_EQ(Utf8(Control<QLabel>(caja, "Status")->text()),
                            "El signo > no puede guardarse: separa las partes del archivo.");
                  Type(caja->focusWidget(), "bcdefghij");
                  EXPECT_EQ(Utf8(Control<QLabel>(caja, "Status")->text()), "");
                  Type(caja->focusWidget(), "k");
                  EXPECT_EQ(Utf8(Control<QLabel>(caja, "Status")->text()),
                            "El texto no puede ser más largo.");
                  Press(caja, Qt::Key_Return);
                }),
            "abcdefghij");
}

}  // namespace
}  // namespace tasca::test
