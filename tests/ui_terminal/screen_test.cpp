// The output of the table's texts.
#include "ui/terminal/screen.h"

#include <gtest/gtest.h>

#include "tests/ui_terminal/sessions.h"

namespace tasca::test {
namespace {

struct Watched : FakeConsole {
  Watched() : FakeConsole{std::string{}} {}

  Screen Pantalla{Consola};
  Table t;

  std::string Show() {
    Pantalla.Show(t);
    return Take();
  }
};

TEST(Screen, PrintsNothingOfAnEmptyTable) { EXPECT_EQ(Watched{}.Show(), ""); }

TEST(Screen, PrintsTheTranscriptAsItGrows) {
  Watched w;
  w.t.Text2 = u"La grande\r\n";
  EXPECT_EQ(w.Show(), "La grande\n");
  w.t.Text2 += u"Ana: Paso\r\nPulse enter para continuar";
  EXPECT_EQ(w.Show(), "Ana: Paso\nPulse enter para continuar");
  EXPECT_EQ(w.Show(), "");
}

TEST(Screen, PrintsHandAndScoreOnlyWhenTheyChange) {
  Watched w;
  w.t.Text1 = u"Rey de oros";
  w.t.Text3 = u"Piedras: 0 / 0";
  EXPECT_EQ(w.Show(), "Rey de oros\nPiedras: 0 / 0\n");
  EXPECT_EQ(w.Show(), "");
  w.t.Text3 = u"Piedras: 1 / 0";
  EXPECT_EQ(w.Show(), "Piedras: 1 / 0\n");
  w.t.Text1 = u"As de copas";
  EXPECT_EQ(w.Show(), "As de copas\n");
  w.t.Text1.clear();
  w.t.Text3.clear();
  EXPECT_EQ(w.Show(), "");
}

TEST(Screen, DoesNotRepeatAHandThatTheTranscriptShows) {
  Watched w;
  w.t.Text1 = u"Rey de oros";
  w.t.Text2 = u"Sus cartas son\r\nRey de oros\r\nPulse enter para empezar";
  EXPECT_EQ(w.Show(), "Sus cartas son\nRey de oros\nPulse enter para empezar");
  w.t.Text2 = u"Rey de oros\r\n";
  EXPECT_EQ(w.Show(), "\nRey de oros\n") << "the hand is unchanged";
}

TEST(Screen, PutsThePromptAfterEverythingElse) {
  Watched w;
  w.t.Text2 = u"la pareja 1 se saca 1 piedra\r\nPulse enter para continuar";
  w.t.Text3 = u"Piedras: 1 / 0";
  EXPECT_EQ(w.Show(), "la pareja 1 se saca 1 piedra\nPiedras: 1 / 0\nPulse enter para continuar");
}

TEST(Screen, ShowsOpenHandsBeforeTheCount) {
  Watched w;
  w.t.Text2 = u"Pulse enter para contar";
  w.Show();
  w.t.Text1 = u"Ana\r\nRey de oros\r\nBerta\r\nAs de copas\r\n";
  w.t.Text2 = u"La pareja 1 se saca  una de la grande en paso\r\n";
  EXPECT_EQ(w.Show(),
            "\nAna\nRey de oros\nBerta\nAs de copas\n"
            "La pareja 1 se saca  una de la grande en paso\n");
}

TEST(Screen, ShowsOpenHandsAfterTheAnswerThatOpenedThem) {
  Watched w;
  w.t.Text2 = u"La grande\r\n";
  w.Show();
  w.t.Text1 = u"Ana\r\nRey de oros\r\n";
  w.t.Text2 += u"Ana: Quiero\r\n";
  EXPECT_EQ(w.Show(), "Ana: Quiero\nAna\nRey de oros\n");
}

TEST(Screen, RepeatsHandAndScoreOnDemand) {
  Watched w;
  w.Pantalla.Repeat();
  EXPECT_EQ(w.Take(), "");
  w.t.Text1 = u"Rey de oros";
  w.t.Text2 = u"Sus cartas son\r\nRey de oros\r\n";
  w.t.Text3 = u"Piedras: 0 / 0";
  w.Show();
  w.Pantalla.Repeat();
  EXPECT_EQ(w.Take(), "Rey de oros\nPiedras: 0 / 0\n");
}

TEST(Screen, ReplacesControlCharactersAndBreaksTheLineAtALoneCr) {
  Watched w;
  w.t.Text2 = u"Ana\u009D es mano\rPulse enter para continuar";
  EXPECT_EQ(w.Show(), "Ana\uFFFD es mano\nPulse enter para continuar");
}

}  // namespace
}  // namespace tasca::test
