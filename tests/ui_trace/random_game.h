#pragma once
// One random game, judged.
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>

#include "tests/ui_trace/random_player.h"

namespace tasca::test {

struct RandomGame {
  int Status = -1;
  int Hands = 0;
  int Matches = 0;       // played to their end
  std::set<int> Seated;  // the characters that have sat at the table
  std::string In;        // to play it again
  std::string Out;
  std::string Fault;  // "" when all was as it must be
};

// Plays with this character file in a folder of its own. The same seed always plays the same.
RandomGame PlayRandomGame(const std::filesystem::path& characters, std::uint32_t seed,
                          Length length, Provocation provocation);

}  // namespace tasca::test
