#pragma once
// A player who does anything that is allowed, and looks at every state as it comes by.
#include <functional>
#include <limits>
#include <set>
#include <string>

#include "tests/ui_trace/conversation.h"

namespace tasca::test {

// What a random game may try besides good play.
enum class Provocation { None, NoPhrases, HugeAmounts };

// When the player leaves the table: after so many hands, or so many matches played to their end.
struct Length {
  int Hands = std::numeric_limits<int>::max();
  int Matches = std::numeric_limits<int>::max();
};

// Says a whole number from 0 to n - 1: what the player does depends on nothing else.
using Chooser = std::function<int(int n)>;

class RandomPlayer {
 public:
  RandomPlayer(Chooser any, Length length, Provocation provocation);

  // A "mus.ini" with match parameters that make long and short matches.
  std::string Settings();

  std::optional<std::string> operator()(const TraceEvents& events);

  int HandsPlayed() const { return handsPlayed_; }
  int MatchesPlayed() const { return matchesPlayed_; }
  // The characters that have sat at the table.
  const std::set<int>& Seated() const { return seated_; }
  // The first thing that was not as it must always be, the end of the game included; "" when all
  // was. A game that was not provoked must end well; a provoked one may also end in the run-time
  // error that it asks for.
  std::string FaultOf(const Conversation& game) const;

 private:
  // True `percent` times of a hundred.
  bool Sometimes(int percent) { return any_(100) < percent; }

  bool HasPlayedEnough() const;
  void Look(const nlohmann::ordered_json& state);
  std::string Start();
  std::string Move();
  std::string Amount();
  std::string Button(const nlohmann::ordered_json& dialog);
  std::string Answer(const nlohmann::ordered_json& question);

  Chooser any_;
  Length length_;
  Provocation provocation_;
  int handsPlayed_ = 0;
  int matchesPlayed_ = 0;
  std::set<int> seated_;
  nlohmann::ordered_json before_;  // the last state
  std::string fault_;
};

}  // namespace tasca::test
