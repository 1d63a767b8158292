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

// Asks for a phrase and lets `hacer` answer; gives the answer.
std::string Ask(std::u16string_view porDefecto, const std::function<void(QWidget*)>& hacer) {
  bool hecho = false;
  const BoxAnswerer jugador{[&](QWidget* caja) {
    if (!std::exchange(hecho, true)) hacer(caja);
  }};
  return Utf8(
      AskPhrase(nullptr, u"Nuevo mensaje & más: ", u"Mensaje envido & más", porDefecto, 10));
}

TEST(AskPhrase, ShowsThePromptAndThePhraseThatStandsThere) {
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

TEST(AskPhrase, TakesWhatIsTypedOverIt) {
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

TEST(AskPhrase, SaysWhyItRefuses) {
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
