// The exchange sort of hands.
#include "base/exchange_sort.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tasca {
namespace {

using Fila = Array<int, 1, 4>;

bool Mayor(int a, int b) { return a > b; }

TEST(OrdenarPorCambios, SortsEveryOrderOfFourElements) {
  Fila fila{1, 2, 3, 4};
  int ordenes = 0;
  do {
    Fila copia = fila;
    OrdenarPorCambios(copia, Mayor);
    EXPECT_EQ(copia, (Fila{4, 3, 2, 1}));
    ++ordenes;
  } while (std::next_permutation(fila.begin(), fila.end()));
  EXPECT_EQ(ordenes, 24);
}

TEST(OrdenarPorCambios, LeavesEqualElementsInTheirOrder) {
  // The tens are compared; the units identify equal elements.
  Fila fila{11, 21, 12, 22};
  OrdenarPorCambios(fila, [](int a, int b) { return a / 10 > b / 10; });
  EXPECT_EQ(fila, (Fila{21, 22, 11, 12}));
}

TEST(OrdenarPorCambios, LeavesSortedElementsAlone) {
  Fila fila{9, 7, 7, 1};
  OrdenarPorCambios(fila, Mayor);
  EXPECT_EQ(fila, (Fila{9, 7, 7, 1}));
}

TEST(OrdenarPorCambios, FollowsTheGivenOrder) {
  Fila fila{9, 7, 8, 1};
  OrdenarPorCambios(fila, [](int a, int b) { return a < b; });
  EXPECT_EQ(fila, (Fila{1, 7, 8, 9}));
}

}  // namespace
}  // namespace tasca
