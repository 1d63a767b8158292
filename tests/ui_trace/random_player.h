#pragma once
// A player who does anything that is allowed, and looks at every state as it comes by.
#include <cstdint>
#include <random>
#include <string>

#include "tests/ui_trace/conversation.h"

namespace tasca::test {

// What a random game may try besides good play.
enum class Provocation { None, NoPhrases, HugeAmounts };

class RandomPlayer {
 public:
  // Plays until so many hands have ended. The same seed always plays the same.
  RandomPlayer(std::uint32_t seed, int hands, Provocation provocation);

  // A "mus.ini" with match parameters that make long and short matches.
  std::string Settings();

  std::optional<std::string> operator()(const TraceEvents& events);

  int HandsPlayed() const { return handsPlayed_; }
  // The first thing that was not as it must always be; "" when all was.
  const std::string& Fault() const { return fault_; }

 private:
  // A whole number from 0 to n - 1; true `percent` times of a hundred.
  int Any(int n);
  bool Sometimes(int percent);

  void Look(const nlohmann::ordered_json& state);
  std::string Start();
  std::string Move();
  std::string Amount();
  std::string Button(const nlohmann::ordered_json& dialog);
  std::string Answer(const nlohmann::ordered_json& question);

  std::mt19937 engine_;
  int hands_;
  Provocation provocation_;
  int handsPlayed_ = 0;
  nlohmann::ordered_json before_;  // the last state
  std::string fault_;
};

}  // namespace tasca::test
