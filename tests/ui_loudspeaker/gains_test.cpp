// The gains of the two channels.
#include "ui/loudspeaker/gains.h"

#include <gtest/gtest.h>

#include <array>

namespace tasca::test {
namespace {

// 0.0005 is far below half a decibel, a factor of 1.06.
void ExpectGains(const Gains& factores, double izquierda, double derecha) {
  EXPECT_NEAR(factores.Izquierda, izquierda, 0.0005);
  EXPECT_NEAR(factores.Derecha, derecha, 0.0005);
}

TEST(GainsFor, IsOneForFullVolumeInTheMiddle) { ExpectGains(GainsFor(0, 0), 1, 1); }

TEST(GainsFor, TakesTheVolumeInHundredthsOfADecibel) {
  ExpectGains(GainsFor(0, -2000), 0.1, 0.1);
  ExpectGains(GainsFor(0, -600), 0.5012, 0.5012);
  ExpectGains(GainsFor(0, -10000), 0.00001, 0.00001);
}

TEST(GainsFor, AttenuatesTheOppositeChannel) {
  ExpectGains(GainsFor(1000, 0), 0.3162, 1);
  ExpectGains(GainsFor(-1000, 0), 1, 0.3162);
  ExpectGains(GainsFor(1, 0), 0.9988, 1);
}

TEST(GainsFor, SilencesTheOppositeChannelAtFullBalance) {
  ExpectGains(GainsFor(10000, -320), 0, 0.6918);
  ExpectGains(GainsFor(-10000, -320), 0.6918, 0);
  EXPECT_EQ(GainsFor(10000, 0).Izquierda, 0);
  EXPECT_GT(GainsFor(9999, 0).Izquierda, 0);
}

TEST(GainsFor, PlacesTheFourSeats) {
  ExpectGains(GainsFor(0, -320), 0.6918, 0.6918);
  ExpectGains(GainsFor(300, -500), 0.3981, 0.5623);
  ExpectGains(GainsFor(0, -700), 0.4467, 0.4467);
  ExpectGains(GainsFor(-300, -500), 0.5623, 0.3981);
}

TEST(GainsFor, ClampsVolumeAndBalance) {
  ExpectGains(GainsFor(0, 500), 1, 1);
  ExpectGains(GainsFor(0, -32768), 0.00001, 0.00001);
  ExpectGains(GainsFor(32767, 0), 0, 1);
  ExpectGains(GainsFor(-32768, 0), 1, 0);
}

TEST(Scale, TakesTheLeftSampleOfEachPairFirst) {
  std::array<std::int16_t, 6> muestras{1000, 1000, -32768, 32767, 3, -3};
  Scale(muestras, {.Izquierda = 0.5, .Derecha = 1});
  EXPECT_EQ(muestras, (std::array<std::int16_t, 6>{500, 1000, -16384, 32767, 2, -3}));
}

TEST(Scale, IgnoresAnIncompletePair) {
  std::array<std::int16_t, 3> muestras{100, 100, 100};
  Scale(muestras, {.Izquierda = 0, .Derecha = 0});
  EXPECT_EQ(muestras, (std::array<std::int16_t, 3>{0, 0, 100}));
  Scale({}, {});
}

}  // namespace
}  // namespace tasca::test
