// The ends of the programs with windows.
#include "ui/qt/application.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "base/errors.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

TEST(EndingOf, IsNoneForAStepThatGoesWell) {
  bool hecho = false;
  EXPECT_FALSE(EndingOf([&] { hecho = true; }));
  EXPECT_TRUE(hecho);
}

TEST(EndingOf, IsSuccessWithoutAMessageWhenThePlayerLeaves) {
  const std::optional<Ending> fin = EndingOf([] { throw LeaveProgram{}; });
  ASSERT_TRUE(fin);
  EXPECT_EQ(fin->Estado, 0);
  EXPECT_EQ(Utf8(fin->Mensaje), "");
}

TEST(EndingOf, ReportsARunTimeErrorOnce) {
  const std::optional<Ending> fin = EndingOf([] { throw RunTimeError{u"Mal."}; });
  ASSERT_TRUE(fin);
  EXPECT_EQ(fin->Estado, 1);
  EXPECT_EQ(Utf8(fin->Mensaje), "Mal. El programa va a terminar su ejecución.");
  const std::optional<Ending> visto = EndingOf([] { throw RunTimeError::AlreadyShown(u"Mal."); });
  ASSERT_TRUE(visto);
  EXPECT_EQ(visto->Estado, 1);
  EXPECT_EQ(Utf8(visto->Mensaje), "");
}

TEST(EndingOf, ReportsAnyOtherErrorToo) {
  const std::optional<Ending> fin = EndingOf([] { throw std::length_error{"x"}; });
  ASSERT_TRUE(fin);
  EXPECT_EQ(fin->Estado, 1);
  EXPECT_EQ(Utf8(fin->Mensaje),
            "Se ha producido un error inesperado. El programa va a terminar su ejecución.");
}

}  // namespace
}  // namespace tasca::test
