#pragma once
// Plays and checks a random game.
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>

#include "tests/ui_trace/random_player.h"

namespace tasca::test {

// The result of a random game.
struct RandomGame {
  int Status = -1;
  int Hands = 0;
  int Matches = 0;       // matches that ended
  std::set<int> Seated;  // the characters that were seated
  std::string In;        // the input lines, for a replay
  std::string Out;
  std::string Fault;  // the first fault; "" if there is none
};

// Plays a game with this character file in a temporary folder. The same seed gives the same game.
RandomGame PlayRandomGame(const std::filesystem::path& characters, std::uint32_t seed,
                          Length length, Provocation provocation);

}  // namespace tasca::test
