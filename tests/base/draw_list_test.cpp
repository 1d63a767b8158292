// The test helper that returns listed draws.
#include "tests/support/draw_list.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace tasca::test {
namespace {

TEST(DrawList, GivesTheListedDrawsInOrder) {
  DrawList lista{0.0F, 0.5F, 0.25F, 0x1.fffffep-1F, 0x1p-24F};
  Rnd& rnd = lista;
  EXPECT_EQ(rnd(), 0.0F);
  EXPECT_EQ(rnd(), 0.5F);
  EXPECT_EQ(rnd(), 0.25F);
  EXPECT_EQ(rnd(), 0x1.fffffep-1F);
  EXPECT_EQ(rnd(), 0x1p-24F);
}

TEST(DrawList, FailsWhenTooFewAreDrawn) {
  EXPECT_NONFATAL_FAILURE({ const DrawList lista{0.5F}; }, "wrong number of draws");
}

TEST(DrawList, FailsWhenTooManyAreDrawn) {
  EXPECT_NONFATAL_FAILURE(
      {
        DrawList lista{0.5F};
        lista.Get()();
        lista.Get()();
      },
      "wrong number of draws");
}

TEST(DrawList, RefusesAnInvalidDraw) {
  EXPECT_NONFATAL_FAILURE(
      {
        DrawList lista{0x1p-25F};
        lista.Get()();
      },
      "is not a valid draw");
}

TEST(DrawBelow, IsTheGreatestDrawBelowALimit) {
  EXPECT_EQ(DrawBelow(0.5F), 0.5F - 0x1p-24F);
  EXPECT_EQ(DrawBelow(1.0F), 1.0F - 0x1p-24F);
  // 0.95 as a float is 15938355 / 2^24.
  EXPECT_EQ(DrawBelow(0.95F), 15938354.0F / 16777216.0F);
  // 0.1 as a float is 1677721.625 / 2^24.
  EXPECT_EQ(DrawBelow(0.1F), 1677721.0F / 16777216.0F);
}

TEST(DrawFrom, IsTheSmallestDrawNotBelowALimit) {
  EXPECT_EQ(DrawFrom(0.5F), 0.5F);
  EXPECT_EQ(DrawFrom(0.95F), 15938355.0F / 16777216.0F);
  EXPECT_EQ(DrawFrom(0.1F), 1677722.0F / 16777216.0F);
}

}  // namespace
}  // namespace tasca::test
