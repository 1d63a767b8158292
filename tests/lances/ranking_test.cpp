// The best of four hands.
#include "lances/ranking.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/tables.h"

namespace tasca::test {
namespace {

Seat Mejor(const Array<Integer, 1, 4>& orden, const Array<int, 1, 4>& valores) {
  Table t = MesaDePrueba();
  t.OrdenAsiento = orden;
  return MejorAsiento(t, valores);
}

TEST(MejorAsiento, IsTheSeatWithTheHighestValueWhoeverIsMano) {
  for (Seat mano = 1; mano <= 4; ++mano) {
    const Array<Integer, 1, 4> orden{mano, mano % 4 + 1, (mano + 1) % 4 + 1, (mano + 2) % 4 + 1};
    EXPECT_EQ(Mejor(orden, {9, 3, 2, 1}), 1) << mano;
    EXPECT_EQ(Mejor(orden, {3, 9, 2, 1}), 2) << mano;
    EXPECT_EQ(Mejor(orden, {3, 2, 9, 1}), 3) << mano;
    EXPECT_EQ(Mejor(orden, {3, 2, 1, 9}), 4) << mano;
  }
}

TEST(MejorAsiento, GivesATieToTheSeatNearestTheMano) {
  EXPECT_EQ(Mejor({1, 2, 3, 4}, {5, 5, 5, 5}), 1);
  EXPECT_EQ(Mejor({2, 3, 4, 1}, {5, 5, 5, 5}), 2);
  EXPECT_EQ(Mejor({3, 4, 1, 2}, {5, 5, 5, 5}), 3);
  EXPECT_EQ(Mejor({4, 1, 2, 3}, {5, 5, 5, 5}), 4);
  EXPECT_EQ(Mejor({3, 4, 1, 2}, {5, 5, 1, 1}), 1);
  EXPECT_EQ(Mejor({2, 3, 4, 1}, {5, 1, 1, 5}), 4);
  EXPECT_EQ(Mejor({4, 1, 2, 3}, {1, 5, 5, 1}), 2);
}

TEST(MejorAsiento, IgnoresTiesBelowTheBest) {
  EXPECT_EQ(Mejor({1, 2, 3, 4}, {5, 5, 5, 6}), 4);
  EXPECT_EQ(Mejor({3, 4, 1, 2}, {6, 5, 5, 5}), 1);
}

TEST(MejorAsiento, ComparesNegativeValuesToo) {
  EXPECT_EQ(Mejor({1, 2, 3, 4}, {-4, -3, -2, -9}), 3);
  EXPECT_EQ(Mejor({4, 1, 2, 3}, {-2, -3, -4, -2}), 4);
}

}  // namespace
}  // namespace tasca::test
