// Bounded arrays with a lower bound of their own.
#include "base/array.h"

#include <gtest/gtest.h>

#include "base/integer.h"

namespace tasca {
namespace {

TEST(Array, StartsWithZeros) {
  const Array<Integer, 1, 4> asientos;
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(asientos[i], 0);
}

TEST(Array, KeepsEachElementInItsPlace) {
  Array<int, 3, 5> lances;
  lances[3] = 30;
  lances[4] = 40;
  lances[5] = 50;
  EXPECT_EQ(lances[3], 30);
  EXPECT_EQ(lances[4], 40);
  EXPECT_EQ(lances[5], 50);
}

TEST(Array, TakesAnEnumAsAnIndex) {
  enum class Lance { Pares = 3, Juego, Punto, Ninguno };
  Array<int, 3, 5> lances{30, 40, 50};
  EXPECT_EQ(lances[Lance::Juego], 40);
  lances[Lance::Punto] = 51;
  const Array<int, 3, 5>& despues = lances;
  EXPECT_EQ(despues[Lance::Punto], 51);
  EXPECT_THROW(lances[Lance::Ninguno], RunTimeError);
  EXPECT_THROW(despues[Lance::Ninguno], RunTimeError);
}

TEST(Array, IsFilledFromItsFirstIndex) {
  const Array<int, 1, 3> tres{7, 8, 9};
  EXPECT_EQ(tres[1], 7);
  EXPECT_EQ(tres[3], 9);
}

TEST(Array, IteratesInOrder) {
  Array<int, 0, 2> tres{7, 8, 9};
  int cifras = 0;
  for (int& n : tres) cifras = cifras * 10 + n++;
  EXPECT_EQ(cifras, 789);
  const Array<int, 0, 2>& despues = tres;
  cifras = 0;
  for (const int n : despues) cifras = cifras * 100 + n;
  EXPECT_EQ(cifras, 80910);
}

TEST(Array, RefusesAnIndexBelowItsFirst) {
  Array<int, 1, 4> asientos;
  EXPECT_THROW(asientos[0] = 1, RunTimeError);
  EXPECT_THROW(asientos[-1] = 1, RunTimeError);
}

TEST(Array, RefusesAnIndexAboveItsLast) {
  Array<int, 1, 4> asientos;
  EXPECT_THROW(asientos[5] = 1, RunTimeError);
}

TEST(Array, RefusesReadsOutsideItsBounds) {
  const Array<int, 0, 1> parejas;
  EXPECT_THROW(static_cast<void>(parejas[-1]), RunTimeError);
  EXPECT_THROW(static_cast<void>(parejas[2]), RunTimeError);
}

TEST(Array, ComparesElementByElement) {
  Array<int, 0, 1> una{1, 2};
  const Array<int, 0, 1> otra{1, 2};
  EXPECT_EQ(una, otra);
  una[1] = 3;
  EXPECT_NE(una, otra);
}

}  // namespace
}  // namespace tasca
