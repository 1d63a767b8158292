// Random games, with the invariants checked after every key.
#include <gtest/gtest.h>

#include "tests/ui_trace/random_game.h"

namespace tasca::test {
namespace {

const std::filesystem::path Characters =
    std::filesystem::path{TASCA_SOURCE_DIR} / "tests/traces/folder/Jugadores.dat";

TEST(Soak, TwoHundredRandomHandsKeepTheInvariants) {
  int hands = 0;
  for (std::uint32_t seed = 1; hands < 200; ++seed) {
    const RandomGame game = PlayRandomGame(Characters, seed, {.Hands = 8}, Provocation::None);
    hands += game.Hands;
    ASSERT_EQ(game.Fault, "") << "seed " << seed << "\n" << game.In;
  }
}

TEST(Soak, TheSameSeedGivesTheSameBytes) {
  for (std::uint32_t seed = 101; seed <= 105; ++seed) {
    const RandomGame game = PlayRandomGame(Characters, seed, {.Hands = 4}, Provocation::None);
    EXPECT_GT(game.Out.size(), 1000U);
    EXPECT_EQ(game.Out, PlayRandomGame(Characters, seed, {.Hands = 4}, Provocation::None).Out);
  }
}

TEST(Soak, WithoutExpressionsTheFirstComputerSeatEndsTheProgram) {
  for (std::uint32_t seed = 201; seed <= 205; ++seed) {
    const RandomGame game = PlayRandomGame(Characters, seed, {.Hands = 4}, Provocation::NoPhrases);
    EXPECT_EQ(game.Fault, "") << "seed " << seed << "\n" << game.In;
    EXPECT_EQ(game.Status, 1);
  }
}

TEST(Soak, HugeAmountsOverflowOrAreCounted) {
  for (std::uint32_t seed = 301; seed <= 310; ++seed) {
    const RandomGame game =
        PlayRandomGame(Characters, seed, {.Hands = 4}, Provocation::HugeAmounts);
    EXPECT_EQ(game.Fault, "") << "seed " << seed << "\n" << game.In;
  }
}

}  // namespace
}  // namespace tasca::test
