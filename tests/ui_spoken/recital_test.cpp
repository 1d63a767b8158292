// Each line of the transcript is said once.
#include "ui/spoken/recital.h"

#include <gtest/gtest.h>

namespace tasca::test {
namespace {

using Lines = std::vector<std::u16string>;

TEST(Recital, SaysOnlyWhatIsNew) {
  Recital recital;
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nDora: paso\r\n"), (Lines{u"La grande", u"Dora: paso"}));
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nDora: paso\r\n"), Lines{});
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nDora: paso\r\nAna: envido\r\n"), Lines{u"Ana: envido"});
}

TEST(Recital, SaysEverythingAfterAReplacement) {
  Recital recital;
  recital.Nuevos(u"La grande\r\nDora: paso\r\n");
  EXPECT_EQ(recital.Nuevos(u"La pequeña\r\n"), Lines{u"La pequeña"});
}

TEST(Recital, KnowsALineWhosePromptWasTakenAway) {
  Recital recital;
  recital.Nuevos(u"La grande\r\nAna: envido\r\nPulse enter para continuar");
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nAna: envido\r\nDora: quiero\r\n"),
            Lines{u"Dora: quiero"});
}

TEST(Recital, RepeatsAllLinesOfTheLastStep) {
  Recital recital;
  recital.Nuevos(u"Sus cartas son\r\n");
  recital.EmpiezaPaso();
  EXPECT_EQ(recital.Ultimos(), Lines{u"Sus cartas son"}) << "until there is something new";
  recital.Nuevos(u"Dora: mus\r\n");
  recital.Nuevos(u"Dora: mus\r\nBerta: no\r\n");
  EXPECT_EQ(recital.Ultimos(), (Lines{u"Dora: mus", u"Berta: no"}));
}

TEST(Recital, RepeatsNothingBeforeTheFirstLine) { EXPECT_EQ(Recital{}.Ultimos(), Lines{}); }

}  // namespace
}  // namespace tasca::test
