// The 16-bit Integer: every store is checked.
#include "base/integer.h"

#include <gtest/gtest.h>

namespace tasca {
namespace {

TEST(Integer, StartsAtZero) { EXPECT_EQ(Integer{}, 0); }

TEST(Integer, HoldsBothEndsOfItsRange) {
  EXPECT_EQ(Integer{32767}, 32767);
  EXPECT_EQ(Integer{-32768}, -32768);
}

TEST(Integer, OverflowsBeyondBothEnds) {
  EXPECT_THROW(Integer{32768}, RunTimeError);
  EXPECT_THROW(Integer{-32769}, RunTimeError);
}

TEST(Integer, ComputesBeyondItsRangeAndChecksOnlyTheStore) {
  const Integer grande = 32767;
  EXPECT_EQ(grande + grande - grande, 32767);
}

TEST(Integer, AddsUpToItsMaximum) {
  Integer n = 32766;
  n += 1;
  EXPECT_EQ(n, 32767);
  EXPECT_THROW(n += 1, RunTimeError);
  EXPECT_EQ(n, 32767);
}

TEST(Integer, SubtractsDownToItsMinimum) {
  Integer n = -32767;
  n -= 1;
  EXPECT_EQ(n, -32768);
  EXPECT_THROW(n -= 1, RunTimeError);
  EXPECT_EQ(n, -32768);
}

TEST(Integer, OverflowsOnAssignment) {
  Integer n = 5;
  EXPECT_THROW(n = 40000, RunTimeError);
  EXPECT_EQ(n, 5);
}

}  // namespace
}  // namespace tasca
